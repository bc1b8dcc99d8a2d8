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
    RoleScores{-2, 7, 8, -1, -13, 1},      // Always
    RoleScores{18, -16, -11, 18, -17, 9},  // OneCellFirst
    RoleScores{8, -5, -4, -1, 1, 1},       // OneCellOfTwo
    RoleScores{-2, 1, 7, -5, 0, 0},        // OneCellOther
    RoleScores{-5, -1, 0, 7, -3, 3},       // TwoCells
    RoleScores{-5, 14, 1, -23, 22, -9},    // AllCells
    RoleScores{-5, 5, 6, 3, -5, -4},       // MostCells
    RoleScores{-3, 0, 9, 0, -9, 3},        // FewCells
    RoleScores{3, 7, 25, -16, -7, -12},    // FilledLikeMost
    RoleScores{13, 2, -15, 8, -17, 8},     // FilledLess
    RoleScores{-8, 29, -9, -3, -7, -2},    // FirstEmpty
    RoleScores{-16, -6, -3, 6, 19, 0},     // Gaps
    RoleScores{-6, 16, -9, 0, -1, 0},      // ShortByOne
    RoleScores{6, 16, -5, -15, -1, 0},     // ShortRow
    RoleScores{8, 3, -2, -2, -7, 1},       // LongRow
    RoleScores{2, 12, -2, -9, -5, 1},      // Undivided
    RoleScores{-1, -1, 1, 4, -4, 1},       // UndividedAligned
    RoleScores{-13, -1, 23, 1, 4, -15},    // KindsAll
    RoleScores{1, -1, -1, -3, -1, 5},      // KindsMost
    RoleScores{6, 11, -2, -3, -11, 0},     // KindsSome
    RoleScores{5, -2, 0, -5, -10, 13},     // KindsNone
    RoleScores{-3, 30, -28, -6, 4, 4},     // ConflictsAll
    RoleScores{6, 5, -1, -2, -9, 0},       // ConflictsMost
    RoleScores{1, 5, -2, -5, -3, 5},       // ConflictsSome
    RoleScores{-1, 0, -12, 10, 5, -3},     // UntypedTable
    RoleScores{2, 2, 0, 1, -8, 3},         // MostlyTypedTable
    RoleScores{-2, 7, -1, -7, 4, -1},      // NumberAmongTexts
    RoleScores{8, 6, -6, 11, -27, 9},      // NoNumbers
    RoleScores{-1, -1, 10, 0, -6, -3},     // OneNumber
    RoleScores{-7, 3, 4, -10, 15, -4},     // MostlyNumbers
    RoleScores{-4, 36, -11, -6, -10, -5},  // AllYears
    RoleScores{0, 6, -3, 0, -3, 0},        // CountsUp
    RoleScores{0, -10, 22, -5, -2, -5},    // YearsAreUsual
    RoleScores{-3, -6, 5, -6, 11, -2},     // Decimals
    RoleScores{-1, -19, 9, -6, 12, 5},     // LongText
    RoleScores{5, -4, 0, -9, 5, 4},        // VeryLongText
    RoleScores{0, -4, 3, -3, 0, 5},        // ManyWords
    RoleScores{-6, -6, 5, -3, 7, 2},       // SomeWords
    RoleScores{-2, -3, 0, -1, 1, 6},       // EndsSentence
    RoleScores{4, -7, 2, -6, 4, 3},        // HoldsSentence
    RoleScores{-1, -14, -17, 30, -5, 9},   // EndsColon
    RoleScores{3, -2, 0, -1, -1, 2},       // NoteMark
    RoleScores{3, -1, -11, -2, 3, 8},      // Numbered
    RoleScores{-2, -5, 7, -1, 2, 0},       // Address
    RoleScores{0, -8, -13, -6, 25, 3},     // TotalWord
    RoleScores{8, -2, -6, -7, -2, 9},      // NoteWord
    RoleScores{3, -3, 0, -1, 0, 0},        // TitleWord
    RoleScores{-3, 21, -22, 6, -1, 0},     // UnitWord
    RoleScores{11, 0, -7, 0, -5, 0},       // InBrackets
    RoleScores{-7, 14, 2, -5, -4, 0},      // SmallFirst
    RoleScores{-9, 0, -26, 12, 25, -2},    // Capitals
    RoleScores{1, -3, -1, -5, 3, 4},       // Indented
    RoleScores{8, 7, -15, -11, 15, -3},    // LessIndented
    RoleScores{22, -2, -16, 0, -4, 0},     // CommentSign
    RoleScores{-12, 8, 4, 16, -9, -7},     // DistinctTexts
    RoleScores{-9, 2, 25, -5, -8, -4},     // RepeatedTexts
    RoleScores{-8, 10, 4, -4, 1, -3},      // WordsOnly
    RoleScores{-3, 19, -4, 0, -8, -4},     // Identifiers
    RoleScores{23, -29, 5, -5, 8, -3},     // FoundAgain
    RoleScores{-6, 16, -11, 13, -7, -4},   // FoundNowhere
    RoleScores{-10, -6, -12, 10, 15, 3},   // OddOne
    RoleScores{2, -7, -10, 9, 6, 0},       // OddMany
    RoleScores{1, -10, 5, -16, 25, -5},    // OddNone
    RoleScores{-1, 3, -7, 4, 0, 0},        // FirstLine
    RoleScores{5, -9, 1, 9, -4, -1},       // SecondLine
    RoleScores{-7, -1, 3, 4, 1, -1},       // ThirdLine
    RoleScores{0, 0, 5, -4, -3, 3},        // LastLine
    RoleScores{-1, 6, 0, -9, 5, -1},       // NearEnd
    RoleScores{0, 11, -10, -4, -3, 5},     // BlankBefore
    RoleScores{-5, 2, -13, 5, 10, 2},      // BlanksBefore
    RoleScores{16, 7, 4, -15, -6, -6},     // BlankBehind
    RoleScores{0, 0, 0, 0, -1, 1},         // RulerBefore
    RoleScores{6, 4, -1, -4, -5, 0},       // RulerBehind
    RoleScores{-1, -4, 8, 1, -3, 1},       // CommentBefore
    RoleScores{-5, 7, 7, -3, 2, -8},       // Fits
    RoleScores{8, -1, -14, 0, 5, 1},       // BeforeFitting
    RoleScores{-1, -11, 8, -10, 4, 9},     // BehindFitting
    RoleScores{0, 0, 0, 0, 0, 0},          // FewFitBehind
    RoleScores{0, 14, 5, -12, -5, -1},     // NextFits
    RoleScores{2, -7, 2, 6, -6, 3},        // LastFits
    RoleScores{-1, -1, -33, 6, 34, -4},    // SumAbove
    RoleScores{-3, 0, -57, 3, 59, -2},     // SumBelow
    RoleScores{-4, -22, 8, -5, 13, 10},    // LikeNext
    RoleScores{18, 4, 4, -13, -4, -9},     // LikeLast
    RoleScores{-8, -3, 6, 1, 5, -2},       // NextOneCell
    RoleScores{3, 1, -9, -8, 14, -1},      // NextKinds
    RoleScores{-3, 1, -7, 8, 3, -3},       // NextConflicts
    RoleScores{0, 11, 5, -7, -8, -2},      // NextYears
    RoleScores{-13, -1, 9, 0, 6, -1},      // NextFirstEmpty
    RoleScores{7, 3, -8, 2, -4, -1},       // NextLongText
    RoleScores{8, 0, -3, 0, -6, 0},        // NextManyCells
    RoleScores{-7, 11, -3, 6, -4, -3},     // LastOneCell
    RoleScores{-4, 10, -10, 2, -4, 6},     // LastKinds
    RoleScores{12, -4, 1, -7, -5, 2},      // LastConflicts
    RoleScores{1, -9, 6, 0, 7, -5},        // LastYears
    RoleScores{-4, -4, 5, 2, 3, -1},       // LastFirstEmpty
    RoleScores{4, -3, 1, -3, 4, -2},       // LastLongText
    RoleScores{5, -15, 5, -5, 3, 6},       // LastManyCells
};

