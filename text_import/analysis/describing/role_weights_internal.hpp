// SPDX-License-Identifier: MIT
//
// What each feature of a line says for each role, in sixteenths, and each step from one role to the
// next. Made by tools/fit_roles; changes by hand get lost.
#pragma once

#include <array>

#include "text_import/analysis/describing/table_roles_internal.hpp"

namespace textimport::analysis {

/// In the order of the features: title, names, data, group, total, note.
inline constexpr std::array role_weights{
    RoleScores{2, 3, 4, 0, -11, 1},        // Always
    RoleScores{19, -21, -11, 19, -15, 9},  // OneCellFirst
    RoleScores{3, -3, -1, 0, -1, 2},       // OneCellOfTwo
    RoleScores{-2, 4, 4, -6, 0, 0},        // OneCellOther
    RoleScores{-7, 1, 0, 7, -3, 3},        // TwoCells
    RoleScores{-4, 12, 1, -23, 22, -9},    // AllCells
    RoleScores{-7, 5, 5, 5, -3, -5},       // MostCells
    RoleScores{2, 3, 5, -2, -10, 2},       // FewCells
    RoleScores{7, 2, 21, -13, -5, -13},    // FilledLikeMost
    RoleScores{14, -2, -15, 11, -15, 7},   // FilledLess
    RoleScores{-8, 31, -12, -1, -8, -2},   // FirstEmpty
    RoleScores{-19, -7, 1, 6, 19, 0},      // Gaps
    RoleScores{-8, 9, -1, 0, 1, -1},       // ShortByOne
    RoleScores{9, -2, 1, -7, 0, 0},        // ShortRow
    RoleScores{10, -14, -2, 3, -1, 3},     // LongRow
    RoleScores{-9, 1, 9, 5, -5, -1},       // RegularRow
    RoleScores{-2, 4, 2, -2, 0, -2},       // RaggedRow
    RoleScores{-2, 11, -1, -8, -2, 1},     // Undivided
    RoleScores{1, -8, -6, 14, -2, 2},      // UndividedAligned
    RoleScores{-8, -1, 21, 1, 1, -14},     // KindsAll
    RoleScores{3, 0, -3, -1, -3, 5},       // KindsMost
    RoleScores{2, 6, 1, -5, -5, 0},        // KindsSome
    RoleScores{6, -2, 1, -9, -7, 12},      // KindsNone
    RoleScores{0, 26, -28, -8, 6, 3},      // ConflictsAll
    RoleScores{3, 4, 0, -5, -3, 0},        // ConflictsMost
    RoleScores{2, 2, -2, -1, -5, 5},       // ConflictsSome
    RoleScores{-1, 0, -16, 14, 3, -1},     // UntypedTable
    RoleScores{3, 2, -8, 5, -5, 2},        // MostlyTypedTable
    RoleScores{1, -10, 7, -5, 8, -1},      // NumberAmongTexts
    RoleScores{7, 4, -8, 13, -25, 9},      // NoNumbers
    RoleScores{0, -2, 9, 1, -5, -2},       // OneNumber
    RoleScores{-5, -4, 4, -12, 22, -5},    // MostlyNumbers
    RoleScores{-6, 27, -3, -6, -7, -5},    // AllYears
    RoleScores{1, 6, -4, -1, -2, 0},       // CountsUp
    RoleScores{1, -3, 14, -4, -3, -5},     // YearsAreUsual
    RoleScores{-1, 20, -15, -1, -4, 0},    // YearRow
    RoleScores{-3, -4, 1, 6, 0, 0},        // YearTexts
    RoleScores{-5, -3, 5, -6, 11, -2},     // Decimals
    RoleScores{0, -21, 9, -8, 11, 9},      // LongText
    RoleScores{7, -4, -1, -11, 5, 4},      // VeryLongText
    RoleScores{-2, -5, 2, -2, 1, 6},       // ManyWords
    RoleScores{-7, -3, 4, -2, 7, 1},       // SomeWords
    RoleScores{1, -2, 0, -1, -3, 4},       // EndsSentence
    RoleScores{4, -9, 3, -7, 6, 3},        // HoldsSentence
    RoleScores{0, -16, -18, 30, -5, 9},    // EndsColon
    RoleScores{2, -2, 0, -1, 0, 1},        // NoteMark
    RoleScores{1, -2, -8, -2, 6, 5},       // Numbered
    RoleScores{-1, -4, 5, 0, 1, -1},       // Address
    RoleScores{-1, -7, -14, -5, 24, 2},    // TotalWord
    RoleScores{2, 3, 4, 0, -11, 1},        // NoteWord
    RoleScores{2, -2, 0, 0, 0, 0},         // TitleWord
    RoleScores{-4, 19, -21, 4, 2, 0},      // UnitWord
    RoleScores{11, -3, -5, -1, -4, 1},     // InBrackets
    RoleScores{-1, 26, -3, -6, -16, 0},    // BracketCells
    RoleScores{-1, 11, 4, -8, -7, 0},      // SmallFirst
    RoleScores{2, -3, -15, 11, 7, -1},     // Capitals
    RoleScores{8, -2, -1, -13, 2, 6},      // Indented
    RoleScores{11, 7, -18, -4, 9, -4},     // LessIndented
    RoleScores{21, 1, -17, -2, -2, -1},    // CommentSign
    RoleScores{-12, 8, 4, 16, -10, -6},    // DistinctTexts
    RoleScores{-2, 1, 22, -5, -10, -6},    // RepeatedTexts
    RoleScores{2, 6, 1, -3, -2, -5},       // WordsOnly
    RoleScores{-1, 21, -7, -2, -7, -5},    // Identifiers
    RoleScores{19, -22, 5, -9, 9, -3},     // FoundAgain
    RoleScores{-7, 15, -10, 13, -7, -5},   // FoundNowhere
    RoleScores{-5, -2, -13, 5, 12, 3},     // OddOne
    RoleScores{-3, -4, -10, 8, 9, 0},      // OddMany
    RoleScores{3, -5, 5, -19, 22, -6},     // OddNone
    RoleScores{-1, 11, -1, -2, -7, 0},     // FirstLine
    RoleScores{1, -6, -4, 8, 3, -1},       // SecondLine
    RoleScores{-10, 6, 4, 3, -1, -1},      // ThirdLine
    RoleScores{9, -9, 4, -11, 1, 5},       // LaterLine
    RoleScores{0, 0, 3, -5, -1, 3},        // LastLine
    RoleScores{-5, 6, -3, -5, 9, -2},      // NearEnd
    RoleScores{4, 7, -11, -3, -1, 4},      // BlankBefore
    RoleScores{-3, 1, -14, 4, 10, 2},      // BlanksBefore
    RoleScores{16, 7, 6, -16, -6, -7},     // BlankBehind
    RoleScores{0, -1, 0, -3, 2, 1},        // RulerBefore
    RoleScores{1, 4, -1, -4, 0, 0},        // RulerBehind
    RoleScores{1, -6, 8, 0, -3, 1},        // CommentBefore
    RoleScores{-5, 6, 9, -2, 0, -8},       // Fits
    RoleScores{8, 3, 7, -10, -6, -1},      // BeforeBlock
    RoleScores{-4, -3, 4, 1, 4, -2},       // FirstOfBlock
    RoleScores{1, -6, -3, 4, 0, 3},        // BehindBlock
    RoleScores{7, 2, -16, 0, 2, 4},        // BeforeFitting
    RoleScores{2, -7, 1, -6, -1, 10},      // BehindFitting
    RoleScores{0, 0, 0, 0, 0, 0},          // FewFitBehind
    RoleScores{0, 12, 9, -17, -3, -1},     // NextFits
    RoleScores{-5, 6, -9, 4, 3, 0},        // RunBehind
    RoleScores{-10, 1, -7, 14, 3, -1},     // TextSoon
    RoleScores{-3, -3, 2, 6, -5, 2},       // LastFits
    RoleScores{0, -1, -38, 5, 38, -4},     // SumAbove
    RoleScores{0, 3, -60, 1, 58, -2},      // SumBelow
    RoleScores{-5, -19, 9, -10, 11, 14},   // LikeNext
    RoleScores{18, 3, 4, -13, -3, -8},     // LikeLast
    RoleScores{-1, 4, 3, -7, 2, -1},       // NextOneCell
    RoleScores{0, 2, -9, -4, 12, -1},      // NextKinds
    RoleScores{5, -2, -9, 6, 3, -3},       // NextConflicts
    RoleScores{5, 6, 4, -7, -6, -3},       // NextYears
    RoleScores{-16, 6, 9, -3, 4, -1},      // NextFirstEmpty
    RoleScores{10, 5, -6, -1, -1, -6},     // NextLongText
    RoleScores{7, -4, -2, 3, -4, -1},      // NextManyCells
    RoleScores{-9, 11, -1, 2, 0, -3},      // LastOneCell
    RoleScores{0, 11, -11, 2, -7, 6},      // LastKinds
    RoleScores{9, -7, 5, -4, -4, 1},       // LastConflicts
    RoleScores{2, -11, 6, 2, 6, -5},       // LastYears
    RoleScores{-2, -2, 4, -2, 3, -1},      // LastFirstEmpty
    RoleScores{6, -1, -1, -5, 3, -2},      // LastLongText
    RoleScores{10, -21, 7, -8, 6, 6},      // LastManyCells
};

/// From each role to the next line.
inline constexpr std::array transitions{
    RoleScores{-1, -4, 1, -4, -6, 0},   // title
    RoleScores{0, -10, -8, 1, 13, 0},   // names
    RoleScores{0, 0, 15, -5, -12, -3},  // data
    RoleScores{0, 0, 11, 11, 4, -4},    // group
    RoleScores{0, 0, -3, 3, -2, -2},    // total
    RoleScores{0, 0, 0, 0, 0, 5},       // note
};

/// From each role to the next line behind a blank one.
inline constexpr std::array transitions_over_blanks{
    RoleScores{4, 16, -7, 2, 1, 0},    // title
    RoleScores{0, -11, -1, 5, 15, 0},  // names
    RoleScores{0, 0, -1, 0, 1, 7},     // data
    RoleScores{0, 0, -1, -5, -15, 4},  // group
    RoleScores{0, 0, 0, -4, -2, 1},    // total
    RoleScores{0, 0, 0, 0, 0, -8},     // note
};

/// How many of a thousand tables are right at a margin; between two margins in proportion.
struct MarginShare {
  std::int32_t margin;
  std::int32_t right;
};

inline constexpr std::array margin_shares{
    MarginShare{4, 627},
    MarginShare{13, 728},
    MarginShare{21, 842},
    MarginShare{32, 905},
    MarginShare{44, 946},
    MarginShare{57, 956},
    MarginShare{64, 968},
    MarginShare{71, 981},
    MarginShare{82, 989},
    MarginShare{15290623, 998},
};

}  // namespace textimport::analysis
