// SPDX-License-Identifier: MIT
//
// The characters of a sample that a decision did not try as delimiters, for whoever explains it.
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "text_format_detection/detection/detection_report.hpp"
#include "text_format_detection/export.hpp"

namespace textio::detection {

/// Why a character was not tried as a delimiter.
enum class NotTried : std::uint8_t {
  DecimalMark,     ///< it is the decimal separator of the options
  ThousandsMark,   ///< it is the first code unit of their thousands separator
  NeverDelimiter,  ///< a quote, bracket, sign and the like, of which none is ever tried
  NotAscii,        ///< only ASCII characters are tried
  OutsideMiddle,   ///< it stands nowhere in the lines that candidates are taken from, if in any
};

/// A character of the sample that was not tried.
struct UntriedCharacter {
  char32_t character = 0;  ///< a code point, or a surrogate that stands alone
  NotTried why = NotTried::OutsideMiddle;
};

/// The distinct characters of a decision's sample, ascending, that no sampled strategy was
/// delimited by: of the whole sample up to its end mark, not only of the records that were read.
/// ASCII letters and digits, line feeds and carriage returns are left out. Where no candidates were
/// made of characters (see Reason), those that might have been are OutsideMiddle.
///
/// Linear in the sample; memory in its distinct characters. Throws std::bad_alloc.
[[nodiscard]] TFD_API std::vector<UntriedCharacter> untried_characters(
    std::u16string_view sample, DetectionReport const& report);

}  // namespace textio::detection
