// SPDX-License-Identifier: MIT
#include "tests/support/text.hpp"

#include <array>
#include <cstdio>

#include "text_format_detection/model/field.hpp"

namespace support {

namespace {

template <class... Arguments>
std::string format(char const* const pattern, Arguments const... arguments) {
  std::array<char, 64> buffer{};
  std::snprintf(buffer.data(), buffer.size(), pattern, arguments...);
  return buffer.data();
}

}  // namespace

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
      result += format("\\u%04X", static_cast<unsigned>(unit));
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

std::string show(double const value) {
  return format("%g", value);
}

textio::FieldArray make_lines(std::vector<std::u16string_view> const& lines) {
  textio::FieldArray fields;
  for (std::u16string_view const line : lines) {
    if (line.empty()) {
      fields.append_empty_record();
    } else {
      fields.append_record(std::vector<textio::Field>{line});
    }
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
