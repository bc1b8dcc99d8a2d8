// SPDX-License-Identifier: MIT
#include "tests/support/reading.hpp"

#include <gtest/gtest.h>

#include "tests/support/text.hpp"
#include "text_format_detection/model/errors.hpp"
#include "text_format_detection/reading/sampler_internal.hpp"

namespace support {

namespace {

namespace exception = textio::parser::exception;

std::string show_error(std::string const& name, exception::parser_exception const& error) {
  EXPECT_EQ(show(error.detail), "");
  return "!" + name + " " + std::to_string(error.record) + "," + std::to_string(error.field) + "," +
         show(error.token);
}

template <class Action>
std::string error_of(Action const& action) {
  try {
    action();
  } catch (exception::partial_field_error const& error) {
    return show_error("partial_field_error", error);
  } catch (exception::empty_line_rule const& error) {
    return show_error("empty_line_rule", error);
  } catch (exception::leading_delimiters_error const& error) {
    return show_error("leading_delimiters_error", error);
  } catch (exception::consecutive_delimiters_error const& error) {
    return show_error("consecutive_delimiters_error", error);
  } catch (exception::trailing_delimiters_error const& error) {
    return show_error("trailing_delimiters_error", error);
  }
  return "";
}

}  // namespace

std::string read(How const& how, std::u16string_view const text) {
  textio::FieldArray fields;
  std::string const error = error_of([&] {
    textio::reading::read_with_mode(how.options, how.mode, text, how.limits,
                                    {fields, how.options.whitespace, how.max_fields});
  });
  std::string const shown = show(fields);
  return shown + (shown.empty() || error.empty() ? "" : " ") + error;
}

void expect_readings(How const& how, std::vector<Row> const& rows) {
  for (Row const& row : rows) {
    EXPECT_EQ(read(how, row.text), row.expected) << "reading \"" << show(row.text) << '"';
  }
}

}  // namespace support
