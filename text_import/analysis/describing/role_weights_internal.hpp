// SPDX-License-Identifier: MIT
//
// What each feature of a line says for each role, in sixteenths, and each step from one role to the
// next. Made by tools/fit_roles; changes by hand get lost.
#pragma once

#include <array>

#include "text_import/analysis/describing/role_sequence_internal.hpp"

namespace textimport::analysis {

/// In the order of the features: title, names, data, group, total, note.
inline constexpr std::array role_weights{
    RoleScores{3, 4, 5, -1, -11, 0},        // Always
    RoleScores{17, -19, -10, 17, -16, 11},  // OneCellFirst
    RoleScores{6, -5, -2, 3, -1, 0},        // OneCellOfTwo
    RoleScores{-1, 4, 5, -7, 0, 0},         // OneCellOther
    RoleScores{-6, 0, 0, 6, -3, 4},         // TwoCells
    RoleScores{-3, 13, 1, -21, 21, -10},    // AllCells
    RoleScores{-6, 4, 5, 5, -4, -4},        // MostCells
    RoleScores{1, 1, 5, 2, -10, 2},         // FewCells
    RoleScores{7, 5, 22, -15, -5, -13},     // FilledLikeMost
    RoleScores{15, -3, -16, 10, -15, 9},    // FilledLess
    RoleScores{-6, 34, -15, -1, -9, -3},    // FirstEmpty
    RoleScores{-18, -5, 0, 6, 18, -1},      // Gaps
    RoleScores{-7, 11, -3, 0, 0, -1},       // ShortByOne
    RoleScores{11, -2, 1, -10, 0, 0},       // ShortRow
    RoleScores{16, -15, 0, 4, -6, 1},       // LongRow
    RoleScores{-10, -2, 9, 6, -2, -1},      // RegularRow
    RoleScores{-1, 4, 2, -3, 0, -1},        // RaggedRow
    RoleScores{0, 11, -2, -8, -2, 1},       // Undivided
    RoleScores{-2, -4, -3, 13, -5, 1},      // UndividedAligned
    RoleScores{-12, 2, 23, 0, 2, -15},      // KindsAll
    RoleScores{7, 0, -4, -4, -3, 4},        // KindsMost
    RoleScores{2, 5, 1, -2, -5, 0},         // KindsSome
    RoleScores{6, -3, 0, -8, -8, 13},       // KindsNone
    RoleScores{-1, 27, -28, -7, 6, 3},      // ConflictsAll
    RoleScores{3, 3, -1, -2, -3, 0},        // ConflictsMost
    RoleScores{5, 1, -2, -4, -5, 4},        // ConflictsSome
    RoleScores{1, 1, -15, 12, 3, -2},       // UntypedTable
    RoleScores{7, 2, -9, 4, -6, 2},         // MostlyTypedTable
    RoleScores{0, -9, 7, -6, 7, 0},         // NumberAmongTexts
    RoleScores{8, 5, -8, 11, -25, 9},       // NoNumbers
    RoleScores{-3, -2, 10, 1, -3, -3},      // OneNumber
    RoleScores{-1, -3, 2, -11, 19, -5},     // MostlyNumbers
    RoleScores{-4, 35, -10, -7, -9, -5},    // AllYears
    RoleScores{1, 7, -5, -1, -2, 0},        // CountsUp
    RoleScores{0, -7, 20, -5, -3, -5},      // YearsAreUsual
    RoleScores{-3, -4, 2, 5, 0, 0},         // YearTexts
    RoleScores{-3, -3, 5, -7, 10, -3},      // Decimals
    RoleScores{-2, -21, 10, -5, 12, 6},     // LongText
    RoleScores{5, -4, -1, -9, 5, 5},        // VeryLongText
    RoleScores{-1, -5, 3, -2, 1, 4},        // ManyWords
    RoleScores{-8, -4, 4, -1, 7, 2},        // SomeWords
    RoleScores{-2, -2, 0, 0, -2, 6},        // EndsSentence
    RoleScores{5, -8, 2, -7, 5, 3},         // HoldsSentence
    RoleScores{0, -16, -18, 30, -5, 9},     // EndsColon
    RoleScores{5, -2, 0, -4, -1, 1},        // NoteMark
    RoleScores{3, -1, -8, -6, 5, 7},        // Numbered
    RoleScores{-1, -4, 4, 0, 1, 0},         // Address
    RoleScores{0, -6, -14, -6, 24, 2},      // TotalWord
    RoleScores{3, 4, 5, -1, -11, 0},        // NoteWord
    RoleScores{2, -2, 0, 0, 0, 0},          // TitleWord
    RoleScores{-4, 19, -20, 4, 2, 0},       // UnitWord
    RoleScores{10, -2, -4, 0, -4, 0},       // InBrackets
    RoleScores{0, 26, -3, -5, -17, 0},      // BracketCells
    RoleScores{-3, 12, 3, -4, -8, 0},       // SmallFirst
    RoleScores{-6, -4, -15, 18, 8, -1},     // Capitals
    RoleScores{1, -3, -1, -1, 2, 3},        // Indented
    RoleScores{8, 6, -16, -8, 14, -4},      // LessIndented
    RoleScores{23, 0, -19, -3, -2, 0},      // CommentSign
    RoleScores{-11, 8, 5, 14, -9, -6},      // DistinctTexts
    RoleScores{-5, 1, 22, -3, -10, -6},     // RepeatedTexts
    RoleScores{3, 7, 1, -4, -2, -4},        // WordsOnly
    RoleScores{-2, 21, -6, -2, -6, -5},     // Identifiers
    RoleScores{21, -24, 5, -8, 9, -3},      // FoundAgain
    RoleScores{-3, 16, -10, 11, -8, -5},    // FoundNowhere
    RoleScores{-6, 0, -13, 5, 12, 2},       // OddOne
    RoleScores{-4, -3, -10, 9, 9, 0},       // OddMany
    RoleScores{2, -4, 4, -19, 22, -5},      // OddNone
    RoleScores{2, 9, -2, -1, -8, 0},        // FirstLine
    RoleScores{1, -7, -3, 7, 3, -1},        // SecondLine
    RoleScores{-11, 6, 5, 2, -1, -1},       // ThirdLine
    RoleScores{3, -10, 4, -5, 0, 6},        // LaterLine
    RoleScores{0, 0, 3, -5, -1, 3},         // LastLine
    RoleScores{-4, 4, -3, -5, 9, -1},       // NearEnd
    RoleScores{2, 8, -10, -5, -1, 7},       // BlankBefore
    RoleScores{-4, 0, -14, 4, 10, 3},       // BlanksBefore
    RoleScores{16, 6, 6, -16, -6, -7},      // BlankBehind
    RoleScores{0, -1, 0, 0, -1, 1},         // RulerBefore
    RoleScores{5, 1, -1, -4, -1, 0},        // RulerBehind
    RoleScores{0, -5, 8, 0, -3, 1},         // CommentBefore
    RoleScores{-5, 5, 8, -3, 2, -8},        // Fits
    RoleScores{3, 2, 7, -10, -1, 0},        // BeforeBlock
    RoleScores{-8, -2, 3, 3, 4, 0},         // FirstOfBlock
    RoleScores{5, -6, 0, 5, -3, 1},         // BehindBlock
    RoleScores{6, 5, -14, 0, 2, 1},         // BeforeFitting
    RoleScores{-4, -7, 6, -7, 2, 9},        // BehindFitting
    RoleScores{0, 0, 0, 0, 0, 0},           // FewFitBehind
    RoleScores{0, 11, 8, -13, -5, -1},      // NextFits
    RoleScores{-6, 6, -9, 5, 3, 0},         // RunBehind
    RoleScores{-10, 3, -6, 13, 2, -2},      // TextSoon
    RoleScores{-2, -4, 2, 5, -5, 4},        // LastFits
    RoleScores{0, -1, -37, 6, 38, -4},      // SumAbove
    RoleScores{-3, 1, -58, 3, 59, -2},      // SumBelow
    RoleScores{-4, -20, 9, -7, 10, 11},     // LikeNext
    RoleScores{18, 2, 4, -11, -4, -8},      // LikeLast
    RoleScores{-6, 1, 3, 1, 4, -2},         // NextOneCell
    RoleScores{4, 1, -10, -7, 12, -1},      // NextKinds
    RoleScores{3, -4, -8, 7, 5, -3},        // NextConflicts
    RoleScores{3, 6, 6, -7, -5, -2},        // NextYears
    RoleScores{-14, 5, 8, -1, 3, -2},       // NextFirstEmpty
    RoleScores{7, 3, -7, 2, -3, -2},        // NextLongText
    RoleScores{9, -2, -2, -2, -3, 0},       // NextManyCells
    RoleScores{-10, 12, -1, 4, 0, -4},      // LastOneCell
    RoleScores{-4, 12, -10, 3, -7, 6},      // LastKinds
    RoleScores{12, -9, 4, -6, -3, 1},       // LastConflicts
    RoleScores{2, -10, 5, 1, 7, -5},        // LastYears
    RoleScores{-2, -3, 4, 1, 2, -2},        // LastFirstEmpty
    RoleScores{3, -1, 0, -3, 4, -3},        // LastLongText
    RoleScores{7, -21, 8, -7, 6, 6},        // LastManyCells
};

/// From each role to the next line.
inline constexpr std::array transitions{
    RoleScores{-1, -4, -2, 0, -6, 0},   // title
    RoleScores{0, -8, -9, 4, 11, 0},    // names
    RoleScores{0, 0, 16, -7, -12, -2},  // data
    RoleScores{0, 0, 14, 9, 6, -9},     // group
    RoleScores{0, 0, -2, -1, -1, -1},   // total
    RoleScores{0, 0, 0, 0, 0, 5},       // note
};

/// From each role to the next line behind a blank one.
inline constexpr std::array transitions_over_blanks{
    RoleScores{2, 17, -7, 3, 2, 0},    // title
    RoleScores{0, -10, -2, 5, 14, 0},  // names
    RoleScores{0, 0, -1, -1, 0, 8},    // data
    RoleScores{0, 0, 0, -6, -14, 5},   // group
    RoleScores{0, 0, 0, -5, -2, 2},    // total
    RoleScores{0, 0, 0, 0, 0, -7},     // note
};

/// How many of a thousand tables are right at a margin; between two margins in proportion.
struct MarginShare {
  std::int32_t margin;
  std::int32_t right;
};

inline constexpr std::array margin_shares{
    MarginShare{4, 690},
    MarginShare{12, 703},
    MarginShare{20, 816},
    MarginShare{38, 917},
    MarginShare{66, 986},
    MarginShare{92, 995},
    MarginShare{29239876, 997},
};

}  // namespace textimport::analysis
