// SPDX-License-Identifier: MIT
//
// The parts of a decision, each alone: finding the bounds of the fields, storing them, both at
// once, candidate characters, types, and taking a block from a stream.
#include <algorithm>
#include <memory>
#include <string>
#include <vector>

#include "benchmarks/operation.hpp"
#include "text_format_detection/detection/candidate_characters_internal.hpp"
#include "text_format_detection/detection/sampler_internal.hpp"
#include "text_format_detection/model/text_view_internal.hpp"
#include "text_format_detection/reading/delimited_scanner_internal.hpp"
#include "text_format_detection/reading/fixed_stream.hpp"
#include "text_format_detection/reading/fixed_width_scanner_internal.hpp"
#include "text_format_detection/reading/line_scanner_internal.hpp"
#include "text_format_detection/strategies/field_classifier_internal.hpp"
#include "text_format_detection/strategies/layout_strategies.hpp"

namespace textio::benchmarks {

namespace {

using ostrel::io::text::stream::TextStream;
using ostrel::io::text::typedetection::TypeAnalyzerOptions;
using StrategyPtr = std::shared_ptr<GenericStrategy>;
using MakeStrategy = StrategyPtr (*)(Shape const&);

parser::options const& caller_options() {
  static parser::options const options;
  return options;
}

TypeAnalyzerOptions const& type_options() {
  static TypeAnalyzerOptions const options;
  return options;
}

StrategyPtr delimited(Shape const& shape) {
  return std::make_shared<DelimitedStrategy>(caller_options(), type_options(), shape.delimiter);
}

StrategyPtr space_aligned(Shape const& /*shape*/) {
  return std::make_shared<SpaceAlignedStrategy>(caller_options(), type_options());
}

StrategyPtr fixed_width(Shape const& shape) {
  return std::make_shared<FixedWidthStrategy>(caller_options(), type_options(),
                                              std::vector<std::size_t>(shape.widths));
}

StrategyPtr line_reader(Shape const& /*shape*/) {
  return std::make_shared<LineReaderStrategy>(caller_options(), type_options());
}

/// Scans record after record and stores nothing.
template <class Reader>
std::size_t scan_all(parser::options const& options, std::u16string_view const text) {
  Reader const reader(options);
  return reading::with_scanner(reader, text, [text](auto scanner) {
    FieldArray array;
    reading::RecordStore record(array, text, {}, unknown_count);
    std::size_t num_fields = 0;
    std::size_t start = 0;
    do {
      scanner.scan(start, record);
      num_fields += record.num_fields();
      record.drop();
      start += record.occupied;
    } while (record.occupied > 0 && start < text.size());
    return num_fields;
  });
}

template <class Reader>
Prepare scan(MakeStrategy const make) {
  return [make](Shape const& shape, std::u16string_view const text) {
    return [strategy = make(shape), text] { return scan_all<Reader>(strategy->options(), text); };
  };
}

StrategyPtr sampled(MakeStrategy const make, Shape const& shape, Field const& text) {
  detection::SamplingContext context(text, unknown_count);
  StrategyPtr strategy = make(shape);
  detection::sample_strategy(context, strategy, false);
  return strategy;
}

Prepare sample(MakeStrategy const make) {
  return [make](Shape const& shape, std::u16string_view const text) {
    return [make, shape, text] {
      return sampled(make, shape, Field(text))->field_array()->fields().size();
    };
  };
}

/// The score of fields that are there already: lines counted, columns inspected.
Work score(Shape const& shape, std::u16string_view const text) {
  auto const fields =
      std::make_shared<FieldArray const>(*sampled(delimited, shape, Field(text))->field_array());
  return [fields, shape] {
    StrategyPtr const strategy = delimited(shape);
    strategy->field_array(std::make_unique<FieldArray>(*fields));
    return strategy->valuation().num_records;
  };
}

/// The bounds of the fields of a sample, all records in one list.
struct KnownBounds {
  std::vector<FieldBounds> fields;
  std::vector<std::size_t> record_ends;
};

std::shared_ptr<KnownBounds const> find_bounds(Shape const& shape, std::u16string_view const text) {
  StrategyPtr const strategy = sampled(delimited, shape, Field(text));
  auto bounds = std::make_shared<KnownBounds>();
  bounds->record_ends = strategy->field_array()->record_ends();
  for (Field const& field : strategy->field_array()->fields()) {
    auto const start = static_cast<std::size_t>(field.data() - text.data());
    bounds->fields.push_back({start, start + field.length()});
  }
  return bounds;
}

/// Stores the array that sampling the delimited reading makes, from bounds that are known.
Work store(Shape const& shape, std::u16string_view const text) {
  return [bounds = find_bounds(shape, text), text] {
    FieldArray array;
    std::size_t start = 0;
    for (std::size_t const end : bounds->record_ends) {
      array.append_record(text.data(), std::span(bounds->fields).subspan(start, end - start));
      start = end;
    }
    return array.fields().size();
  };
}

Work find_candidates(Shape const& shape, std::u16string_view const text) {
  return [lines = sampled(line_reader, shape, Field(text))] {
    return detection::candidate_characters(*lines->field_array()).size();
  };
}

/// Each field of the delimited reading, trimmed.
Work classify(Shape const& shape, std::u16string_view const text) {
  StrategyPtr const strategy = sampled(delimited, shape, Field(text));
  model::UnitSet const blanks(u" \t");
  std::vector<std::u16string_view> fields;
  for (Field const& field : strategy->field_array()->fields()) {
    if (auto const trimmed = model::trimmed(field.view(), blanks); !trimmed.empty()) {
      fields.push_back(trimmed);
    }
  }
  return [fields] {
    std::size_t sum = 0;
    for (std::u16string_view const field : fields) {
      sum += static_cast<std::size_t>(strategies::classify_field(type_options(), field));
    }
    return sum;
  };
}

/// The first block of a stream over memory; copying the text into the stream's buffer included.
Work take_block(Shape const& /*shape*/, std::u16string_view const text) {
  return [text] {
    TextStream const stream(
        [rest = text](char16_t* const room, std::size_t const capacity) mutable {
          std::size_t const length = std::min(capacity, rest.size());
          rest.copy(room, length);
          rest.remove_prefix(length);
          return length;
        });
    return get_fixed_stream(stream, caller_options().line_endings).length();
  };
}

}  // namespace

std::span<Operation const> operations() {
  static std::vector<Operation> const all{
      {.name = "scan_delimited", .prepare = scan<parser::DelimitedRecordReader>(delimited)},
      {.name = "scan_space_aligned", .prepare = scan<parser::DelimitedRecordReader>(space_aligned)},
      {.name = "scan_fixed_width", .prepare = scan<parser::FixedWidthRecordReader>(fixed_width)},
      {.name = "scan_lines", .prepare = scan<parser::LineRecordReader>(line_reader)},
      {.name = "store", .prepare = store},
      {.name = "sample_delimited", .prepare = sample(delimited)},
      {.name = "sample_space_aligned", .prepare = sample(space_aligned)},
      {.name = "sample_fixed_width", .prepare = sample(fixed_width)},
      {.name = "sample_lines", .prepare = sample(line_reader)},
      {.name = "sample_delimited_or_store",
       .prepare = sample(delimited),
       .shapes = "narrow_numbers",
       .reference_name = "store",
       .reference = store},
      {.name = "score_delimited", .prepare = score},
      {.name = "candidate_characters", .prepare = find_candidates},
      {.name = "classify", .prepare = classify},
      {.name = "get_fixed_stream", .prepare = take_block},
  };
  return all;
}

}  // namespace textio::benchmarks
