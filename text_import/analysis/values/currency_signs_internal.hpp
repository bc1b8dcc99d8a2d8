// SPDX-License-Identifier: MIT
//
// The signs and short words for money that stand before or behind an amount.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace textimport::analysis {

/// Single signs first: how many those are says num_currency_characters.
inline constexpr auto currency_signs = std::to_array<std::u16string_view>({u"$",
                                                                           u"\u20AC",
                                                                           u"\u00A3",
                                                                           u"\u00A5",
                                                                           u"\u20B9",
                                                                           u"\u20BD",
                                                                           u"\u20A9",
                                                                           u"\u20BA",
                                                                           u"\u20B4",
                                                                           u"\u20AA",
                                                                           u"\u20AB",
                                                                           u"\u0E3F",
                                                                           u"EUR",
                                                                           u"USD",
                                                                           u"GBP",
                                                                           u"CHF",
                                                                           u"JPY",
                                                                           u"CNY",
                                                                           u"RMB",
                                                                           u"AUD",
                                                                           u"CAD",
                                                                           u"NZD",
                                                                           u"SEK",
                                                                           u"NOK",
                                                                           u"DKK",
                                                                           u"ISK",
                                                                           u"PLN",
                                                                           u"CZK",
                                                                           u"HUF",
                                                                           u"RON",
                                                                           u"BGN",
                                                                           u"RUB",
                                                                           u"UAH",
                                                                           u"TRY",
                                                                           u"INR",
                                                                           u"BRL",
                                                                           u"MXN",
                                                                           u"ZAR",
                                                                           u"KRW",
                                                                           u"SGD",
                                                                           u"HKD",
                                                                           u"THB",
                                                                           u"ILS",
                                                                           u"ARS",
                                                                           u"CLP",
                                                                           u"COP",
                                                                           u"Euro",
                                                                           u"euro",
                                                                           u"kr",
                                                                           u"kr.",
                                                                           u"Kr",
                                                                           u"Kr.",
                                                                           u"z\u0142",
                                                                           u"K\u010D",
                                                                           u"Ft",
                                                                           u"lei",
                                                                           u"Lei",
                                                                           u"TL",
                                                                           u"R$",
                                                                           u"US$",
                                                                           u"A$",
                                                                           u"C$",
                                                                           u"NZ$",
                                                                           u"HK$",
                                                                           u"S$",
                                                                           u"NT$",
                                                                           u"Rs",
                                                                           u"Rs.",
                                                                           u"Fr.",
                                                                           u"SFr.",
                                                                           u"\u043B\u0432",
                                                                           u"\u043B\u0432.",
                                                                           u"\u0440\u0443\u0431",
                                                                           u"\u0440\u0443\u0431.",
                                                                           u"\u0440.",
                                                                           u"\u0433\u0440\u043D",
                                                                           u"\u0433\u0440\u043D.",
                                                                           u"\u5143",
                                                                           u"\u5186",
                                                                           u"\uC6D0"});
inline constexpr std::size_t num_currency_characters = 12;
inline constexpr std::size_t longest_currency = 4;

/// For each ASCII character, whether one of the signs begins with it.
inline constexpr std::array<bool, 128> currency_starts = [] {
  std::array<bool, 128> starts{};
  for (std::u16string_view const sign : currency_signs) {
    if (sign.front() < starts.size()) {
      starts[sign.front()] = true;
    }
  }
  return starts;
}();

/// False for most characters that no sign or word for money begins with: a quick look.
[[nodiscard]] constexpr bool may_start_currency(char16_t const c) noexcept {
  return c < currency_starts.size() ? currency_starts[c] : c > 0xA2;
}

/// The sign of a number, which stands in its dress; empty for 0.
[[nodiscard]] constexpr std::u16string_view currency_sign(std::uint8_t const number) noexcept {
  return number == 0 ? std::u16string_view{} : currency_signs[number - 1U];
}

/// The number of the sign that the whole text is, which is not empty; 0 for none.
[[nodiscard]] constexpr std::uint8_t currency_number(std::u16string_view const text) noexcept {
  for (std::size_t i = 0; i < currency_signs.size(); ++i) {
    if (currency_signs[i].front() == text.front() && currency_signs[i] == text) {
      return static_cast<std::uint8_t>(i + 1);
    }
  }
  return 0;
}

/// The same for a single character.
[[nodiscard]] constexpr std::uint8_t currency_number(char16_t const c) noexcept {
  for (std::size_t i = 0; i < num_currency_characters; ++i) {
    if (currency_signs[i].front() == c) {
      return static_cast<std::uint8_t>(i + 1);
    }
  }
  return 0;
}

}  // namespace textimport::analysis
