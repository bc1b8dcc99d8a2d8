// SPDX-License-Identifier: MIT
//
// The shapes. Each text is written line by line from one generator of numbers that is the same
// everywhere, and cut at its length.
#include "benchmarks/shapes.hpp"

#include <array>
#include <cstdint>
#include <stdexcept>

namespace textio::benchmarks {

namespace {

/// Pseudo-random numbers, the same on every machine.
class Dice {
 public:
  /// A number from `low` to `high`, both included.
  std::size_t roll(std::size_t const low, std::size_t const high) {
    state_ = state_ * 6364136223846793005U + 1442695040888963407U;
    return low + static_cast<std::size_t>(state_ >> 33U) % (high - low + 1);
  }

 private:
  std::uint64_t state_ = 42;
};

constexpr std::array<std::u16string_view, 16> words{
    u"river",  u"the",    u"a",      u"station", u"of",     u"measured", u"north", u"level",
    u"behind", u"bridge", u"height", u"and",     u"autumn", u"gauge",    u"in",    u"was"};

std::u16string_view word(Dice& dice) {
  return words.at(dice.roll(0, words.size() - 1));
}

std::u16string number(std::size_t const value, std::size_t const min_digits = 1) {
  std::u16string digits;
  for (std::size_t rest = value; rest > 0 || digits.size() < min_digits; rest /= 10) {
    digits.insert(digits.begin(), static_cast<char16_t>(u'0' + rest % 10));
  }
  return digits;
}

std::u16string decimal(Dice& dice) {
  return number(dice.roll(0, 9999)) + u"." + number(dice.roll(0, 99), 2);
}

std::u16string padded_left(std::u16string_view const text, std::size_t const width) {
  std::u16string cell(width > text.size() ? width - text.size() : 0, u' ');
  return cell.append(text.substr(0, width));
}

std::u16string padded_right(std::u16string_view const text, std::size_t const width) {
  std::u16string cell(text.substr(0, width));
  cell.resize(width, u' ');
  return cell;
}

/// Words with single blanks between them, until there are `length` code units.
std::u16string prose(Dice& dice, std::size_t const length) {
  std::u16string text(word(dice));
  while (text.size() < length) {
    text += u' ';
    text += word(dice);
  }
  return text;
}

/// Writes lines until there are `length` code units.
template <class WriteLine>
std::u16string lines(std::size_t const length, WriteLine write_line) {
  std::u16string text;
  text.reserve(length + 1024);
  Dice dice;
  while (text.size() < length) {
    write_line(text, dice);
  }
  text.resize(length);
  return text;
}

/// Twelve numbers of one to four digits.
std::u16string narrow_numbers(std::size_t const length) {
  return lines(length, [](std::u16string& text, Dice& dice) {
    for (int column = 0; column < 12; ++column) {
      text += number(dice.roll(0, dice.roll(0, 1) == 0 ? 99 : 9999));
      text += column < 11 ? u',' : u'\n';
    }
  });
}

/// Five texts of 100 to 250 code units.
std::u16string wide_text(std::size_t const length) {
  return lines(length, [](std::u16string& text, Dice& dice) {
    for (int column = 0; column < 5; ++column) {
      text += prose(dice, dice.roll(100, 250));
      text += column < 4 ? u',' : u'\n';
    }
  });
}

/// A number and three quoted texts with commas, doubled quotes and, at times, a line end in them.
std::u16string quoted_prose(std::size_t const length) {
  return lines(length, [](std::u16string& text, Dice& dice) {
    text += number(dice.roll(1, 9999));
    for (int column = 0; column < 3; ++column) {
      text += u",\"" + prose(dice, dice.roll(10, 60));
      text += dice.roll(0, 9) == 0 ? u",\n" : u", ";
      text += u"\"\"" + prose(dice, 6) + u"\"\" " + prose(dice, dice.roll(10, 60)) + u"\"";
    }
    text += u'\n';
  });
}

/// A report: a name, a date and four numbers, lined up by runs of blanks.
std::u16string blank_runs(std::size_t const length) {
  return lines(length, [](std::u16string& text, Dice& dice) {
    text += padded_right(word(dice), 14);
    text += u"2024-" + number(dice.roll(1, 12), 2) + u"-" + number(dice.roll(1, 28), 2);
    for (int column = 0; column < 4; ++column) {
      text += padded_left(decimal(dice), 13);
    }
    text += u'\n';
  });
}

/// Columns that are found by their place alone: names of two words, codes that touch, blanks for
/// what is missing.
std::u16string padded_fixed_width(std::size_t const length) {
  return lines(length, [](std::u16string& text, Dice& dice) {
    std::u16string name(word(dice));
    name.append(u" ").append(word(dice));
    text += padded_right(name, 20) + number(dice.roll(0, 99999), 5);
    text += padded_left(dice.roll(0, 3) == 0 ? u"" : decimal(dice), 10);
    text += padded_left(number(dice.roll(0, 999)), 6) + padded_right(word(dice), 11) + u"\n";
  });
}

/// Numbers and commas without a single line end.
std::u16string one_long_line(std::size_t const length) {
  return lines(
      length, [](std::u16string& text, Dice& dice) { text += number(dice.roll(0, 99999)) + u","; });
}

/// Time, level, component and a sentence with a figure in it.
std::u16string log(std::size_t const length) {
  static constexpr std::array<std::u16string_view, 3> levels{u" INFO ", u" WARN ", u" ERROR "};
  return lines(length, [](std::u16string& text, Dice& dice) {
    text += u"2024-03-" + number(dice.roll(1, 28), 2) + u" " + number(dice.roll(0, 23), 2) + u":" +
            number(dice.roll(0, 59), 2) + u":" + number(dice.roll(0, 59), 2) + u"," +
            number(dice.roll(0, 999), 3);
    text += levels.at(dice.roll(0, 2));
    text += u"[worker-" + number(dice.roll(1, 16)) + u"] " + prose(dice, dice.roll(20, 80)) + u": ";
    text += number(dice.roll(0, 99999)) + u" ms\n";
  });
}

/// The characters in turn, each with a digit before it, seven a line: every one of them has to be
/// tried.
std::u16string candidates(std::u16string_view const characters, std::size_t const length) {
  std::size_t next = 0;
  return lines(length, [&](std::u16string& text, Dice& dice) {
    for (int column = 0; column < 7; ++column) {
      text += number(dice.roll(0, 9));
      text += characters[next++ % characters.size()];
    }
    text += u"1\n";
  });
}

std::u16string eight_candidates(std::size_t const length) {
  return candidates(u"\t,;|:/=_", length);
}

/// Nearly every character that may be a delimiter: ASCII without letters, digits, quotes, brackets,
/// signs, what ends lines, and U+0000, U+0001 and U+007F.
std::u16string forty_eight_candidates(std::size_t const length) {
  std::u16string characters = u" !#%&*,./:;<=>?\\^_`|~";
  for (char16_t unit = 2; unit < u' '; ++unit) {
    if (unit != u'\n' && unit != u'\r' && unit != u'\x1A') {
      characters += unit;
    }
  }
  return candidates(characters, length);
}

}  // namespace

std::span<Shape const> shapes() {
  static std::vector<Shape> const all{
      {.name = "narrow_numbers", .make = narrow_numbers},
      {.name = "wide_text", .make = wide_text},
      {.name = "quoted_prose", .make = quoted_prose},
      {.name = "blank_runs", .make = blank_runs, .delimiter = u' ', .widths = {14, 10, 13, 13, 13}},
      {.name = "padded_fixed_width", .make = padded_fixed_width, .widths = {20, 5, 10, 6, 11}},
      {.name = "one_long_line", .make = one_long_line},
      {.name = "log", .make = log, .delimiter = u' '},
      {.name = "eight_candidates", .make = eight_candidates},
      {.name = "forty_eight_candidates", .make = forty_eight_candidates},
  };
  return all;
}

Shape const& find_shape(std::string_view const name) {
  for (Shape const& shape : shapes()) {
    if (shape.name == name) {
      return shape;
    }
  }
  throw std::invalid_argument("no such shape: " + std::string(name));
}

}  // namespace textio::benchmarks
