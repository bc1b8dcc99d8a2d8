// SPDX-License-Identifier: MIT
//
// Finding the next of a few code units, many units of the text at a time. Scans spend most of their
// time here.
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

#include <experimental/simd>

#include "text_format_detection/model/text_view_internal.hpp"

namespace textio::model {

/// A search for any of a set of code units, and for the end of the text. Sets of up to eight units
/// are compared a whole vector of the text at a time, larger ones unit by unit.
class UnitSearch {
 public:
  explicit UnitSearch(std::u16string_view const units)
      : set_(UnitSet(units).with_end_mark()), kind_(choose_kind(units)) {
    wanted_.fill(Vector(end_mark));
    if (kind_ != Kind::Many) {
      std::size_t slot = 1;
      for (char16_t const unit : units) {
        wanted_.at(slot++) = Vector(unit);
      }
    }
  }

  /// The first position from `pos` on that holds one of the units; the end of the text without one
  /// (its first end mark, or its length).
  [[nodiscard]] std::size_t find(std::u16string_view const text,
                                 std::size_t const pos) const noexcept {
    switch (kind_) {
      case Kind::Few:
        return find_among<few>(text, pos);
      case Kind::Several:
        return find_among<several>(text, pos);
      case Kind::Many:
        break;
    }
    return find_member(text, pos, set_);
  }

 private:
  using Vector = std::experimental::native_simd<char16_t>;

  enum class Kind : unsigned char { Few, Several, Many };

  // How many units are compared, the end mark included.
  static constexpr std::size_t few = 4;
  static constexpr std::size_t several = 8;

  static Kind choose_kind(std::u16string_view const units) noexcept {
    if (units.size() >= several) {
      return Kind::Many;
    }
    return units.size() < few ? Kind::Few : Kind::Several;
  }

  template <std::size_t Count>
  [[nodiscard]] std::size_t find_among(std::u16string_view const text,
                                       std::size_t pos) const noexcept {
    for (; pos + Vector::size() <= text.size(); pos += Vector::size()) {
      Vector const units(text.data() + pos, std::experimental::element_aligned);
      auto found = units == wanted_[0];
      for (std::size_t i = 1; i < Count; ++i) {
        found = found || units == wanted_[i];
      }
      if (std::experimental::any_of(found)) {
        return pos + static_cast<std::size_t>(std::experimental::find_first_set(found));
      }
    }
    return find_member(text, pos, set_);
  }

  UnitSet set_;
  Kind kind_;
  std::array<Vector, several> wanted_;  // free slots hold the end mark
};

}  // namespace textio::model
