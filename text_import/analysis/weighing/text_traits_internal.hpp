// SPDX-License-Identifier: MIT
//
// What a text is like before anybody splits it: prose, a log, settings, markup, a program, numbers.
#pragma once

#include "text_import/analysis/lines/line_index.hpp"

namespace textimport::analysis {

/// Shares are of the first lines that are not blank, but where a comment says otherwise.
struct TextTraits {
  double sentence_ends = 0;      ///< lines that end as sentences do
  double function_words = 0;     ///< of the words: articles, prepositions and the like
  double number_words = 0;       ///< of the words: those that are numbers
  double time_stamps = 0;        ///< lines that begin with a date or a time of day
  double colon_keys = 0;         ///< lines that begin with "name: "
  double equals_keys = 0;        ///< lines that begin with "name ="
  double tags = 0;               ///< lines with a tag of markup
  double code_ends = 0;          ///< lines that end or begin as those of programs do
  double indented = 0;           ///< lines that begin with a blank
  double blank_lines = 0;        ///< of all lines
  double letters = 0;            ///< of the characters
  double digits = 0;             ///< of the characters
  double wide_gaps = 0;          ///< lines with two blanks side by side between words
  double comma_blanks = 0;       ///< of the commas: those with a blank behind them
  double prose_lines = 0;        ///< lines of six words and more, most of them of small letters
  double patterns = 0;           ///< different patterns of signs, as a share of the lines
  double length_spread = 0;      ///< the standard deviation of the lengths over their mean, up to 3
  double words_spread = 0;       ///< the same of the words a line
  double words_a_line = 0;       ///< the mean
  double addresses = 0;          ///< lines with "://" or that begin with a slash
  double log_lines = 0;          ///< lines with a time stamp at the beginning and prose behind it
  double log_levels = 0;         ///< lines with a word such as INFO or ERROR
  double single_values = 0;      ///< lines that are one number, date or time as a whole
  double leaders = 0;            ///< lines with four points in a row
  double pair_words = 0;         ///< of the words: "name=value"
  std::size_t filled_lines = 0;  ///< lines that are not blank, of those looked at
};

/// Linear in the lines that are looked at, of which there are at most 60.
[[nodiscard]] TextTraits find_text_traits(LineIndex const& lines);

}  // namespace textimport::analysis
