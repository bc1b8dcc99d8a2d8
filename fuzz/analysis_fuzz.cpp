// SPDX-License-Identifier: MIT
//
// Whole analyses, with requests drawn from the input, and the Format once more as what is given.
#include <algorithm>
#include <array>
#include <string>

#include "fuzz/input.hpp"
#include "fuzz/properties.hpp"
#include "text_import/analysis/analysis.hpp"
#include "text_import/format/format_json.hpp"
#include "text_import/table/rows.hpp"

namespace {

using fuzz::Placed;
using fuzz::require;
using textimport::Analysis;
using textimport::Request;
using textimport::TextSample;

char16_t first_or_none(std::u16string const& text) {
  return text.empty() ? u'\0' : text.front();
}

void draw_layout(fuzz::Input& in, textio::parser::options const& drawn, Request& request) {
  unsigned const given = in.byte();
  if ((given & 1U) != 0) {
    request.delimiters = drawn.delimiters;
    std::erase(request.delimiters, std::u16string());
  }
  if ((given & 2U) != 0) {
    request.layout = in.choice(textimport::Layout::Lines);
  }
  if ((given & 4U) != 0) {
    request.widths = drawn.column_widths;
  }
  if ((given & 8U) != 0) {
    request.header_lines = drawn.header_lines;
  }
  if ((given & 16U) != 0) {
    request.num_columns = drawn.num_variables;
  }
  if ((given & 32U) != 0) {
    request.excluded_delimiters = in.strings();
  }
  request.engine_decides = (given & 64U) != 0;
}

void draw_records(fuzz::Input& in, textio::parser::options const& drawn, Request& request) {
  unsigned const given = in.byte();
  if ((given & 1U) != 0) {
    request.quote = first_or_none(drawn.quote_characters);
  }
  if ((given & 2U) != 0) {
    request.comment_markers = drawn.comment_style;
  }
  if ((given & 4U) != 0) {
    request.whitespace = drawn.whitespace;
  }
  if ((given & 8U) != 0) {
    request.line_endings = drawn.line_endings;
  }
  if ((given & 16U) != 0) {
    request.rules = {drawn.consecutive_delimiters_rule, drawn.leading_delimiters_rule,
                     drawn.trailing_delimiters_rule, drawn.empty_lines, drawn.partial_field_rule};
  }
  if ((given & 32U) != 0) {
    request.values.decimal_mark = in.unit();
    request.values.thousands_mark = first_or_none(drawn.thousands_separator);
    request.values.missing_words = in.strings();
  }
}

Request draw_request(fuzz::Input& in) {
  Request request;
  if (in.flag()) {
    auto const drawn = fuzz::draw_options(in);
    draw_layout(in, drawn, request);
    draw_records(in, drawn, request);
    request.records = fuzz::draw_count(in);
  }
  return request;
}

bool is_share(double const value) {
  return value >= 0 && value <= 1;
}

void require_sound_evidence(Analysis const& found) {
  auto const& evidence = found.evidence;
  require(is_share(found.certainty.layout), "certainty is a share");
  require(!evidence.runner_up || is_share(evidence.runner_up->certainty), "so is the runner-up's");
  for (auto const& candidate : evidence.candidates) {
    require(is_share(candidate.coverage) && is_share(candidate.soundness), "measures are shares");
    require(candidate.hypothesis < evidence.hypotheses.size(), "hypotheses exist");
    require(is_share(candidate.share), "how likely it is is a share");
    double sum = 0;
    for (auto const& piece : candidate.pieces) {
      require(piece.measure < evidence.measures.size(), "measures exist");
      sum += piece.amount;
    }
    require(sum == candidate.score, "the pieces make up the score");
  }
  require(evidence.winner.value_or(0) <= evidence.candidates.size(), "the winner exists");
  require(!evidence.runner_up || evidence.runner_up->candidate < evidence.candidates.size(),
          "the runner-up exists");
  require(std::ranges::is_sorted(evidence.lines, {}, &textimport::NotedLine::line), "lines ascend");
  require(evidence.lines.empty() || evidence.lines.back().line < evidence.lines_seen,
          "lines exist");
  require(evidence.columns.size() == found.format.columns.size(), "columns are counted");
  for (auto const& column : evidence.columns) {
    require(column.fitting <= column.values, "values that fit are values");
  }
}

void require_sound(Analysis const& found, std::u16string_view const text) {
  require(found.strategy != nullptr, "there is a strategy");
  fuzz::require_sound(*found.strategy->field_array(), text);
  require_sound_evidence(found);
  auto const& region = found.format.region;
  std::size_t const lines = found.evidence.lines_seen;
  require(region.first_line <= lines && region.end_line.value_or(lines) <= lines, "lines exist");
  require(std::ranges::is_sorted(region.name_lines), "lines of names ascend");
  for (auto const& column : found.format.columns) {
    require(!column.unique_name.empty(), "each column can be named");
    require(!column.characters || column.characters->begin <= column.characters->end,
            "a column ends behind its start");
  }
  if (found.violation) {
    require(found.violation->position.offset <= text.size(), "a rule is broken within the text");
  }
  static_cast<void>(
      textimport::read_rows(found.format, found.lines.between(region.first_line, lines), 5));
}

TextSample sample_of(Placed const& text, bool const goes_on, char const* const encoding) {
  TextSample sample;
  sample.text = text.view();
  sample.goes_on = goes_on;
  sample.source.encoding = encoding;
  return sample;
}

/// What is found, given back, is kept.
void require_format_holds(Analysis const& found, TextSample const& sample) {
  Request again;
  again.format = found.format;
  Analysis const given = textimport::analyse(sample, again);
  require_sound(given, sample.text.substr(0, sample.text.find(textio::end_mark)));
  require(given.format.layout.layout == found.format.layout.layout, "the layout is kept");
  require(given.format.layout.delimiters == found.format.layout.delimiters,
          "the delimiter is kept");
  require(given.format.quoting.quote == found.format.quoting.quote, "the quote is kept");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(  // NOLINT(readability-identifier-naming)
    std::uint8_t const* const data, std::size_t const size) {
  fuzz::Input in(data, size);
  Request const request = draw_request(in);
  bool const goes_on = in.flag();
  char const* const encoding = std::array{"", "UTF-8", "UTF-16LE", "GB18030"}.at(in.below(4));
  std::u16string const text = in.text();
  std::u16string const head(fuzz::before_end_mark(text));
  Placed const placed(head);
  TextSample const sample = sample_of(placed, goes_on, encoding);
  Analysis const found = textimport::analyse(sample, request);
  require_sound(found, sample.text);
  std::string const shown = textimport::to_json(found.format);
  require(textimport::to_json(textimport::analyse(sample, request).format) == shown,
          "the same answer again");
  Placed const longer(head + textio::end_mark + u"1,2;3\n\"");
  TextSample const longer_sample = sample_of(longer, goes_on, encoding);
  require(textimport::to_json(textimport::analyse(longer_sample, request).format) == shown,
          "text behind the end mark changes nothing");
  auto const parsed = textimport::format_from_json(shown);
  require(parsed.format && *parsed.format == found.format, "JSON keeps the Format");
  require_format_holds(found, sample);
  return 0;
}
