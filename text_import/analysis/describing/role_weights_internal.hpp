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
    RoleScores{1, 4, 6, 1, -12, 0},         // Always
    RoleScores{18, -20, -14, 19, -12, 10},  // OneCellFirst
    RoleScores{-2, 6, -2, 2, -5, 1},        // OneCellOfTwo
    RoleScores{-2, 5, 3, -7, 0, 0},         // OneCellOther
    RoleScores{-7, 3, -2, 8, -6, 3},        // TwoCells
    RoleScores{-5, 13, 0, -15, 18, -11},    // AllCells
    RoleScores{-11, -2, 12, -3, 1, 3},      // MostCells
    RoleScores{9, -1, 9, -4, -9, -5},       // FewCells
    RoleScores{3, 10, 24, -20, -4, -13},    // FilledLikeMost
    RoleScores{10, -3, -15, 15, -15, 8},    // FilledLess
    RoleScores{-7, 28, -9, -4, -7, -1},     // FirstEmpty
    RoleScores{-21, 3, -2, 5, 15, 0},       // Gaps
    RoleScores{-10, 16, -2, -1, -1, -1},    // ShortByOne
    RoleScores{14, -4, -2, -7, -1, 0},      // ShortRow
    RoleScores{14, -10, 0, 0, -4, 0},       // LongRow
    RoleScores{-8, 4, 12, 0, -7, 0},        // RegularRow
    RoleScores{0, 8, 1, -4, -3, -2},        // RaggedRow
    RoleScores{0, 6, 0, -4, -2, 1},         // Undivided
    RoleScores{-8, -8, -1, 13, 3, 2},       // UndividedAligned
    RoleScores{-12, -2, 20, 5, 1, -13},     // KindsAll
    RoleScores{4, -1, -3, -1, -3, 5},       // KindsMost
    RoleScores{-1, 6, 0, -3, -3, 0},        // KindsSome
    RoleScores{10, -4, 4, -11, -12, 12},    // KindsNone
    RoleScores{2, 26, -26, -7, 1, 4},       // ConflictsAll
    RoleScores{0, 4, 0, -2, -1, 0},         // ConflictsMost
    RoleScores{3, 1, -3, -2, -5, 5},        // ConflictsSome
    RoleScores{-1, 5, -15, 10, 5, -3},      // UntypedTable
    RoleScores{-1, 1, -4, 3, -1, 2},        // MostlyTypedTable
    RoleScores{2, -10, 6, -8, 10, 0},       // NumberAmongTexts
    RoleScores{7, 6, -8, 12, -24, 7},       // NoNumbers
    RoleScores{-1, -2, 3, 1, 1, -2},        // OneNumber
    RoleScores{-2, -3, 4, -13, 18, -4},     // MostlyNumbers
    RoleScores{-3, 27, -7, -6, -7, -4},     // AllYears
    RoleScores{2, 8, -8, 0, -1, 0},         // CountsUp
    RoleScores{1, -6, 15, -5, -1, -4},      // YearsAreUsual
    RoleScores{0, 25, -19, -1, -5, 0},      // YearRow
    RoleScores{-3, -4, 7, 0, 0, 0},         // YearTexts
    RoleScores{-7, 1, 4, -5, 9, -2},        // Decimals
    RoleScores{0, -23, 10, -10, 13, 10},    // LongText
    RoleScores{6, -5, 2, -12, 5, 4},        // VeryLongText
    RoleScores{-4, -5, 1, 1, 1, 5},         // ManyWords
    RoleScores{-4, 3, 1, -3, 3, 0},         // SomeWords
    RoleScores{0, -2, 0, -1, -2, 6},        // EndsSentence
    RoleScores{2, -4, -2, -6, 7, 3},        // HoldsSentence
    RoleScores{-1, -15, -16, 29, -6, 9},    // EndsColon
    RoleScores{0, -2, 1, -1, 0, 1},         // NoteMark
    RoleScores{-2, 0, -6, -1, 8, 1},        // Numbered
    RoleScores{-1, -4, 3, 0, 3, -1},        // Address
    RoleScores{-2, -7, -16, -3, 25, 3},     // TotalWord
    RoleScores{9, -4, -4, -9, -2, 9},       // NoteWord
    RoleScores{2, -2, 1, -1, 0, 0},         // TitleWord
    RoleScores{-5, 21, -21, 5, 1, 0},       // UnitWord
    RoleScores{13, -3, -7, 1, -4, 1},       // InBrackets
    RoleScores{0, 27, -4, -8, -15, 0},      // BracketCells
    RoleScores{0, 12, 2, -6, -9, 1},        // SmallFirst
    RoleScores{3, -4, -14, 11, 6, -1},      // Capitals
    RoleScores{14, -6, -3, -6, 1, -2},      // Indented
    RoleScores{8, 9, -19, -7, 9, 0},        // LessIndented
    RoleScores{4, 0, -2, 1, -3, 0},         // CommentSign
    RoleScores{-10, 10, 5, 10, -6, -8},     // DistinctTexts
    RoleScores{4, 3, 16, -5, -13, -4},      // RepeatedTexts
    RoleScores{-4, 9, 1, 1, -4, -4},        // WordsOnly
    RoleScores{-4, 17, -6, 3, -6, -4},      // Identifiers
    RoleScores{9, -21, 9, -6, 12, -3},      // FoundAgain
    RoleScores{-10, 15, -7, 11, -4, -5},    // FoundNowhere
    RoleScores{-1, -2, -14, 7, 8, 2},       // OddOne
    RoleScores{-3, -3, -7, 4, 10, 0},       // OddMany
    RoleScores{1, -6, 4, -13, 19, -5},      // OddNone
    RoleScores{-6, 7, -2, 2, -1, 0},        // FirstLine
    RoleScores{-5, -4, -1, 5, 7, -1},       // SecondLine
    RoleScores{-13, 10, 6, 2, -3, -1},      // ThirdLine
    RoleScores{6, -5, 4, -8, 1, 2},         // LaterLine
    RoleScores{0, 0, 3, -5, -1, 3},         // LastLine
    RoleScores{4, 4, -7, -6, 8, -3},        // NearEnd
    RoleScores{3, 8, -12, -2, -1, 4},       // BlankBefore
    RoleScores{-7, 0, -12, 5, 13, 2},       // BlanksBefore
    RoleScores{17, 6, 3, -11, -7, -7},      // BlankBehind
    RoleScores{2, 0, -1, -2, 0, 1},         // RulerBefore
    RoleScores{4, 1, -3, -1, -1, 0},        // RulerBehind
    RoleScores{-8, -9, -8, 6, 16, 3},       // CommentBefore
    RoleScores{0, 2, 8, -1, 0, -9},         // Fits
    RoleScores{5, -3, -1, 1, -2, 0},        // BeforeBlock
    RoleScores{4, -5, -3, 0, 5, 0},         // FirstOfBlock
    RoleScores{1, -2, 1, -2, 1, 1},         // BehindBlock
    RoleScores{9, 7, -15, -4, 3, 0},        // BeforeFitting
    RoleScores{-2, 0, 2, -10, 1, 10},       // BehindFitting
    RoleScores{0, 0, 0, 0, 0, 0},           // FewFitBehind
    RoleScores{0, 13, 8, -15, -4, -1},      // NextFits
    RoleScores{-11, 6, -6, 6, 6, 0},        // RunBehind
    RoleScores{10, -14, -19, 16, 7, -1},    // TextSoon
    RoleScores{4, -5, 1, 4, -6, 3},         // LastFits
    RoleScores{0, 0, -40, 0, 41, -1},       // SumAbove
    RoleScores{0, -1, -59, 0, 60, 0},       // SumBelow
    RoleScores{-5, -20, 11, -10, 12, 11},   // LikeNext
    RoleScores{17, 1, 1, -5, -5, -9},       // LikeLast
    RoleScores{-3, 6, 1, -2, 0, -2},        // NextOneCell
    RoleScores{4, 3, -11, -9, 12, -1},      // NextKinds
    RoleScores{-1, -4, -5, 8, 5, -3},       // NextConflicts
    RoleScores{3, 5, 3, -7, -2, -2},        // NextYears
    RoleScores{-17, 2, 8, 4, 3, 0},         // NextFirstEmpty
    RoleScores{8, 1, -3, -3, 0, -3},        // NextLongText
    RoleScores{11, -7, -2, 1, -2, 0},       // NextManyCells
    RoleScores{-4, 12, -1, -2, -1, -4},     // LastOneCell
    RoleScores{-2, 6, -7, 3, -6, 6},        // LastKinds
    RoleScores{12, -10, 5, -5, -4, 2},      // LastConflicts
    RoleScores{3, -6, 3, -1, 5, -4},        // LastYears
    RoleScores{-3, -8, 6, 4, 2, -1},        // LastFirstEmpty
    RoleScores{7, -5, 2, -8, 5, -1},        // LastLongText
    RoleScores{13, -27, 6, -3, 4, 7},       // LastManyCells
};

