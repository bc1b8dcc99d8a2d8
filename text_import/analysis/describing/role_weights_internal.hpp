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
    RoleScores{1, 5, 5, 0, -12, 1},        // Always
    RoleScores{19, -20, -13, 19, -13, 8},  // OneCellFirst
    RoleScores{3, -3, 0, 0, -2, 2},        // OneCellOfTwo
    RoleScores{-2, 4, 4, -6, 0, 0},        // OneCellOther
    RoleScores{-7, 0, 2, 7, -5, 3},        // TwoCells
    RoleScores{-4, 11, 3, -22, 21, -9},    // AllCells
    RoleScores{-6, 4, 5, 4, -2, -5},       // MostCells
    RoleScores{2, 5, 5, -1, -13, 2},       // FewCells
    RoleScores{6, 3, 20, -11, -6, -12},    // FilledLikeMost
    RoleScores{13, -2, -15, 12, -14, 6},   // FilledLess
    RoleScores{-9, 32, -12, -1, -9, -2},   // FirstEmpty
    RoleScores{-18, -6, 3, 5, 17, 0},      // Gaps
    RoleScores{-8, 9, -1, 0, 1, -1},       // ShortByOne
    RoleScores{9, -2, 1, -8, 0, 0},        // ShortRow
    RoleScores{9, -12, -2, 3, -1, 2},      // LongRow
    RoleScores{-9, 1, 10, 5, -6, -1},      // RegularRow
    RoleScores{-3, 5, 2, -2, 0, -2},       // RaggedRow
    RoleScores{-1, 11, -1, -8, -2, 2},     // Undivided
    RoleScores{1, -9, -4, 12, -2, 2},      // UndividedAligned
    RoleScores{-6, -1, 21, 2, -1, -14},    // KindsAll
    RoleScores{-1, 2, -3, -1, -2, 5},      // KindsMost
    RoleScores{2, 6, 0, -5, -3, 0},        // KindsSome
    RoleScores{6, -1, 2, -10, -9, 11},     // KindsNone
    RoleScores{0, 26, -28, -7, 5, 3},      // ConflictsAll
    RoleScores{3, 4, -2, -5, 0, 0},        // ConflictsMost
    RoleScores{-1, 4, -1, -1, -5, 5},      // ConflictsSome
    RoleScores{-1, 0, -15, 14, 2, -1},     // UntypedTable
    RoleScores{3, 2, -8, 6, -5, 2},        // MostlyTypedTable
    RoleScores{2, -11, 7, -6, 9, -1},      // NumberAmongTexts
    RoleScores{8, 5, -7, 13, -28, 9},      // NoNumbers
    RoleScores{-1, -4, 2, 0, 5, -2},       // OneNumber
    RoleScores{-6, -2, 4, -11, 21, -5},    // MostlyNumbers
    RoleScores{-6, 26, -3, -7, -6, -4},    // AllYears
    RoleScores{2, 5, -4, -1, -2, 0},       // CountsUp
    RoleScores{0, -4, 13, -5, -1, -4},     // YearsAreUsual
    RoleScores{0, 20, -14, -1, -5, 0},     // YearRow
    RoleScores{-3, -4, 1, 6, 0, 0},        // YearTexts
    RoleScores{-4, -4, 6, -6, 10, -2},     // Decimals
    RoleScores{0, -21, 9, -9, 12, 9},      // LongText
    RoleScores{7, -4, 0, -11, 5, 3},       // VeryLongText
    RoleScores{-2, -5, 2, -2, 1, 6},       // ManyWords
    RoleScores{-7, -4, 5, -2, 7, 1},       // SomeWords
    RoleScores{1, -2, 0, -1, -3, 4},       // EndsSentence
    RoleScores{4, -9, 1, -7, 9, 2},        // HoldsSentence
    RoleScores{-1, -15, -18, 30, -5, 9},   // EndsColon
    RoleScores{2, -2, 0, -2, 0, 2},        // NoteMark
    RoleScores{0, -3, -7, -2, 7, 5},       // Numbered
    RoleScores{-1, -4, 5, 0, 1, -1},       // Address
    RoleScores{0, -7, -14, -5, 24, 3},     // TotalWord
    RoleScores{8, -4, -3, -7, -2, 8},      // NoteWord
    RoleScores{2, -2, 0, 0, 0, 0},         // TitleWord
    RoleScores{-3, 20, -21, 4, 1, 0},      // UnitWord
    RoleScores{12, -4, -5, -1, -4, 1},     // InBrackets
    RoleScores{-1, 27, -3, -6, -17, 0},    // BracketCells
    RoleScores{-1, 11, 4, -8, -8, 1},      // SmallFirst
    RoleScores{1, -3, -15, 12, 6, -2},     // Capitals
    RoleScores{8, -2, -1, -13, 2, 6},      // Indented
    RoleScores{12, 6, -18, -5, 9, -4},     // LessIndented
    RoleScores{21, 1, -16, -2, -2, -1},    // CommentSign
    RoleScores{-10, 8, 3, 15, -10, -5},    // DistinctTexts
    RoleScores{-2, 1, 22, -5, -11, -5},    // RepeatedTexts
    RoleScores{3, 6, 2, -5, -2, -4},       // WordsOnly
    RoleScores{0, 21, -8, -2, -7, -4},     // Identifiers
    RoleScores{18, -22, 6, -8, 9, -3},     // FoundAgain
    RoleScores{-6, 15, -10, 14, -7, -5},   // FoundNowhere
    RoleScores{-5, -1, -12, 5, 11, 3},     // OddOne
    RoleScores{-1, -4, -9, 6, 9, 0},       // OddMany
    RoleScores{3, -5, 6, -18, 21, -6},     // OddNone
    RoleScores{-3, 13, -1, -2, -7, 0},     // FirstLine
    RoleScores{1, -6, -4, 8, 1, -1},       // SecondLine
    RoleScores{-10, 5, 3, 4, -1, -1},      // ThirdLine
    RoleScores{9, -10, 4, -10, 1, 5},      // LaterLine
    RoleScores{0, 0, 3, -5, -1, 3},        // LastLine
    RoleScores{-6, 5, -4, -3, 9, -2},      // NearEnd
    RoleScores{3, 7, -10, -3, -1, 4},      // BlankBefore
    RoleScores{-4, 1, -14, 4, 11, 2},      // BlanksBefore
    RoleScores{16, 7, 5, -15, -7, -7},     // BlankBehind
    RoleScores{0, 0, 0, -3, 2, 1},         // RulerBefore
    RoleScores{1, 4, -1, -4, 0, 0},        // RulerBehind
    RoleScores{1, -6, 8, 0, -3, 1},        // CommentBefore
    RoleScores{-5, 7, 10, -3, -2, -8},     // Fits
    RoleScores{7, 3, 8, -10, -7, -1},      // BeforeBlock
    RoleScores{-1, -4, 3, 0, 5, -2},       // FirstOfBlock
    RoleScores{2, -6, -2, 4, 0, 3},        // BehindBlock
    RoleScores{7, 2, -14, 1, -1, 4},       // BeforeFitting
    RoleScores{2, -7, 0, -5, 0, 10},       // BehindFitting
    RoleScores{0, 0, 0, 0, 0, 0},          // FewFitBehind
    RoleScores{0, 12, 8, -18, -2, -1},     // NextFits
    RoleScores{-5, 7, -9, 4, 3, 0},        // RunBehind
    RoleScores{-10, 1, -6, 13, 2, -1},     // TextSoon
    RoleScores{-1, -5, 3, 6, -5, 2},       // LastFits
    RoleScores{0, 0, -40, 0, 41, -1},      // SumAbove
    RoleScores{0, 3, -60, 0, 58, 0},       // SumBelow
    RoleScores{-4, -20, 10, -10, 11, 13},  // LikeNext
    RoleScores{16, 4, 4, -13, -3, -7},     // LikeLast
    RoleScores{-2, 4, 2, -7, 4, -1},       // NextOneCell
    RoleScores{0, 1, -9, -5, 13, -1},      // NextKinds
    RoleScores{4, 0, -9, 7, 1, -3},        // NextConflicts
    RoleScores{4, 6, 3, -7, -4, -2},       // NextYears
    RoleScores{-15, 5, 10, -3, 3, -1},     // NextFirstEmpty
    RoleScores{9, 5, -5, -2, -1, -6},      // NextLongText
    RoleScores{7, -3, -3, 3, -4, 0},       // NextManyCells
    RoleScores{-9, 12, -2, 2, 0, -2},      // LastOneCell
    RoleScores{2, 10, -11, 2, -8, 5},      // LastKinds
    RoleScores{9, -8, 6, -4, -5, 1},       // LastConflicts
    RoleScores{1, -10, 6, 2, 5, -4},       // LastYears
    RoleScores{-3, -1, 4, -2, 4, -1},      // LastFirstEmpty
    RoleScores{6, 0, -1, -5, 2, -2},       // LastLongText
    RoleScores{10, -21, 6, -7, 5, 6},      // LastManyCells
};

