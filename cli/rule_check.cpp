// SPDX-License-Identifier: MIT

#include "cli/rule_check.hpp"

#include "cli/preview.hpp"
#include "text_format_detection/model/errors.hpp"
#include "text_format_detection/model/field_array.hpp"
#include "text_format_detection/reading/read_records.hpp"

namespace cli {

namespace {

namespace errors = textio::parser::exception;

/// Reads and says which rule was broken; empty when none was.
std::string broken_rule(textio::parser::options const& options, textio::enums::StrategyMode mode,
                        std::u16string_view const text, std::size_t const records,
                        std::size_t& units_consumed) {
  // A line limit as well, so that comments do not count as part of the record behind them.
  std::size_t const lines = records == 1 ? 1 : textio::unknown_count;
  textio::FieldArray fields;
  try {
    units_consumed =
        textio::read_records(options, mode, textio::Field(text), records, lines, fields)
            .units_consumed;
  } catch (errors::consecutive_delimiters_error const&) {
    return "a delimiter directly follows another one, which --consecutive error forbids; allow it "
           "with split or join";
  } catch (errors::leading_delimiters_error const&) {
    return "the record begins with a delimiter, which --leading error forbids; allow it with keep "
           "or ignore";
  } catch (errors::trailing_delimiters_error const&) {
    return "the record ends with a delimiter, which --trailing error forbids; allow it with keep "
           "or ignore";
  } catch (errors::empty_line_rule const&) {
    return "the line is empty, which --empty-lines error forbids; allow it with skip or read";
  } catch (errors::partial_field_error const&) {
    return "the line ends inside a column, which --partial-field error forbids; allow it with "
           "keep or another rule";
  }
  return {};
}

std::size_t line_at(std::u16string_view const text) {
  std::size_t line = 1;
  for (std::size_t i = 0; i < text.size(); ++i) {
    bool const crlf = text[i] == u'\r' && i + 1 < text.size() && text[i + 1] == u'\n';
    if (text[i] == u'\n' || (text[i] == u'\r' && !crlf)) {
      ++line;
    }
  }
  return line;
}

}  // namespace

std::optional<Violation> find_violation(Answer const& answer, Settings const& settings) {
  auto const options = reading_options(answer, settings);
  auto const mode = answer.strategy->mode();
  std::size_t pos = answer.data_begin;
  std::size_t consumed = 0;
  if (broken_rule(options, mode, answer.sample.substr(pos), settings.records, consumed).empty()) {
    return std::nullopt;
  }
  // Once more, record by record: the errors do not say where they happened.
  while (pos < answer.sample.size()) {
    std::string const broken = broken_rule(options, mode, answer.sample.substr(pos), 1, consumed);
    if (!broken.empty() || consumed == 0) {
      return Violation{.line = line_at(answer.sample.substr(0, pos)), .message = broken};
    }
    pos += consumed;
  }
  return std::nullopt;
}

}  // namespace cli
