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
    RoleScores{2, 4, 6, 0, -13, 0},         // Always
    RoleScores{17, -20, -14, 19, -12, 10},  // OneCellFirst
    RoleScores{-2, 6, -3, 2, -4, 1},        // OneCellOfTwo
    RoleScores{-1, 5, 3, -7, 0, 0},         // OneCellOther
    RoleScores{-7, 3, -2, 9, -6, 3},        // TwoCells
    RoleScores{-4, 12, -1, -14, 18, -11},   // AllCells
    RoleScores{-11, -2, 14, -6, 2, 3},      // MostCells
    RoleScores{9, 1, 9, -3, -11, -5},       // FewCells
    RoleScores{1, 10, 24, -18, -4, -13},    // FilledLikeMost
    RoleScores{10, -5, -14, 16, -15, 8},    // FilledLess
    RoleScores{-9, 29, -9, -3, -7, -1},     // FirstEmpty
    RoleScores{-21, 3, -2, 6, 15, 0},       // Gaps
    RoleScores{-10, 17, -3, -1, -1, -1},    // ShortByOne
    RoleScores{14, -4, -2, -7, -1, 0},      // ShortRow
    RoleScores{15, -11, 0, 0, -4, 0},       // LongRow
    RoleScores{-9, 5, 12, 0, -8, 0},        // RegularRow
    RoleScores{0, 8, 0, -4, -3, -2},        // RaggedRow
    RoleScores{1, 5, 0, -4, -2, 1},         // Undivided
    RoleScores{-8, -7, -1, 12, 3, 2},       // UndividedAligned
    RoleScores{-11, -3, 20, 5, 2, -13},     // KindsAll
    RoleScores{3, -1, -3, -1, -2, 5},       // KindsMost
    RoleScores{0, 6, 0, -3, -3, 0},         // KindsSome
    RoleScores{10, -4, 5, -12, -12, 12},    // KindsNone
    RoleScores{2, 25, -28, -6, 2, 4},       // ConflictsAll
    RoleScores{1, 4, -1, -3, -1, 0},        // ConflictsMost
    RoleScores{3, 1, -3, -2, -4, 5},        // ConflictsSome
    RoleScores{-1, 5, -15, 12, 3, -3},      // UntypedTable
    RoleScores{-2, 2, -3, 4, -3, 2},        // MostlyTypedTable
    RoleScores{2, -11, 5, -7, 10, 0},       // NumberAmongTexts
    RoleScores{8, 6, -8, 12, -25, 7},       // NoNumbers
    RoleScores{-2, -1, 3, 2, 1, -2},        // OneNumber
    RoleScores{-1, -3, 3, -13, 19, -4},     // MostlyNumbers
    RoleScores{-3, 27, -7, -6, -6, -4},     // AllYears
    RoleScores{1, 8, -7, 0, -1, 0},         // CountsUp
    RoleScores{1, -6, 15, -5, -1, -4},      // YearsAreUsual
    RoleScores{0, 26, -20, -1, -5, 0},      // YearRow
    RoleScores{-3, -4, 7, 0, 0, 0},         // YearTexts
    RoleScores{-7, 1, 4, -5, 9, -2},        // Decimals
    RoleScores{-1, -20, 11, -10, 11, 10},   // LongText
    RoleScores{7, -5, 2, -11, 4, 4},        // VeryLongText
    RoleScores{-3, -6, 1, 2, 1, 5},         // ManyWords
    RoleScores{-4, 2, 1, -3, 3, 0},         // SomeWords
    RoleScores{0, -2, 0, -1, -3, 6},        // EndsSentence
    RoleScores{3, -5, -2, -5, 7, 3},        // HoldsSentence
    RoleScores{-1, -15, -17, 30, -6, 9},    // EndsColon
    RoleScores{1, -1, 1, -1, 0, 1},         // NoteMark
    RoleScores{-1, -1, -6, 0, 7, 1},        // Numbered
    RoleScores{-1, -4, 4, 0, 2, -1},        // Address
    RoleScores{-2, -8, -15, -3, 24, 3},     // TotalWord
    RoleScores{9, -4, -4, -9, -1, 9},       // NoteWord
    RoleScores{2, -2, 1, -1, 0, 0},         // TitleWord
    RoleScores{-5, 20, -21, 5, 0, 0},       // UnitWord
    RoleScores{13, -3, -7, 0, -4, 1},       // InBrackets
    RoleScores{0, 27, -3, -9, -14, 0},      // BracketCells
    RoleScores{0, 12, 2, -6, -9, 1},        // SmallFirst
    RoleScores{1, -4, -13, 11, 5, -1},      // Capitals
    RoleScores{13, -6, -3, -3, 0, -2},      // Indented
    RoleScores{8, 9, -19, -7, 10, 0},       // LessIndented
    RoleScores{5, 0, -3, 0, -2, 0},         // CommentSign
    RoleScores{-10, 10, 5, 9, -7, -7},      // DistinctTexts
    RoleScores{5, 3, 17, -6, -14, -5},      // RepeatedTexts
    RoleScores{-4, 8, 2, 3, -4, -4},        // WordsOnly
    RoleScores{-5, 18, -6, 4, -7, -4},      // Identifiers
    RoleScores{6, -17, 9, -8, 13, -3},      // FoundAgain
    RoleScores{-10, 15, -7, 10, -4, -5},    // FoundNowhere
    RoleScores{-2, -2, -15, 8, 8, 2},       // OddOne
    RoleScores{-4, -2, -6, 1, 11, 0},       // OddMany
    RoleScores{1, -5, 3, -12, 19, -5},      // OddNone
    RoleScores{-6, 7, -2, 2, -1, 0},        // FirstLine
    RoleScores{-4, -6, 0, 6, 5, -1},        // SecondLine
    RoleScores{-14, 9, 6, 2, -2, -1},       // ThirdLine
    RoleScores{6, -5, 4, -8, 2, 2},         // LaterLine
    RoleScores{0, 0, 3, -5, -1, 3},         // LastLine
    RoleScores{4, 4, -6, -6, 7, -3},        // NearEnd
    RoleScores{2, 9, -12, -2, -1, 4},       // BlankBefore
    RoleScores{-7, -2, -11, 5, 13, 2},      // BlanksBefore
    RoleScores{18, 5, 3, -12, -7, -7},      // BlankBehind
    RoleScores{2, 0, -1, -2, 1, 1},         // RulerBefore
    RoleScores{4, 1, -3, -1, -1, 0},        // RulerBehind
    RoleScores{-10, -9, -9, 8, 17, 3},      // CommentBefore
    RoleScores{1, 2, 7, 0, -2, -8},         // Fits
    RoleScores{6, -5, 0, 1, -2, 0},         // BeforeBlock
    RoleScores{4, -5, -1, 0, 2, 0},         // FirstOfBlock
    RoleScores{1, -2, 1, -2, 1, 1},         // BehindBlock
    RoleScores{9, 7, -14, -6, 4, 0},        // BeforeFitting
    RoleScores{-2, 0, 2, -11, 1, 10},       // BehindFitting
    RoleScores{0, 0, 0, 0, 0, 0},           // FewFitBehind
    RoleScores{0, 14, 6, -14, -4, -1},      // NextFits
    RoleScores{-9, 4, -5, 6, 5, 0},         // RunBehind
    RoleScores{10, -14, -18, 19, 5, -1},    // TextSoon
    RoleScores{4, -6, 1, 4, -5, 2},         // LastFits
    RoleScores{0, 0, -39, 0, 40, -1},       // SumAbove
    RoleScores{0, -1, -57, 0, 58, 0},       // SumBelow
    RoleScores{-4, -19, 11, -9, 10, 11},    // LikeNext
    RoleScores{17, 2, 1, -5, -7, -8},       // LikeLast
    RoleScores{-2, 6, 0, -2, 0, -2},        // NextOneCell
    RoleScores{4, 4, -11, -9, 13, -1},      // NextKinds
    RoleScores{0, -4, -6, 9, 4, -3},        // NextConflicts
    RoleScores{3, 4, 3, -6, -2, -1},        // NextYears
    RoleScores{-18, 1, 5, 3, 8, 0},         // NextFirstEmpty
    RoleScores{8, 1, -3, -4, 3, -4},        // NextLongText
    RoleScores{11, -7, -2, 0, -1, -1},      // NextManyCells
    RoleScores{-3, 11, 0, -3, -2, -4},      // LastOneCell
    RoleScores{-2, 7, -8, 3, -5, 6},        // LastKinds
    RoleScores{12, -9, 4, -4, -5, 1},       // LastConflicts
    RoleScores{3, -6, 6, 0, 1, -4},         // LastYears
    RoleScores{-3, -9, 5, 4, 3, -1},        // LastFirstEmpty
    RoleScores{5, -2, 2, -8, 4, -1},        // LastLongText
    RoleScores{12, -26, 6, -3, 4, 7},       // LastManyCells
};

