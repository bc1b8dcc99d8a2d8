// SPDX-License-Identifier: MIT
//
// How a report is to look, and what it is about. Nothing here knows a terminal: whoever does says
// how wide it is and whether it shows colours.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace textimport {

/// Marks for headings; empty where no colour is wanted.
struct Colors {
  std::string_view heading;
  std::string_view faint;
  std::string_view reset;
};

struct ReportStyle {
  std::size_t width = 80;  ///< cells a line, at least 40
  std::size_t rows = 5;    ///< data rows to show
  Colors colors;
};

/// The text that a report is about, as far as the analysis does not know it.
struct ReportSubject {
  std::string path;  ///< as it was given, "-" for standard input
  /// The test that found the encoding, as a word and as half a sentence.
  std::string encoding_reason;
  std::string encoding_explanation;
  bool encoding_is_guess = false;
  /// What a reader should know of the text beside the answer, in sentences: damage, replaced bytes.
  std::vector<std::string> notes;
};

}  // namespace textimport
