// SPDX-License-Identifier: MIT
#include "text_import/source/notes.hpp"

#include <cstdint>

namespace textimport {
namespace {

/// "1 byte", "2 bytes".
std::string counted(std::uint64_t const count, std::string const& noun) {
  return std::to_string(count) + " " + noun + (count == 1 ? "" : "s");
}

}  // namespace

std::vector<std::string> notes(TextFindings const& findings) {
  std::vector<std::string> sentences;
  if (findings.no_line_end) {
    sentences.emplace_back(
        "no line ends in the sample, which is a piece of one line; a larger sample may help");
  }
  if (DecodingCounts const& decoding = findings.decoding; decoding.bad_bytes > 0) {
    sentences.push_back(counted(decoding.bad_bytes, "byte") + " without a meaning in " +
                        findings.encoding.name + " replaced by U+FFFD, first at byte " +
                        std::to_string(decoding.first_bad_offsets.front()));
  }
  if (findings.nuls > 0) {
    sentences.push_back("the sample holds " + counted(findings.nuls, "NUL character"));
  }
  sentences.insert(sentences.end(), findings.warnings.begin(), findings.warnings.end());
  return sentences;
}

}  // namespace textimport
