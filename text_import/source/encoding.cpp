// SPDX-License-Identifier: MIT
#include "text_import/source/encoding.hpp"

#include <array>

#include "text_import/import_error.hpp"

namespace textimport {
namespace {

struct byte_order_mark {
  std::string_view bytes;
  char const* encoding;
};

using namespace std::string_view_literals;

constexpr std::array<byte_order_mark, 3> marks = {{
    {"\xEF\xBB\xBF"sv, "UTF-8"},
    {"\xFF\xFE"sv, "UTF-16LE"},
    {"\xFE\xFF"sv, "UTF-16BE"},
}};

}  // namespace

encoding_finding find_encoding(std::string_view const head, bool const /*complete*/) {
  for (byte_order_mark const& mark : marks) {
    if (head.starts_with(mark.bytes)) {
      return {mark.encoding, encoding_reason::ByteOrderMark,
              "the file begins with a byte-order mark", mark.bytes.size()};
    }
  }
  return {"UTF-8", encoding_reason::ValidUtf8, "the text is well-formed UTF-8", 0};
}

encoding_finding given_encoding(std::string const& name, std::string_view const /*head*/,
                                std::string const& /*path*/) {
  return {name, encoding_reason::Given, "the encoding was given", 0};
}

char const* name_of(encoding_reason const reason) noexcept {
  switch (reason) {
    case encoding_reason::Given:
      return "given";
    case encoding_reason::ByteOrderMark:
      return "byte_order_mark";
    case encoding_reason::NulPattern:
      return "nul_pattern";
    case encoding_reason::OnlyAscii:
      return "only_ascii";
    case encoding_reason::ValidUtf8:
      return "valid_utf8";
    case encoding_reason::MostlyUtf8:
      return "mostly_utf8";
    case encoding_reason::Statistics:
      return "statistics";
    case encoding_reason::Fallback:
      return "fallback";
  }
  return "unknown";
}

std::vector<std::string> encoding_names() {
  return {"UTF-16BE", "UTF-16LE", "UTF-8"};
}

}  // namespace textimport
