// SPDX-License-Identifier: MIT
//
// Nearness is the number of letters and digits to insert, drop or change, with the number in the
// name counting for more than the letters: "win1252" means windows-1252, not windows-1250.
#include "text_import/source/encoding/encoding_names_internal.hpp"

#include <algorithm>
#include <iterator>
#include <memory>
#include <new>
#include <set>
#include <utility>

#include <unicode/ucnv.h>

#include "text_format_detection/platform/ascii_internal.hpp"
#include "text_import/format/edit_distance.hpp"

namespace textimport {
namespace {

constexpr std::size_t max_near_names = 5;

/// Letters in lower case and digits; the rest is dropped.
std::string normalized(std::string_view const name) {
  std::string result;
  for (char const c : name) {
    char16_t const unit = textio::platform::to_lower(static_cast<unsigned char>(c));
    if (textio::platform::is_digit(unit) || textio::platform::is_letter(unit)) {
      result.push_back(static_cast<char>(unit));
    }
  }
  return result;
}

std::string digits_of(std::string_view const name) {
  std::string result;
  std::copy_if(name.begin(), name.end(), std::back_inserter(result), [](char const c) {
    return textio::platform::is_digit(static_cast<unsigned char>(c));
  });
  return result;
}

/// Three for each edit, one with the same number in both names; no name is near at `max_penalty`.
std::size_t penalty(std::string const& wanted, std::string const& candidate) {
  std::string const number = digits_of(wanted);
  bool const same_number = !number.empty() && number == digits_of(candidate);
  return edit_distance(wanted, candidate) * (same_number ? 1 : 3);
}

std::vector<std::string> aliases_of(char const* const converter) {
  UErrorCode status = U_ZERO_ERROR;
  std::uint16_t const count = ucnv_countAliases(converter, &status);
  std::vector<std::string> names;
  for (std::uint16_t i = 0; i < count; ++i) {
    if (char const* const alias = ucnv_getAlias(converter, i, &status); alias != nullptr) {
      names.emplace_back(alias);
    }
  }
  return names;
}

// Left out: the conversion library miscounts and misplaces the bytes that mean nothing in it.
constexpr std::string_view unreliable = "BOCU-1";

/// The name in the registries of the internet; empty for what only one vendor uses.
std::string standard_name(std::string const& name) {
  for (char const* const registry : {"MIME", "IANA"}) {
    UErrorCode status = U_ZERO_ERROR;
    char const* const found = ucnv_getStandardName(name.c_str(), registry, &status);
    if (found != nullptr) {
      return found == unreliable ? std::string() : found;
    }
  }
  return {};
}

/// Whether the conversion library can convert, and reliably: it knows the names of encodings that
/// it has no table for.
bool is_convertible(std::string const& name) {
  UErrorCode status = U_ZERO_ERROR;
  std::unique_ptr<UConverter, decltype(&ucnv_close)> const converter(
      ucnv_open(name.c_str(), &status), ucnv_close);
  if (status == U_MEMORY_ALLOCATION_ERROR) {
    throw std::bad_alloc();
  }
  return U_SUCCESS(status) != 0 && ucnv_getType(converter.get()) != UCNV_BOCU1;
}

}  // namespace

std::string usual_encoding_name(std::string const& name) {
  UErrorCode status = U_ZERO_ERROR;
  // Behind a comma stand options of the conversion library.
  if (name.empty() || name.find(',') != std::string::npos ||
      ucnv_countAliases(name.c_str(), &status) == 0 || !is_convertible(name)) {
    return {};
  }
  std::string standard = standard_name(name);
  return standard.empty() ? name : standard;
}

std::vector<std::string> all_encoding_names() {
  std::set<std::string> names;
  for (std::int32_t i = 0; i < ucnv_countAvailable(); ++i) {
    names.insert(standard_name(ucnv_getAvailableName(i)));
  }
  names.erase(std::string{});
  return {names.begin(), names.end()};
}

std::vector<std::string> near_encoding_names(std::string_view const name) {
  std::string const wanted = normalized(name);
  std::size_t const max_penalty = 3 * std::max<std::size_t>(wanted.size() / 3, 1);
  std::set<std::pair<std::size_t, std::string>> ranked;
  for (std::int32_t i = 0; i < ucnv_countAvailable(); ++i) {
    char const* const converter = ucnv_getAvailableName(i);
    std::string const standard = standard_name(converter);
    if (standard.empty()) {
      continue;
    }
    std::size_t nearest = max_penalty + 1;
    for (std::string const& alias : aliases_of(converter)) {
      nearest = std::min(nearest, penalty(wanted, normalized(alias)));
    }
    if (nearest <= max_penalty) {
      ranked.emplace(nearest, standard);
    }
  }
  std::vector<std::string> names;
  for (auto const& [distance, candidate] : ranked) {
    if (names.size() < max_near_names &&
        std::find(names.begin(), names.end(), candidate) == names.end()) {
      names.push_back(candidate);
    }
  }
  return names;
}

}  // namespace textimport