/// From each role to the next line.
inline constexpr std::array transitions{
    RoleScores{-2, -2, -1, -6, -8, 0},  // title
    RoleScores{0, -3, -8, 6, 9, 0},     // names
    RoleScores{0, 0, 18, -6, -14, -2},  // data
    RoleScores{0, 0, 16, 4, 5, -6},     // group
    RoleScores{0, 0, 0, 0, -3, -1},     // total
    RoleScores{0, 0, 0, 0, 0, 5},       // note
};

/// From each role to the next line behind a blank one.
inline constexpr std::array transitions_over_blanks{
    RoleScores{1, 20, -8, -1, 6, 0},   // title
    RoleScores{0, -10, -5, 8, 10, 0},  // names
    RoleScores{0, 0, 1, 0, -1, 6},     // data
    RoleScores{0, 0, 0, -5, -15, 5},   // group
    RoleScores{0, 0, 2, -5, -4, 1},    // total
    RoleScores{0, 0, 0, 0, 0, -7},     // note
};

/// How many of a thousand tables are right at a margin; between two margins in proportion.
struct MarginShare {
  std::int32_t margin;
  std::int32_t right;
};

inline constexpr std::array margin_shares{
    MarginShare{3, 551},
    MarginShare{10, 627},
    MarginShare{18, 816},
    MarginShare{32, 857},
    MarginShare{46, 918},
    MarginShare{56, 968},
    MarginShare{75, 981},
    MarginShare{98, 981},
    MarginShare{20080433, 998},
};

}  // namespace textimport::analysis
