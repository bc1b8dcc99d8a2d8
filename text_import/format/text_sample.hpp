// SPDX-License-Identifier: MIT
//
// A text as it is handed to the analysis.
#pragma once

#include <string_view>

#include "text_import/format/format.hpp"

namespace textimport {

/// The head of a text, and what is known of where it comes from. It ends at its length or at its
/// first U+FFFF. A view: whoever makes it keeps the text alive.
struct TextSample {
  std::u16string_view text;
  /// The text goes on behind the sample: then its end says nothing of a footer.
  bool goes_on = false;
  SourceFormat source;
};

}  // namespace textimport
