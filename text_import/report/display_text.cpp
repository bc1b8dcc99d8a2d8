// SPDX-License-Identifier: MIT

#include "text_import/report/display_text.hpp"

#include <algorithm>
#include <cstdint>

#include <fmt/format.h>

#include "text_import/format/utf.hpp"
#include "text_import/report/character_cells_internal.hpp"

namespace textimport {

namespace {

constexpr std::string_view ellipsis = "...";

std::string escape(char32_t const c) {
  switch (c) {
    case '\t':
      return "\\t";
    case '\n':
      return "\\n";
    case '\r':
      return "\\r";
    case 0:
      return "\\0";
    default:
      break;
  }
  auto const value = static_cast<std::uint32_t>(c);
  if (value <= 0xFF) {
    return fmt::format("\\x{:02x}", value);
  }
  return value <= 0xFFFF ? fmt::format("\\u{:04x}", value) : fmt::format("\\U{:08x}", value);
}

/// Takes pieces of shown text and stops where they no longer fit.
class Shown {
 public:
  explicit Shown(std::size_t const max_cells) : max_cells_(max_cells) {}

  /// False when the text is full.
  bool add(char32_t const c) {
    auto const cells = reporting::cells_of(c);
    if (!cells) {
      return add(escape(c));
    }
    std::string bytes;
    append_utf8(bytes, c);
    return add(bytes, *cells);
  }

  bool add(std::string const& piece) { return add(piece, piece.size()); }

  [[nodiscard]] DisplayText take() { return std::move(text_); }

 private:
  bool add(std::string const& piece, std::size_t const cells) {
    if (cells > max_cells_ - text_.cells) {
      text_.utf8.resize(cut_);
      text_.utf8 += ellipsis;
      text_.cells = cut_cells_ + ellipsis.size();
      return false;
    }
    text_.utf8 += piece;
    text_.cells += cells;
    if (text_.cells <= max_cells_ - ellipsis.size()) {
      cut_ = text_.utf8.size();
      cut_cells_ = text_.cells;
    }
    return true;
  }

  std::size_t max_cells_;
  DisplayText text_;
  std::size_t cut_ = 0;  // where the dots would stand
  std::size_t cut_cells_ = 0;
};

}  // namespace

DisplayText display_text(std::u16string_view const text, std::size_t const max_cells) {
  Shown shown(max_cells);
  for (std::size_t pos = 0; pos < text.size();) {
    if (!shown.add(next_character(text, pos))) {
      break;
    }
  }
  return shown.take();
}

DisplayText display_bytes(std::string_view bytes, std::size_t const max_cells) {
  constexpr std::size_t longest = 4;  // bytes of a character
  Shown shown(max_cells);
  for (bool room = true; room && !bytes.empty();) {
    std::size_t length = 1;
    auto character = from_utf8(bytes.substr(0, length));
    while (!character && length < std::min(longest, bytes.size())) {
      character = from_utf8(bytes.substr(0, ++length));
    }
    if (character) {
      std::size_t pos = 0;
      room = shown.add(next_character(*character, pos));
    } else {
      length = 1;
      room = shown.add(fmt::format("\\x{:02x}", static_cast<unsigned char>(bytes.front())));
    }
    bytes.remove_prefix(length);
  }
  return shown.take();
}

std::string pad(DisplayText const& text, std::size_t const cells, bool const to_the_right) {
  std::string const blanks(cells > text.cells ? cells - text.cells : 0, ' ');
  return to_the_right ? blanks + text.utf8 : text.utf8 + blanks;
}

}  // namespace textimport
