// SPDX-License-Identifier: MIT
#include "text_import/analysis/describing/text_extent_internal.hpp"

#include <algorithm>

namespace textimport::analysis {

namespace {

using view = std::u16string_view;

constexpr bool is_second_half(char16_t const c) noexcept {
  return c >= 0xDC00 && c <= 0xDFFF;
}

std::size_t count_utf8_bytes(view const text) noexcept {
  std::size_t bytes = 0;
  for (char16_t const c : text) {
    // A pair of surrogates is four bytes, two for each half.
    bytes += c < 0x80 ? 1U : c < 0x800 || (c >= 0xD800 && c <= 0xDFFF) ? 2U : 3U;
  }
  return bytes;
}

bool is_ascii(view const text) noexcept {
  return std::ranges::all_of(text, [](char16_t const c) { return c < 0x80; });
}

/// The bytes of a text; nothing when that is not known.
std::optional<std::size_t> count_bytes(view const text, std::string_view const encoding) {
  if (encoding == "UTF-8" || encoding == "US-ASCII" || encoding == "ASCII") {
    return count_utf8_bytes(text);
  }
  if (encoding.starts_with("UTF-16")) {
    return 2 * text.size();
  }
  if (encoding.starts_with("UTF-32")) {
    return 4 * count_characters(text);
  }
  bool const is_single_byte = encoding.starts_with("windows-") ||
                              encoding.starts_with("ISO-8859-") || encoding.starts_with("KOI8") ||
                              encoding.starts_with("IBM");
  return is_single_byte || is_ascii(text) ? std::optional(text.size()) : std::nullopt;
}

/// What `count` says of a line up to a position, blanks behind its end included.
template <class Count>
auto measure_up_to(view const line, std::size_t const position, Count const count) {
  auto measured = count(line.substr(0, position));
  if (position > line.size()) {
    auto const blank = count(view(u" "));
    measured = *measured + (position - line.size()) * *blank;
  }
  return measured;
}

template <class Count>
std::optional<Extent> agreed_extent(LineIndex const& lines, std::size_t const first,
                                    std::size_t const end, std::size_t const from,
                                    std::size_t const behind, Count const count) {
  if (lines.is_ascii()) {
    auto const width = count(view(u" "));
    return first < end && width ? std::optional(Extent{from * *width, behind * *width})
                                : std::nullopt;
  }
  std::optional<Extent> agreed;
  for (std::size_t i = first; i < end; ++i) {
    auto const begin = count(lines[i].substr(0, from));
    if (!begin || !count(lines[i].substr(0, behind))) {
      return std::nullopt;
    }
    Extent const here{*measure_up_to(lines[i], from, count),
                      *measure_up_to(lines[i], behind, count)};
    if (agreed && (agreed->begin != here.begin || agreed->end != here.end)) {
      return std::nullopt;
    }
    agreed = here;
  }
  return agreed;
}

}  // namespace

std::size_t count_characters(view const text) noexcept {
  return text.size() - static_cast<std::size_t>(std::ranges::count_if(text, is_second_half));
}

std::optional<Extent> extent_in_characters(LineIndex const& lines, std::size_t const first,
                                           std::size_t const end, std::size_t const from,
                                           std::size_t const behind) {
  return agreed_extent(lines, first, end, from, behind,
                       [](view const text) { return std::optional(count_characters(text)); });
}

std::optional<Extent> extent_in_bytes(LineIndex const& lines, std::size_t const first,
                                      std::size_t const end, std::size_t const from,
                                      std::size_t const behind, std::string_view const encoding) {
  return agreed_extent(lines, first, end, from, behind,
                       [&](view const text) { return count_bytes(text, encoding); });
}

}  // namespace textimport::analysis
