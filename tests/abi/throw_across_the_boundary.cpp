// SPDX-License-Identifier: MIT
//
// Each parser error leaves the real shared library and is caught outside, by its own type and by
// the base. This can only go wrong in a program that does not contain the library's objects: type
// information that is not exported exists twice, and the handler is passed by.
#include <gtest/gtest.h>

#include "tests/support/errors.hpp"
#include "tests/support/text.hpp"
#include "text_format_detection/text_format_detection.hpp"

namespace {

namespace enums = textio::enums;
using enums::StrategyMode;
using textio::Field;

textio::parser::options strict_options() {
  return {.delimiters = {u","},
          .column_widths = {2, 3},
          .consecutive_delimiters_rule = enums::ConsecutiveDelimitersRule::Error,
          .empty_lines = enums::EmptyLineRule::Error,
          .leading_delimiters_rule = enums::LeadingDelimitersRule::Error,
          .trailing_delimiters_rule = enums::TrailingDelimitersRule::Error,
          .partial_field_rule = enums::PartialFieldRule::Error};
}

template <class Action>
void expect_error(Action const& action, std::string const& expected) {
  std::string caught;
  support::catch_parser_error(action, [&caught](auto const& name, auto const& error) {
    caught = name + (" " + support::show({error.record, error.field})) + " " +
             support::show(error.token);
  });
  EXPECT_EQ(caught, expected);
  EXPECT_THROW(action(), textio::parser::exception::parser_exception);
}

TEST(ThrowAcrossTheBoundary, FromReadRecords) {
  auto const read = [](StrategyMode const mode, std::u16string_view const text) {
    return [mode, text] {
      textio::FieldArray fields;
      textio::read_records(strict_options(), mode, text, textio::unknown_count,
                           textio::unknown_count, fields);
    };
  };
  expect_error(read(StrategyMode::FixedWidth, u"aabbb\naabb\n"), "partial_field_error 1 1 \\n");
  expect_error(read(StrategyMode::Delimited, u"a,b\n\n"), "empty_line_rule 1 0 ");
  expect_error(read(StrategyMode::Delimited, u"a,b\n,c\n"), "leading_delimiters_error 0 0 ");
  expect_error(read(StrategyMode::Delimited, u"a,,b\n"), "consecutive_delimiters_error 0 0 ");
  expect_error(read(StrategyMode::Delimited, u"a,b,\n"), "trailing_delimiters_error 0 0 ");
}

TEST(ThrowAcrossTheBoundary, FromHandleConsecutiveDelimiters) {
  auto const strict = strict_options();
  textio::parser::DelimitedRecordReader const reader(strict);
  expect_error(
      [&reader] {
        std::size_t pos = 2;
        bool pending = false;
        std::size_t first_trailing = 0;
        reader.handle_consecutive_delimiters<enums::ConsecutiveDelimitersRule::Error>(
            Field(u"a,,b"), 0, pos, pending, first_trailing);
      },
      "consecutive_delimiters_error 0 0 ");
}

TEST(LibraryVersion, IsTheOneOfTheHeaders) {
  EXPECT_STREQ(textio::library_version(), TEXT_FORMAT_DETECTION_VERSION);
}

}  // namespace
