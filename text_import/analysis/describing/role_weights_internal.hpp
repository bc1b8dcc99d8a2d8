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
    RoleScores{-1, 0, 2, 2, -3, -1},      // Always
    RoleScores{18, -16, -10, 7, -7, 8},   // OneCellFirst
    RoleScores{4, -1, -2, -3, 0, 2},      // OneCellOfTwo
    RoleScores{-2, 4, 3, -4, -1, 0},      // OneCellOther
    RoleScores{-4, 3, -3, 2, -1, 3},      // TwoCells
    RoleScores{-4, 3, 1, -1, 12, -11},    // AllCells
    RoleScores{-9, 3, 10, 0, -1, -3},     // MostCells
    RoleScores{-1, 3, 1, 0, -5, 2},       // FewCells
    RoleScores{0, 2, 11, 0, 2, -15},      // FilledLikeMost
    RoleScores{9, -3, -10, 1, -5, 8},     // FilledLess
    RoleScores{-8, 29, -11, -8, -1, -1},  // FirstEmpty
    RoleScores{-11, -2, 8, -2, 6, 1},     // Gaps
    RoleScores{-6, 7, -1, 0, 0, 0},       // ShortByOne
    RoleScores{9, -4, -2, -3, 0, 0},      // ShortRow
    RoleScores{5, -8, 1, -1, 0, 3},       // LongRow
    RoleScores{-8, 1, 7, 3, 0, -3},       // RegularRow
    RoleScores{-4, 4, 3, -1, 0, -1},      // RaggedRow
    RoleScores{-1, 7, -2, -5, 0, 1},      // Undivided
    RoleScores{0, -8, 1, 7, -2, 2},       // UndividedAligned
    RoleScores{-7, -5, 12, 6, 8, -13},    // KindsAll
    RoleScores{-2, 1, -1, 0, -3, 4},      // KindsMost
    RoleScores{1, 4, -3, -1, -1, 0},      // KindsSome
    RoleScores{6, -2, -1, -7, -5, 10},    // KindsNone
    RoleScores{1, 21, -18, -5, 0, 1},     // ConflictsAll
    RoleScores{0, 2, 0, -1, -1, 0},       // ConflictsMost
    RoleScores{-1, 4, -4, 0, -2, 4},      // ConflictsSome
    RoleScores{2, 2, -5, 5, -2, -1},      // UntypedTable
    RoleScores{-1, 2, -7, 3, 3, 1},       // MostlyTypedTable
    RoleScores{2, -7, 11, -4, -2, -1},    // NumberAmongTexts
    RoleScores{5, 4, -10, 2, -9, 7},      // NoNumbers
    RoleScores{3, -3, 4, 0, -3, -1},      // OneNumber
    RoleScores{-9, -2, 0, 0, 16, -6},     // MostlyNumbers
    RoleScores{-4, 27, -12, -5, -3, -4},  // AllYears
    RoleScores{2, 4, -6, 0, 0, 0},        // CountsUp
    RoleScores{0, -5, 15, -4, -3, -4},    // YearsAreUsual
    RoleScores{-2, -3, 5, 0, 0, 0},       // YearTexts
    RoleScores{-6, -9, 5, 1, 11, -2},     // Decimals
    RoleScores{2, -14, 12, -3, -3, 7},    // LongText
    RoleScores{8, -3, 1, -9, 0, 3},       // VeryLongText
    RoleScores{-1, -5, 6, -2, -5, 6},     // ManyWords
    RoleScores{-6, -3, 4, -2, 4, 2},      // SomeWords
    RoleScores{0, -2, -1, -2, 0, 4},      // EndsSentence
    RoleScores{5, -7, 1, -4, 2, 3},       // HoldsSentence
    RoleScores{-2, -11, -13, 21, -4, 8},  // EndsColon
    RoleScores{4, -2, -2, -2, 0, 1},      // NoteMark
    RoleScores{-1, -1, -4, 0, 0, 5},      // Numbered
    RoleScores{0, -3, 4, -1, 0, 0},       // Address
    RoleScores{0, -1, 4, 3, -11, 4},      // TotalWord
    RoleScores{-1, 0, 2, 2, -3, -1},      // NoteWord
    RoleScores{2, -2, 2, -1, 0, 0},       // TitleWord
    RoleScores{-4, 12, -19, 3, 7, 0},     // UnitWord
    RoleScores{8, -3, -6, 0, 0, 0},       // InBrackets
    RoleScores{-4, 18, -7, -1, -6, -1},   // BracketCells
    RoleScores{-1, 8, -1, -5, -1, 0},     // SmallFirst
    RoleScores{-1, -1, -3, 5, 1, 0},      // Capitals
    RoleScores{5, -1, -4, -5, 0, 5},      // Indented
    RoleScores{10, 4, -11, 1, 0, -4},     // LessIndented
    RoleScores{13, 3, -15, -1, 0, -1},    // CommentSign
    RoleScores{-11, 5, 1, 5, 4, -4},      // DistinctTexts
    RoleScores{-2, -1, 7, 1, 1, -6},      // RepeatedTexts
    RoleScores{0, 3, -4, 2, 5, -6},       // WordsOnly
    RoleScores{-3, 14, -10, 2, 2, -6},    // Identifiers
    RoleScores{13, -17, 8, -4, 4, -3},    // FoundAgain
    RoleScores{-7, 10, -6, 10, -4, -3},   // FoundNowhere
    RoleScores{-6, -2, -7, 13, -2, 4},    // OddOne
    RoleScores{0, 0, 0, 3, -2, 0},        // OddMany
    RoleScores{1, -3, 5, -9, 15, -8},     // OddNone
    RoleScores{-3, 8, -5, 3, -4, 0},      // FirstLine
    RoleScores{0, -4, 6, 0, -3, -1},      // SecondLine
    RoleScores{-12, 5, 2, -1, 8, -1},     // ThirdLine
    RoleScores{9, -9, 4, -6, -3, 5},      // LaterLine
    RoleScores{0, 0, 2, -3, -1, 2},       // LastLine
    RoleScores{-4, 6, 1, -3, -2, 1},      // NearEnd
    RoleScores{1, 3, -11, 2, 0, 3},       // BlankBefore
    RoleScores{-3, 1, -8, 2, 5, 2},       // BlanksBefore
    RoleScores{12, 5, 1, -11, -2, -5},    // BlankBehind
    RoleScores{1, 0, 1, -1, 0, 0},        // RulerBefore
    RoleScores{2, 2, -4, 0, 0, -1},       // RulerBehind
    RoleScores{1, -5, 4, 0, 0, 0},        // CommentBefore
    RoleScores{-7, 3, 8, 3, 2, -9},       // Fits
    RoleScores{4, 1, -3, 1, -2, -1},      // BeforeBlock
    RoleScores{-2, -2, 3, 5, -2, -1},     // FirstOfBlock
    RoleScores{2, -5, 2, -2, 0, 3},       // BehindBlock
    RoleScores{5, 0, -9, -2, 2, 4},       // BeforeFitting
    RoleScores{3, -6, 3, -10, 1, 10},     // BehindFitting
    RoleScores{0, 0, 0, 0, 0, 0},         // FewFitBehind
    RoleScores{3, 10, 1, -9, -3, -1},     // NextFits
    RoleScores{-6, 4, -6, 3, 5, 0},       // RunBehind
    RoleScores{-7, 1, 1, 7, -2, -1},      // TextSoon
    RoleScores{2, -4, 1, 5, -4, 1},       // LastFits
    RoleScores{0, 0, -10, 5, 8, -2},      // SumAbove
    RoleScores{1, 4, -25, 2, 20, -1},     // SumBelow
    RoleScores{-7, -20, 6, -4, 13, 13},   // LikeNext
    RoleScores{15, -1, -5, -2, 2, -10},   // LikeLast
    RoleScores{-2, 1, 0, -2, 5, -2},      // NextOneCell
    RoleScores{1, 1, -5, 1, 1, -1},       // NextKinds
    RoleScores{3, -3, 0, 5, -4, -2},      // NextConflicts
    RoleScores{3, 3, 4, -5, -3, -2},      // NextYears
    RoleScores{-11, 6, 13, -4, -2, -1},   // NextFirstEmpty
    RoleScores{7, 2, -7, -2, 4, -4},      // NextLongText
    RoleScores{6, -3, 3, -1, -4, -1},     // NextManyCells
    RoleScores{-9, 10, -2, 0, 5, -3},     // LastOneCell
    RoleScores{0, 6, -12, 2, 0, 4},       // LastKinds
    RoleScores{7, -5, 3, -6, 0, 1},       // LastConflicts
    RoleScores{1, -4, 10, 1, -3, -4},     // LastYears
    RoleScores{-2, -2, 1, 5, 0, -1},      // LastFirstEmpty
    RoleScores{7, -2, -1, -6, 2, 0},      // LastLongText
    RoleScores{8, -18, 0, -1, 6, 4},      // LastManyCells
};

