// SPDX-License-Identifier: MIT
//
// What speaks for or against a line being a title, a row of names, data ... Each feature is there
// or not; the weights say how much it means for each role.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

#include "text_import/analysis/describing/table_lines_internal.hpp"

namespace textimport::analysis {

// The list of all features: the name, which the tables of weights know it by, and what it says of a
// line. New ones may stand anywhere; tools/fit_roles makes the weights anew.
#define TFD_LINE_FEATURES(X)                                                        \
  X(Always, "")                                                                     \
  X(OneCellFirst, "only its first cell is filled")                                  \
  X(OneCellOfTwo, "only one of two cells is filled")                                \
  X(OneCellOther, "one cell is filled, and it is not the first")                    \
  X(TwoCells, "two cells are filled")                                               \
  X(AllCells, "all cells are filled")                                               \
  X(MostCells, "most cells are filled")                                             \
  X(FewCells, "few cells are filled")                                               \
  X(FilledLikeMost, "as many cells are filled as in most lines")                    \
  X(FilledLess, "fewer cells are filled than in most lines")                        \
  X(FirstEmpty, "the first cell is empty")                                          \
  X(Gaps, "empty cells stand between filled ones")                                  \
  X(ShortByOne, "it has one cell less than the table has columns")                  \
  X(ShortRow, "it has fewer cells than the table has columns")                      \
  X(LongRow, "it has more cells than the table has columns")                        \
  X(RegularRow, "it has as many cells as the table has columns")                    \
  X(RaggedRow, "lines of another length are frequent here")                         \
  X(Undivided, "nothing divides it into cells")                                     \
  X(UndividedAligned, "it does not fit columns that are lined up")                  \
  X(KindsAll, "its values are of the kinds that the columns hold")                  \
  X(KindsMost, "most values are of the kinds that the columns hold")                \
  X(KindsSome, "some values are of the kinds that the columns hold")                \
  X(KindsNone, "no value is of the kind that its column holds")                     \
  X(ConflictsAll, "all values are of another kind than their columns hold")         \
  X(ConflictsMost, "most values are of another kind than their columns hold")       \
  X(ConflictsSome, "some values are of another kind than their columns hold")       \
  X(UntypedTable, "no column holds numbers or dates")                               \
  X(MostlyTypedTable, "most columns hold numbers or dates")                         \
  X(NumberAmongTexts, "a number stands where the column holds texts")               \
  X(NoNumbers, "it holds no number")                                                \
  X(OneNumber, "it holds one number")                                               \
  X(MostlyNumbers, "most of its cells are numbers")                                 \
  X(AllYears, "its numbers are years")                                              \
  X(CountsUp, "its numbers count up")                                               \
  X(YearsAreUsual, "years stand in its columns elsewhere too")                      \
  X(YearRow, "its numbers are years, and others of the columns are not")            \
  X(YearTexts, "several of its texts hold a year")                                  \
  X(Decimals, "a number has decimals")                                              \
  X(LongText, "it holds a long text")                                               \
  X(VeryLongText, "it holds a very long text")                                      \
  X(ManyWords, "its first text has many words")                                     \
  X(SomeWords, "its first text has several words")                                  \
  X(EndsSentence, "its first text ends like a sentence")                            \
  X(HoldsSentence, "it holds the end of a sentence")                                \
  X(EndsColon, "its first text ends in a colon")                                    \
  X(NoteMark, "it begins with the mark of a footnote")                              \
  X(Numbered, "it begins with a number and a text")                                 \
  X(Address, "it holds an address of the web")                                      \
  X(TotalWord, "it begins with a word for a sum")                                   \
  X(NoteWord, "it begins with a word for a note or a source")                       \
  X(TitleWord, "it begins with a word for a table")                                 \
  X(UnitWord, "a cell begins with the word for a unit")                             \
  X(InBrackets, "it stands in brackets")                                            \
  X(BracketCells, "most of its cells stand in brackets")                            \
  X(SmallFirst, "it begins with a small letter")                                    \
  X(Capitals, "its first text is in capitals")                                      \
  X(Indented, "its first cell is indented")                                         \
  X(LessIndented, "it is less indented than the line behind it")                    \
  X(CommentSign, "it begins like a comment")                                        \
  X(DistinctTexts, "its texts are all different")                                   \
  X(RepeatedTexts, "a text stands in it twice")                                     \
  X(WordsOnly, "its texts are single words")                                        \
  X(Identifiers, "its texts look like identifiers")                                 \
  X(FoundAgain, "texts of it stand again in the same columns")                      \
  X(FoundNowhere, "texts of it stand nowhere else though others of the columns do") \
  X(OddOne, "one text is unlike the others of its column")                          \
  X(OddMany, "texts are unlike the others of their columns")                        \
  X(OddNone, "its texts are like the others of their columns")                      \
  X(FirstLine, "it is the first line")                                              \
  X(SecondLine, "it is the second line")                                            \
  X(ThirdLine, "it is one of the next lines")                                       \
  X(LaterLine, "many lines stand before it")                                        \
  X(LastLine, "it is the last line")                                                \
  X(NearEnd, "it is one of the last lines")                                         \
  X(BlankBefore, "a blank line stands before it")                                   \
  X(BlanksBefore, "several blank lines stand before it")                            \
  X(BlankBehind, "a blank line stands behind it")                                   \
  X(RulerBefore, "a ruler stands before it")                                        \
  X(RulerBehind, "a ruler stands behind it")                                        \
  X(CommentBefore, "a comment stands before it")                                    \
  X(Fits, "it fits the columns")                                                    \
  X(BeforeBlock, "it stands before the regular lines")                              \
  X(FirstOfBlock, "it is the first of the regular lines")                           \
  X(BehindBlock, "it stands behind the regular lines")                              \
  X(BeforeFitting, "no line before it fits the columns")                            \
  X(BehindFitting, "no line behind it fits the columns")                            \
  X(FewFitBehind, "few lines behind it fit the columns")                            \
  X(NextFits, "the line behind it fits the columns")                                \
  X(RunBehind, "the next lines all fit the columns")                                \
  X(TextSoon, "a line that is not divided follows soon")                            \
  X(LastFits, "the line before it fits the columns")                                \
  X(SumAbove, "it is the sum of lines above it")                                    \
  X(SumBelow, "it is the sum of lines below it")                                    \
  X(LikeNext, "its cells are of the same kinds as those of the line behind it")     \
  X(LikeLast, "its cells are of the same kinds as those of the line before it")     \
  X(NextOneCell, "the line behind it has one filled cell")                          \
  X(NextKinds, "the values behind it are of the kinds that the columns hold")       \
  X(NextConflicts, "the values behind it are of other kinds than the columns hold") \
  X(NextYears, "the line behind it holds years")                                    \
  X(NextFirstEmpty, "the first cell of the line behind it is empty")                \
  X(NextLongText, "the line behind it holds a long text")                           \
  X(NextManyCells, "the line behind it is filled like most")                        \
  X(LastOneCell, "the line before it has one filled cell")                          \
  X(LastKinds, "the values before it are of the kinds that the columns hold")       \
  X(LastConflicts, "the values before it are of other kinds than the columns hold") \
  X(LastYears, "the line before it holds years")                                    \
  X(LastFirstEmpty, "the first cell of the line before it is empty")                \
  X(LastLongText, "the line before it holds a long text")                           \
  X(LastManyCells, "the line before it is filled like most")

enum class LineFeature : std::uint8_t {
#define TFD_FEATURE_NAME(name, sentence) name,
  TFD_LINE_FEATURES(TFD_FEATURE_NAME)
#undef TFD_FEATURE_NAME
};

struct FeatureText {
  std::string_view name;
  std::string_view sentence;
};

inline constexpr std::array feature_texts{
#define TFD_FEATURE_TEXT(name, sentence) FeatureText{#name, sentence},
    TFD_LINE_FEATURES(TFD_FEATURE_TEXT)
#undef TFD_FEATURE_TEXT
};

inline constexpr std::size_t num_line_features = feature_texts.size();

/// A line that holds something, with what speaks of it.
struct JudgedLine {
  std::size_t position = 0;  ///< among all lines of the table
  bool blank_before = false;
  std::vector<LineFeature> features;
};

/// The lines that hold something and are neither rulers nor comments, in order. `sees_end`: the
/// last of them is the last of the text. Linear in the cells.
[[nodiscard]] std::vector<JudgedLine> judge_lines(TableLines const& lines, bool sees_end);

}  // namespace textimport::analysis
