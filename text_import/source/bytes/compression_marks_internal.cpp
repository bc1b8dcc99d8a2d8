// SPDX-License-Identifier: MIT
#include "text_import/source/bytes/compression_marks_internal.hpp"

#include <algorithm>
#include <array>

namespace textimport {
namespace {

using namespace std::string_view_literals;

struct MagicNumber {
  std::string_view format;
  std::string_view bytes;
};

constexpr std::array<MagicNumber, 9> magic_numbers = {{
    {"gzip", "\x1F\x8B"sv},
    {"bzip2", "BZh"sv},  // with what is_bzip2() asks for, since a text may begin so
    {"xz",
     "\xFD"
     "7zXZ\0"sv},
    {"zstd", "\x28\xB5\x2F\xFD"sv},
    {"lz4", "\x04\x22\x4D\x18"sv},
    {"lz4", "\x02\x21\x4C\x18"sv},
    {"zip", "PK\x03\x04"sv},
    {"zip", "PK\x05\x06"sv},
    {"zip", "PK\x07\x08"sv},
}};

/// A digit for the block size, then the mark of a block or that of the end.
bool is_bzip2(std::string_view const head) {
  if (head.size() < 4 || head[3] < '1' || head[3] > '9') {
    return false;
  }
  std::string_view const mark = head.substr(4, 6);
  return "1AY&SY"sv.starts_with(mark) || "\x17\x72\x45\x38\x50\x90"sv.starts_with(mark);
}

}  // namespace

std::string_view compression_of(std::string_view const head) {
  auto const* const found =
      std::find_if(magic_numbers.begin(), magic_numbers.end(), [head](MagicNumber const& magic) {
        return head.starts_with(magic.bytes) && (magic.format != "bzip2" || is_bzip2(head));
      });
  return found == magic_numbers.end() ? "none"sv : found->format;
}

}  // namespace textimport