/// From each role to the next line.
inline constexpr std::array transitions{
    RoleScores{0, -2, -4, -5, -2, 0},  // title
    RoleScores{0, -8, -2, 0, 5, 0},    // names
    RoleScores{0, 0, 14, -4, -3, -7},  // data
    RoleScores{0, 0, 7, 3, 11, -5},    // group
    RoleScores{0, 0, 3, 2, -9, 5},     // total
    RoleScores{0, 0, 0, 0, 0, 3},      // note
};

/// From each role to the next line behind a blank one.
inline constexpr std::array transitions_over_blanks{
    RoleScores{2, 12, -3, 2, 0, 0},   // title
    RoleScores{0, -10, 1, 5, 9, 0},   // names
    RoleScores{0, 0, -2, 2, -6, 6},   // data
    RoleScores{0, 0, -6, -2, -5, 3},  // group
    RoleScores{0, 0, 0, -4, 2, 0},    // total
    RoleScores{0, 0, 0, 0, 0, -6},    // note
};

/// How many of a thousand tables are right at a margin; between two margins in proportion.
struct MarginShare {
  std::int32_t margin;
  std::int32_t right;
};

inline constexpr std::array margin_shares{
    MarginShare{4, 563},  MarginShare{11, 728}, MarginShare{17, 816},
    MarginShare{25, 867}, MarginShare{33, 880}, MarginShare{42, 905},
    MarginShare{50, 968}, MarginShare{61, 985}, MarginShare{10352053, 999},
};

}  // namespace textimport::analysis
