// SPDX-License-Identifier: MIT
#include "text_import/analysis/readings/reading_internal.hpp"

#include <algorithm>
#include <map>
#include <span>

#include "text_format_detection/detection/evaluate_strategy.hpp"
#include "text_import/analysis/readings/hypothesis_internal.hpp"
#include "text_import/analysis/readings/reading_options.hpp"
#include "text_import/analysis/values/text_internal.hpp"
#include "text_import/splitting/record_splitter_internal.hpp"

namespace textimport::analysis {

namespace {

using textio::Field;
using textio::FieldArray;

/// Finds the lines of the records. A record without fields takes the line behind the one before.
void place_records(Reading& r, LineIndex const& lines) {
  FieldArray const& fields = *r.strategy->field_array();
  char16_t const* const text = lines.text().data();
  std::size_t next_line = 0;
  std::size_t last_seen = 0;
  r.records.reserve(fields.num_records());
  for (std::size_t i = 0; i < fields.num_records(); ++i) {
    auto const record = fields.record(i);
    std::size_t line = next_line;
    std::size_t last_line = line;
    if (!record.empty()) {
      Field const& last = record.back();
      line = lines.line_from(last_seen, static_cast<std::size_t>(record.front().data() - text));
      last_line =
          lines.line_from(line, static_cast<std::size_t>(last.data() - text) + last.length());
      last_seen = last_line;
      r.longest_record = std::max(r.longest_record, last_line - line + 1);
    }
    bool const is_blank =
        record.empty() || (record.size() == 1 && trimmed(record[0].view()).empty());
    r.records.push_back({line, is_blank ? 0 : record.size()});
    r.filled_records += is_blank ? 0U : 1U;
    next_line = last_line + 1;
  }
}

/// The stretch of records with the largest surplus of regular over irregular ones, the longest of
/// equal ones: behind a spoilt record the table goes on.
TableBlock best_block(std::vector<RecordPlace> const& records, std::size_t const columns) {
  TableBlock best;
  TableBlock current;
  std::ptrdiff_t best_surplus = 0;
  for (std::size_t i = 0; i < records.size(); ++i) {
    std::size_t const count = records[i].num_fields;
    if (count == columns) {
      if (current.regular == 0) {
        current = {i, i, columns, 0, 0};
      }
      ++current.regular;
      current.last = i;
      auto const surplus = static_cast<std::ptrdiff_t>(current.regular - current.irregular);
      if (surplus >= best_surplus) {
        best = current;
        best_surplus = surplus;
      }
    } else if (count != 0 && current.regular != 0 && ++current.irregular >= current.regular) {
      current = {};
    }
  }
  return best;
}

/// Of two blocks that are equally large the first in the text is better, unless they are so small
/// that it may be a line of names.
bool is_better(TableBlock const& block, TableBlock const& best) {
  auto const surplus = [](TableBlock const& b) { return b.regular - b.irregular; };
  bool const is_small = block.regular < 3;
  return surplus(block) > surplus(best) ||
         (surplus(block) == surplus(best) && (is_small || block.first < best.first));
}

/// The best block of all numbers of fields; of those that reach the end of the records, where
/// `at_end` asks for that.
TableBlock find_block(std::vector<RecordPlace> const& records, bool const at_end) {
  std::map<std::size_t, std::size_t> frequencies;
  for (RecordPlace const& record : records) {
    ++frequencies[record.num_fields];
  }
  TableBlock best;
  for (auto const& [columns, frequency] : frequencies) {
    if (columns < 2 || frequency < best.regular) {
      continue;
    }
    TableBlock const block = best_block(records, columns);
    bool const is_candidate = !at_end || block.last + 1 == records.size();
    if (is_candidate && is_better(block, best)) {
      best = block;
    }
  }
  return best;
}

void set_block(Reading& r, TableBlock const& block) {
  r.block = block;
  if (block.regular > 0) {
    auto const regular = static_cast<double>(block.regular);
    r.coverage = regular / static_cast<double>(r.filled_records);
    r.regularity = regular / static_cast<double>(block.regular + block.irregular);
  }
}

/// The records with so many fields at least, as a share of the filled ones.
double share_with_fields(Reading const& r, std::size_t const least) {
  auto const count = std::ranges::count_if(
      r.records, [&](RecordPlace const& record) { return record.num_fields >= least; });
  return static_cast<double>(count) /
         static_cast<double>(std::max<std::size_t>(r.filled_records, 1));
}

/// A line that fits the columns has all of them, whatever its length; another is no record of them.
void count_fitting_lines(Reading& r, LineIndex const& lines, FixedColumns const& columns) {
  for (RecordPlace& record : r.records) {
    if (record.num_fields > 0) {
      record.num_fields = columns.fits(lines[record.line]) ? columns.starts.size() : 1;
    }
  }
}

bool has_same_values(std::span<Field const> const a, std::span<Field const> const b) {
  return std::ranges::equal(
      a, b, {}, [](Field const& f) { return trimmed(f.view()); },
      [](Field const& f) { return trimmed(f.view()); });
}

/// Those that are one code unit long.
std::u16string excluded_characters(Request const& request) {
  std::u16string characters;
  for (std::u16string const& delimiter : request.excluded_delimiters) {
    characters += delimiter.size() == 1 ? delimiter : std::u16string();
  }
  return characters;
}

}  // namespace

Reading measure_records(std::shared_ptr<textio::GenericStrategy> strategy, LineIndex const& lines,
                        Task const& task, FixedColumns const* const columns) {
  Reading r;
  r.strategy = std::move(strategy);
  r.layout = layout_of(r.strategy->mode());
  if (r.layout == Layout::Delimited && !r.strategy->options().delimiters.empty()) {
    r.delimiter = r.strategy->options().delimiters.front();
  }
  r.quote = quote_of(r.strategy->options());
  r.values = ValueGrammar(r.quote, task.request.values, excluded_characters(task.request));
  place_records(r, lines);
  if (columns != nullptr) {
    count_fitting_lines(r, lines, *columns);
    r.agreement = columns->profile.agreement();
    r.equal_lengths = columns->profile.equal_lengths();
    r.head_agreement = columns->head_agreement();
    r.head_share = columns->head_share();
    r.by_ruler = columns->by_ruler;
  }
  set_block(r, find_block(r.records, false));
  r.split_share = share_with_fields(r, 2);
  r.much_split_share = share_with_fields(r, 4);
  return r;
}

bool read_alike(Reading const& a, Reading const& b) {
  constexpr std::size_t most = 60;
  std::size_t compared = 0;
  for (std::size_t i = a.block.first; i <= a.block.last && compared < most; ++i) {
    if (a.records[i].num_fields != a.block.columns) {
      continue;
    }
    auto const same =
        std::ranges::lower_bound(b.records, a.records[i].line, {}, &RecordPlace::line);
    if (same == b.records.end() || same->line != a.records[i].line ||
        !has_same_values(a.strategy->field_array()->record(i),
                         b.strategy->field_array()->record(
                             static_cast<std::size_t>(same - b.records.begin())))) {
      return false;
    }
    ++compared;
  }
  return compared > 0;
}

void sample(std::shared_ptr<textio::GenericStrategy> const& strategy, LineSyntax const& syntax,
            LineIndex const& lines, std::size_t const num_records) {
  if (!is_plain(syntax)) {
    std::size_t const above = strategy->detects_header_lines() ? 0 : strategy->header_lines();
    auto fields = std::make_unique<FieldArray>();
    splitting::read_records(strategy->options(), strategy->mode(), syntax, lines.text(),
                            num_records + std::min(above, all_records - num_records), *fields);
    strategy->field_array(std::move(fields));
  }
  textio::evaluate_strategy(strategy, Field(lines.text()), num_records);
}

/// A delimiter inside a value stands behind an escape there, and is none.
void set_syntax(Reading& r, LineSyntax const& syntax, Task const& task) {
  r.syntax = syntax;
  if (syntax.escape != 0) {
    r.values =
        ValueGrammar(r.quote, task.request.values, excluded_characters(task.request) + r.delimiter);
  }
}

std::optional<Reading> measure_last_block(Reading const& r) {
  TableBlock const block = find_block(r.records, true);
  if (block.regular < 2 || block.columns == r.block.columns) {
    return std::nullopt;
  }
  Reading last = r;
  set_block(last, block);
  return last;
}

void take_single_column(Reading& r) {
  if (r.block.regular == 0) {
    set_block(r, best_block(r.records, 1));
  }
}

}  // namespace textimport::analysis
