// SPDX-License-Identifier: MIT
//
// What holds for every input, for all targets alike.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <string_view>

#include "text_format_detection/model/field_array.hpp"
#include "text_format_detection/model/options.hpp"

namespace fuzz {

/// Ends the program, so that the fuzzer keeps the input, if a property does not hold.
inline void require(bool const holds, char const* const property) {
  if (!holds) {
    std::fprintf(stderr, "PROPERTY BROKEN: %s\n", property);
    std::abort();
  }
}

/// The text in front of its end mark.
inline std::u16string_view before_end_mark(std::u16string_view const text) {
  return text.substr(0, std::min(text.find(textio::end_mark), text.size()));
}

/// The totals add up, and each field lies in the text, before its end mark and behind the field
/// before it.
inline void require_sound(textio::FieldArray const& array, std::u16string_view const text) {
  auto const& ends = array.record_ends();
  require(std::is_sorted(ends.begin(), ends.end()), "running totals never decrease");
  require((ends.empty() ? 0 : ends.back()) == array.fields().size(),
          "the last total is the number of fields");
  char16_t const* position = text.data();
  for (textio::Field const& field : array.fields()) {
    require(field.data() >= position, "fields stand one behind the other");
    position = field.data() + field.length();
  }
  require(position <= text.data() + before_end_mark(text).size(),
          "fields lie before the end of the text");
}

/// The same fields at the same places of two copies of a text.
inline bool same_fields(textio::FieldArray const& a, char16_t const* const a_text,
                        textio::FieldArray const& b, char16_t const* const b_text) {
  return a.record_ends() == b.record_ends() &&
         std::ranges::equal(a.fields(), b.fields(), [&](auto const& x, auto const& y) {
           return x.data() - a_text == y.data() - b_text && x.length() == y.length();
         });
}

}  // namespace fuzz
