// SPDX-License-Identifier: MIT
//
// Collecting the candidate delimiters.
#include "text_format_detection/detection/candidate_characters_internal.hpp"

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

#include "text_format_detection/model/text_view_internal.hpp"

namespace textio::detection {

namespace {

/// A stretch of the non-empty lines: from the first up to, not including, the end.
struct Stretch {
  std::size_t first;
  std::size_t end;
};

constexpr Stretch middle_stretch(std::size_t const num_lines) noexcept {
  constexpr std::size_t few_lines = 5;
  if (num_lines > few_lines) {
    return {(num_lines + 2) / 3, num_lines * 5 / 6};
  }
  return {static_cast<std::size_t>(num_lines > 1), num_lines};
}

constexpr std::size_t num_ascii = 128;

/// For each ASCII character, whether it may be a delimiter.
constexpr std::array<bool, num_ascii> make_eligible() {
  constexpr std::u16string_view never =
      u"ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789\n\r\x1A\"$'()+-@[]{}";
  std::array<bool, num_ascii> eligible{};
  for (std::size_t unit = 0; unit < num_ascii; ++unit) {
    eligible[unit] = never.find(static_cast<char16_t>(unit)) == std::u16string_view::npos;
  }
  return eligible;
}

constexpr std::array<bool, num_ascii> eligible_characters = make_eligible();

/// Characters in order of first appearance, each once.
class CandidateSet {
 public:
  void add_from(std::u16string_view const line) {
    for (char16_t const unit : line) {
      if (unit < num_ascii) {
        add(unit);
      } else if (unit == end_mark) {
        return;
      }
    }
  }

  [[nodiscard]] std::u16string take() { return std::move(characters_); }

 private:
  void add(char16_t const unit) {
    if (open_[unit]) {
      open_[unit] = false;
      characters_.push_back(unit);
    }
  }

  std::array<bool, num_ascii> open_ = eligible_characters;  // eligible and not met yet
  std::u16string characters_;
};

}  // namespace

std::u16string candidate_characters(FieldArray const& lines) {
  auto const& fields = lines.fields();
  auto const num_lines = static_cast<std::size_t>(
      std::count_if(fields.begin(), fields.end(), [](Field const& line) { return !line.empty(); }));
  Stretch const stretch = middle_stretch(num_lines);
  CandidateSet candidates;
  std::size_t index = 0;  // of the non-empty line
  for (Field const& line : fields) {
    if (line.empty()) {
      continue;
    }
    if (index >= stretch.first && index < stretch.end) {
      candidates.add_from(line.view());
    }
    ++index;
  }
  return candidates.take();
}

bool may_be_delimiter(char16_t const unit) noexcept {
  return unit < num_ascii && eligible_characters[unit];
}

}  // namespace textio::detection