/// From each role to the next line.
inline constexpr std::array transitions{
    RoleScores{1, -3, 8, -7, -17, 0},  // title
    RoleScores{0, -8, -13, 4, 16, 0},  // names
    RoleScores{0, 0, 15, -5, -10, 2},  // data
    RoleScores{0, 0, 12, 5, 5, -5},    // group
    RoleScores{0, 0, -2, 3, 0, -5},    // total
    RoleScores{0, 0, 0, 0, 0, 5},      // note
};

/// From each role to the next line behind a blank one.
inline constexpr std::array transitions_over_blanks{
    RoleScores{7, 13, 2, -1, -1, 0},   // title
    RoleScores{0, -6, -6, 5, 12, 0},   // names
    RoleScores{0, 0, -2, 4, -3, 2},    // data
    RoleScores{0, 0, -2, -4, -11, 6},  // group
    RoleScores{0, 0, -3, -5, -1, 3},   // total
    RoleScores{0, 0, 0, 0, 0, -7},     // note
};

/// How many of a thousand tables are right at a margin; between two margins in proportion.
struct MarginShare {
  std::int32_t margin;
  std::int32_t right;
};

inline constexpr std::array margin_shares{
    MarginShare{3, 589},
    MarginShare{11, 753},
    MarginShare{20, 778},
    MarginShare{35, 908},
    MarginShare{48, 930},
    MarginShare{64, 981},
    MarginShare{76, 990},
    MarginShare{12345781, 999},
};

}  // namespace textimport::analysis