/// From each role to the next line.
inline constexpr std::array transitions{
    RoleScores{0, -2, 9, -7, -17, 0},  // title
    RoleScores{0, -8, -14, 4, 15, 0},  // names
    RoleScores{0, 0, 14, -4, -10, 2},  // data
    RoleScores{0, 0, 13, 4, 5, -5},    // group
    RoleScores{0, 0, -4, 4, 1, -5},    // total
    RoleScores{0, 0, 0, 0, 0, 4},      // note
};

/// From each role to the next line behind a blank one.
inline constexpr std::array transitions_over_blanks{
    RoleScores{7, 13, 1, -1, -2, 0},   // title
    RoleScores{0, -6, -5, 5, 13, 0},   // names
    RoleScores{0, 0, -2, 4, -3, 2},    // data
    RoleScores{0, 0, -2, -4, -11, 6},  // group
    RoleScores{0, 0, -2, -6, -2, 3},   // total
    RoleScores{0, 0, 0, 0, 0, -7},     // note
};

/// How many of a thousand tables are right at a margin; between two margins in proportion.
struct MarginShare {
  std::int32_t margin;
  std::int32_t right;
};

inline constexpr std::array margin_shares{
    MarginShare{3, 589},  MarginShare{15, 736}, MarginShare{30, 905},
    MarginShare{43, 946}, MarginShare{66, 986}, MarginShare{10352065, 999},
};

}  // namespace textimport::analysis