/// From each role to the next line.
inline constexpr std::array transitions{
    RoleScores{1, -3, -2, -5, -6, 0},   // title
    RoleScores{0, -10, -7, 1, 14, 0},   // names
    RoleScores{0, 0, 16, -5, -12, -3},  // data
    RoleScores{0, 0, 11, 11, 1, -3},    // group
    RoleScores{0, 0, -3, 2, -2, -2},    // total
    RoleScores{0, 0, 0, 0, 0, 5},       // note
};

/// From each role to the next line behind a blank one.
inline constexpr std::array transitions_over_blanks{
    RoleScores{3, 17, -7, 2, 1, 0},    // title
    RoleScores{0, -11, -1, 4, 15, 0},  // names
    RoleScores{0, 0, -1, 0, 1, 6},     // data
    RoleScores{0, 0, -1, -5, -15, 6},  // group
    RoleScores{0, 0, 0, -4, -2, 0},    // total
    RoleScores{0, 0, 0, 0, 0, -7},     // note
};

/// How many of a thousand tables are right at a margin; between two margins in proportion.
struct MarginShare {
  std::int32_t margin;
  std::int32_t right;
};

inline constexpr std::array margin_shares{
    MarginShare{4, 614},
    MarginShare{13, 791},
    MarginShare{21, 829},
    MarginShare{31, 892},
    MarginShare{43, 933},
    MarginShare{59, 971},
    MarginShare{77, 992},
    MarginShare{15290622, 998},
};

}  // namespace textimport::analysis
