// SPDX-License-Identifier: MIT
//
// The record readers and loops, with every value of every rule.
#include <optional>
#include <string>

#include "fuzz/input.hpp"
#include "fuzz/properties.hpp"
#include "text_format_detection/reading/read_with_mode_internal.hpp"
#include "text_format_detection/text_format_detection.hpp"

namespace {

using fuzz::Placed;
using fuzz::require;
using textio::FieldArray;
using textio::ReadSummary;
using textio::unknown_count;
using textio::enums::PartialFieldRule;
using textio::enums::StrategyMode;
using textio::parser::exception::parser_exception;

struct Reading {
  FieldArray fields;
  ReadSummary summary;
  std::optional<parser_exception> error;
};

struct Caller {
  textio::parser::options options;
  StrategyMode mode;
  textio::reading::ReadLimits limits;

  [[nodiscard]] Reading read(Placed const& text) const {
    Reading reading;
    try {
      reading.summary = textio::reading::read_with_mode(
          options, mode, text.view(), limits, {reading.fields, options.whitespace, unknown_count});
    } catch (parser_exception const& error) {
      reading.error = error;
    }
    return reading;
  }
};

/// Whether the text from `start` to `end` is made of these strings.
bool is_made_of(std::u16string_view const text, std::vector<std::u16string> const& strings) {
  std::vector<bool> reached(text.size() + 1, false);
  reached[0] = true;
  for (std::size_t i = 0; i < text.size(); ++i) {
    for (std::u16string const& string : strings) {
      if (reached[i] && text.substr(i).starts_with(string)) {
        reached[i + string.size()] = true;
      }
    }
  }
  return reached.back();
}

/// No character is lost: between the fields there is nothing but delimiters, line endings and
/// whitespace.
void require_conserved(Reading const& reading, Caller const& caller, Placed const& text) {
  std::vector<std::u16string> between = caller.options.line_endings;
  if (caller.mode <= StrategyMode::SpaceAligned) {
    between.insert(between.end(), caller.options.delimiters.begin(),
                   caller.options.delimiters.end());
  }
  for (char16_t const unit : caller.options.whitespace) {
    between.emplace_back(1, unit);
  }
  std::u16string_view const whole = fuzz::before_end_mark(text.view());
  std::size_t position = 0;
  auto const pass = [&](std::size_t const start, std::size_t const end) {
    require(is_made_of(whole.substr(position, start - position), between),
            "characters are conserved");
    position = end;
  };
  for (textio::Field const& field : reading.fields.fields()) {
    auto const start = static_cast<std::size_t>(field.data() - text.view().data());
    pass(start, start + field.length());
  }
  if (!reading.error) {
    std::size_t const consumed = std::min(reading.summary.units_consumed, whole.size());
    require(consumed >= position, "what is stored was consumed");
    pass(consumed, consumed);
  }
}

/// Reading one record at a time gives the same records. (Only a reading that sees the last line
/// ending and the end of the text at once stores the empty record between them.)
void require_resumable(Caller const& caller, Placed const& text) {
  auto const read = [&](std::size_t const count, std::u16string_view const part, FieldArray& to) {
    return textio::read_records(caller.options, caller.mode, part, count, unknown_count, to);
  };
  FieldArray at_once;
  FieldArray by_record;
  bool failed = false;
  bool failed_again = false;
  std::size_t consumed = 0;
  try {
    consumed = read(unknown_count, text.view(), at_once).units_consumed;
  } catch (parser_exception const&) {
    failed = true;
  }
  std::u16string_view rest = text.view();
  try {
    while (std::size_t const step = read(1, rest, by_record).units_consumed) {
      rest.remove_prefix(step);
    }
  } catch (parser_exception const&) {
    failed_again = true;
  }
  require(failed == failed_again, "the same error record by record");
  require(failed || consumed + rest.size() == text.view().size(), "the same length by record");
  if (at_once.num_records() == by_record.num_records() + 1) {
    by_record.append_empty_record();
  }
  require(fuzz::same_fields(at_once, text.view().data(), by_record, text.view().data()),
          "the same records one by one");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(  // NOLINT(readability-identifier-naming)
    std::uint8_t const* const data, std::size_t const size) {
  fuzz::Input in(data, size);
  auto const mode = in.choice(StrategyMode::LineReader);
  bool const sampling = in.flag();
  textio::reading::ReadLimits const limits{fuzz::draw_count(in), fuzz::draw_count(in), sampling};
  Caller const caller{fuzz::draw_options(in), mode, limits};
  std::u16string const text = in.text();

  Placed const placed(text);
  Reading const reading = caller.read(placed);
  fuzz::require_sound(reading.fields, placed.view());
  require(reading.error || reading.summary.records_stored == reading.fields.num_records(),
          "the records stored are counted");
  if (caller.options.comment_style.empty() &&
      (mode != StrategyMode::FixedWidth ||
       caller.options.partial_field_rule == PartialFieldRule::Keep)) {
    require_conserved(reading, caller, placed);
  }
  require_resumable(caller, placed);

  Placed const elsewhere(text + u"\uFFFF" + text + u"\",\n");
  Reading const second = caller.read(elsewhere);
  require(fuzz::same_fields(reading.fields, placed.view().data(), second.fields,
                            elsewhere.view().data()),
          "the same fields again, and behind the end mark nothing counts");
  require(second.error.has_value() == reading.error.has_value(), "the same error again");
  return 0;
}
