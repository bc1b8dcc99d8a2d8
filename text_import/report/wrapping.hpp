// SPDX-License-Identifier: MIT
//
// Plain text broken into lines of a given width.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "text_import/export.hpp"

namespace textimport {

/// Breaks text at blanks; every line but the first begins with `indent` blanks, and the first one
/// begins `indent` cells into the line too, where the caller has written something. Ends with a
/// line feed. Words that are longer than a line are broken where it ends. `width` is larger than
/// `indent`; the text is UTF-8 that may be shown, as DisplayText holds it.
[[nodiscard]] TEXT_IMPORT_API std::string wrapped(std::string_view text, std::size_t indent,
                                                  std::size_t width);

/// Lines such as "  layout        delimited".
class TEXT_IMPORT_API FactLines {
 public:
  explicit FactLines(std::size_t const width) : width_(width) {}

  void add(std::string_view name, std::string_view value);

  [[nodiscard]] std::string& text() { return text_; }

  [[nodiscard]] std::size_t width() const { return width_; }

 private:
  std::size_t width_;
  std::string text_;
};

}  // namespace textimport
