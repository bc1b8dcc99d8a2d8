// SPDX-License-Identifier: MIT
#include "tests/support/text.hpp"

#include <algorithm>
#include <array>
#include <cstdio>

#include "text_format_detection/model/field.hpp"
#include "text_format_detection/model/options.hpp"

namespace support {

namespace {

template <class... Arguments>
std::string format(char const* const pattern, Arguments const... arguments) {
  std::array<char, 64> buffer{};
  std::snprintf(buffer.data(), buffer.size(), pattern, arguments...);
  return buffer.data();
}

}  // namespace

std::u16string to_utf16(std::string_view const utf8) {
  std::u16string out;
  for (std::size_t i = 0; i < utf8.size();) {
    auto const byte = static_cast<unsigned char>(utf8[i]);
    std::size_t const length = byte < 0x80 ? 1U : byte < 0xE0 ? 2U : byte < 0xF0 ? 3U : 4U;
    auto point = static_cast<char32_t>(length == 1 ? byte : byte & (0x7FU >> length));
    for (std::size_t k = 1; k < length; ++k) {
      point = (point << 6U) | (static_cast<unsigned char>(utf8.at(i + k)) & 0x3FU);
    }
    i += length;
    if (point >= 0x10000) {
      out.push_back(static_cast<char16_t>(0xD7C0 + (point >> 10U)));
      point = 0xDC00 + (point & 0x3FFU);
    }
    out.push_back(static_cast<char16_t>(point));
  }
  return out;
}

std::string escape(char16_t const unit) {
  return format("\\u%04X", static_cast<unsigned>(unit));
}

std::string show(std::u16string_view const text) {
  std::string result;
  for (char16_t const unit : text) {
    if (unit == u'\n') {
      result += "\\n";
    } else if (unit == u'\r') {
      result += "\\r";
    } else if (unit == u'\t') {
      result += "\\t";
    } else if (unit >= 0x20 && unit < 0x7F) {
      result += static_cast<char>(unit);
    } else {
      result += escape(unit);
    }
  }
  return result;
}

std::string show(textio::FieldArray const& fields) {
  std::string result;
  for (std::size_t r = 0; r < fields.num_records(); ++r) {
    result += r == 0 ? "" : " / ";
    std::string separator;
    for (textio::Field const& field : fields.record(r)) {
      result += separator + show(field.view());
      separator = "|";
    }
    result += fields.num_fields(r) == 0 ? "()" : "";
  }
  return result;
}

std::string show(std::vector<std::size_t> const& numbers) {
  std::string result;
  for (std::size_t const number : numbers) {
    result += (result.empty() ? "" : " ") + std::to_string(number);
  }
  return result;
}

std::string show_count(std::size_t const count) {
  return count == textio::unknown_count ? "unknown" : std::to_string(count);
}

std::string show(double const value) {
  return format("%g", value);
}

textio::FieldArray make_lines(std::u16string_view text) {
  textio::FieldArray fields;
  while (!text.empty()) {
    std::u16string_view const line = text.substr(0, text.find(u'\n'));
    if (line.empty()) {
      fields.append_empty_record();
    } else {
      fields.append_record(std::vector<textio::Field>{line});
    }
    text.remove_prefix(std::min(line.size() + 1, text.size()));
  }
  return fields;
}

textio::FieldArray make_records(std::vector<std::size_t> const& counts) {
  textio::FieldArray fields;
  for (std::size_t const count : counts) {
    fields.append_record(std::vector<textio::Field>(count, textio::Field(u"x")));
  }
  return fields;
}

}  // namespace support
