// SPDX-License-Identifier: MIT
//
// The engine's errors do not say where they happened. So the data are read once as a whole, which
// nearly always is the end of it, and only when that fails record by record.
#include "text_import/analysis/checking/rule_check_internal.hpp"

#include <algorithm>

#include "text_format_detection/model/errors.hpp"
#include "text_format_detection/model/field_array.hpp"
#include "text_format_detection/reading/read_records.hpp"
#include "text_import/analysis/readings/reading_options.hpp"

namespace textimport::analysis {

namespace {

namespace enums = textio::enums;
namespace errors = textio::parser::exception;
using view = std::u16string_view;

bool has_strict_rule(LayoutFormat const& layout) {
  return layout.consecutive_delimiters == enums::ConsecutiveDelimitersRule::Error ||
         layout.leading_delimiters == enums::LeadingDelimitersRule::Error ||
         layout.trailing_delimiters == enums::TrailingDelimitersRule::Error ||
         layout.empty_lines == enums::EmptyLineRule::Error ||
         layout.partial_fields == enums::PartialFieldRule::Error;
}

/// What one run of the reader came to: the rule that was broken, or how much was read.
struct Trial {
  std::optional<BrokenRule> broken;
  std::size_t units_consumed = 0;
};

Trial try_reading(textio::parser::options const& options, enums::StrategyMode const mode,
                  view const text, std::size_t const records, std::size_t const line_limit) {
  textio::FieldArray fields;
  try {
    return {std::nullopt,
            textio::read_records(options, mode, textio::Field(text), records, line_limit, fields)
                .units_consumed};
  } catch (errors::consecutive_delimiters_error const&) {
    return {BrokenRule::ConsecutiveDelimiters, 0};
  } catch (errors::leading_delimiters_error const&) {
    return {BrokenRule::LeadingDelimiters, 0};
  } catch (errors::trailing_delimiters_error const&) {
    return {BrokenRule::TrailingDelimiters, 0};
  } catch (errors::empty_line_rule const&) {
    return {BrokenRule::EmptyLine, 0};
  } catch (errors::partial_field_error const&) {
    return {BrokenRule::PartialField, 0};
  }
}

/// The field at which a record breaks the rule, when it is read without any that is set to Error.
textio::Field const* find_culprit(std::span<textio::Field const> const record,
                                  BrokenRule const rule) {
  if (record.empty()) {
    return nullptr;
  }
  if (rule == BrokenRule::ConsecutiveDelimiters) {
    auto const empty = std::find_if(record.begin() + 1, record.end(),
                                    [](textio::Field const& field) { return field.empty(); });
    return empty == record.end() ? nullptr : &*empty;
  }
  bool const is_at_end = rule == BrokenRule::TrailingDelimiters || rule == BrokenRule::PartialField;
  return is_at_end ? &record.back() : &record.front();
}

/// Where in the record at the start of `text` the rule is broken, in code units.
std::size_t offset_in_record(textio::parser::options options, enums::StrategyMode const mode,
                             view const text, BrokenRule const rule) {
  options.consecutive_delimiters_rule = enums::ConsecutiveDelimitersRule::Split;
  options.leading_delimiters_rule = enums::LeadingDelimitersRule::Keep;
  options.trailing_delimiters_rule = enums::TrailingDelimitersRule::Keep;
  options.empty_lines = enums::EmptyLineRule::Read;
  options.partial_field_rule = enums::PartialFieldRule::Keep;
  textio::FieldArray fields;
  textio::read_records(options, mode, textio::Field(text), 1, 1, fields);
  if (fields.num_records() == 0) {
    return 0;
  }
  auto const* const culprit = find_culprit(fields.record(0), rule);
  return culprit == nullptr ? 0 : static_cast<std::size_t>(culprit->data() - text.data());
}

}  // namespace

std::optional<Violation> find_violation(Format const& format, LineIndex const& lines,
                                        std::size_t const records) {
  if (!has_strict_rule(format.layout)) {
    return std::nullopt;
  }
  auto const options = reading_options(format);
  auto const mode = reading_mode(format.layout.layout);
  std::size_t const begin = lines.start(format.region.first_line);
  std::size_t const end = lines.start(format.region.end_line.value_or(lines.count()));
  view const data = lines.text().substr(0, std::max(begin, end));
  if (!try_reading(options, mode, data.substr(begin), records, textio::unknown_count).broken) {
    return std::nullopt;
  }
  for (std::size_t pos = begin; pos < data.size();) {
    // A line limit as well, so that comments do not count as part of the record behind them.
    Trial const trial = try_reading(options, mode, data.substr(pos), 1, 1);
    if (trial.broken) {
      std::size_t const offset =
          pos + offset_in_record(options, mode, data.substr(pos), *trial.broken);
      return Violation{*trial.broken, lines.position_of(offset)};
    }
    if (trial.units_consumed == 0) {
      break;
    }
    pos += trial.units_consumed;
  }
  return std::nullopt;
}

}  // namespace textimport::analysis
