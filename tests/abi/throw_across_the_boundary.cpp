// SPDX-License-Identifier: MIT
//
// Each parser error leaves the real shared library and is caught outside, by its own type and by
// the base. This can only go wrong in a program that does not contain the library's objects: type
// information that is not exported exists twice, and the handler is passed by.
#include <cstddef>
#include <functional>
#include <string>
#include <string_view>

#include <gtest/gtest.h>

#include "text_format_detection/text_format_detection.hpp"

namespace {

using textio::Field;
using textio::parser::options;
namespace enums = textio::enums;
namespace exception = textio::parser::exception;

struct Outcome {
  std::string handler;
  std::size_t record = 0;
  std::size_t field = 0;
  std::u16string token;

  bool operator==(Outcome const&) const = default;
};

Outcome outcome(std::string const& handler, exception::parser_exception const& error) {
  return {handler, error.record, error.field, error.token};
}

// The handlers stand in this order on purpose: the base comes last.
Outcome caught_by_own_type(std::function<void()> const& action) {
  try {
    action();
  } catch (exception::partial_field_error const& error) {
    return outcome("partial_field_error", error);
  } catch (exception::empty_line_rule const& error) {
    return outcome("empty_line_rule", error);
  } catch (exception::leading_delimiters_error const& error) {
    return outcome("leading_delimiters_error", error);
  } catch (exception::consecutive_delimiters_error const& error) {
    return outcome("consecutive_delimiters_error", error);
  } catch (exception::trailing_delimiters_error const& error) {
    return outcome("trailing_delimiters_error", error);
  } catch (exception::parser_exception const& error) {
    return outcome("none but the base", error);
  } catch (...) {
    return {"none", 0, 0, u""};
  }
  return {"nothing thrown", 0, 0, u""};
}

bool caught_by_base(std::function<void()> const& action) {
  try {
    action();
  } catch (exception::parser_exception const&) {
    return true;
  } catch (...) {
    return false;
  }
  return false;
}

void expect_error(std::function<void()> const& action, Outcome const& expected) {
  SCOPED_TRACE(expected.handler);
  Outcome const actual = caught_by_own_type(action);
  EXPECT_EQ(actual.handler, expected.handler);
  EXPECT_TRUE(actual == expected) << "record " << actual.record << ", field " << actual.field;
  EXPECT_TRUE(caught_by_base(action));
}

options strict_options() {
  options strict;
  strict.delimiters = {u","};
  strict.column_widths = {2, 3};
  strict.empty_lines = enums::EmptyLineRule::Error;
  strict.leading_delimiters_rule = enums::LeadingDelimitersRule::Error;
  strict.consecutive_delimiters_rule = enums::ConsecutiveDelimitersRule::Error;
  strict.trailing_delimiters_rule = enums::TrailingDelimitersRule::Error;
  strict.partial_field_rule = enums::PartialFieldRule::Error;
  return strict;
}

TEST(ThrowAcrossTheBoundary, FromReadRecords) {
  struct Row {
    enums::StrategyMode mode;
    std::u16string_view text;
    Outcome expected;
  };

  using enums::StrategyMode;
  for (Row const& row : {
           Row{StrategyMode::FixedWidth, u"aabbb\naabb\n", {"partial_field_error", 1, 1, u"\\n"}},
           Row{StrategyMode::Delimited, u"a,b\n\n", {"empty_line_rule", 1, 0, u""}},
           Row{StrategyMode::Delimited, u"a,b\n,c\n", {"leading_delimiters_error", 0, 0, u""}},
           Row{StrategyMode::Delimited, u"a,,b\n", {"consecutive_delimiters_error", 0, 0, u""}},
           Row{StrategyMode::Delimited, u"a,b,\n", {"trailing_delimiters_error", 0, 0, u""}},
       }) {
    expect_error(
        [&row] {
          textio::FieldArray fields;
          textio::read_records(strict_options(), row.mode, row.text, textio::unknown_count,
                               textio::unknown_count, fields);
        },
        row.expected);
  }
}

TEST(ThrowAcrossTheBoundary, FromHandleConsecutiveDelimiters) {
  options const strict = strict_options();
  textio::parser::DelimitedRecordReader const reader(strict);
  expect_error(
      [&reader] {
        std::size_t pos = 2;
        bool pending = false;
        std::size_t first_trailing = 0;
        reader.handle_consecutive_delimiters<enums::ConsecutiveDelimitersRule::Error>(
            Field(u"a,,b"), 0, pos, pending, first_trailing);
      },
      {"consecutive_delimiters_error", 0, 0, u""});
}

TEST(LibraryVersion, IsTheOneOfTheHeaders) {
  EXPECT_STREQ(textio::library_version(), TEXT_FORMAT_DETECTION_VERSION);
}

}  // namespace
