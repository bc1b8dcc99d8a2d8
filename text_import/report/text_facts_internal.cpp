// SPDX-License-Identifier: MIT
#include "text_import/report/text_facts_internal.hpp"

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include <fmt/format.h>

#include "text_import/report/answer_facts_internal.hpp"
#include "text_import/report/display_text.hpp"
#include "text_import/report/reading_words_internal.hpp"
#include "text_import/report/sampled_part_internal.hpp"

namespace textimport::reporting {

namespace {

std::string data_text(Analysis const& analysis) {
  Region const& region = analysis.format.region;
  std::string_view const given =
      region.start.origin == Origin::Given ? "; where they start is given" : "";
  std::size_t const first = region.first_line + 1;
  if (first > analysis.lines.count()) {
    return fmt::format("none{}", given);
  }
  if (region.end_line) {
    std::size_t const last = *region.end_line;
    return last <= first ? fmt::format("line {}{}", first, given)
                         : fmt::format("lines {} to {}{}", first, last, given);
  }
  SampledPart const part = sampled_part(analysis);
  return fmt::format("from line {} on (the sample ends at line {}{}){}", first, part.num_lines,
                     part.is_all ? "" : ", the file goes on", given);
}

std::string line_ends_text(SourceFormat const& source) {
  if (source.line_endings_origin == Origin::Given) {
    std::vector<std::string> names;
    for (std::u16string const& ending : source.line_endings) {
      names.push_back(in_quotes(ending));
    }
    return fmt::format("lines end with {} (given)", fmt::join(names, " or "));
  }
  LineEndingCounts const& ends = source.line_ending_counts;
  int const kinds = (ends.lf > 0 ? 1 : 0) + (ends.crlf > 0 ? 1 : 0) + (ends.cr > 0 ? 1 : 0);
  if (kinds > 1) {
    return fmt::format("line ends mixed: {} LF, {} CRLF, {} CR", ends.lf, ends.crlf, ends.cr);
  }
  if (kinds == 0) {
    return {};
  }
  return fmt::format("line ends {}", ends.lf > 0 ? "LF" : ends.crlf > 0 ? "CRLF" : "CR");
}

std::string encoding_text(SourceFormat const& source, bool const is_guess) {
  std::string_view const guess =
      is_guess && source.encoding_origin != Origin::Given ? " (a guess)" : "";
  return fmt::format("{}{}{}{}", source.encoding,
                     source.has_byte_order_mark ? " with a byte-order mark" : "",
                     given_mark(source.encoding_origin), guess);
}

std::string compression_text(SourceFormat const& source) {
  if (source.compression == "none") {
    return {};
  }
  return source.member.empty()
             ? source.compression
             : fmt::format("{}, member {}", source.compression, display_bytes(source.member).utf8);
}

std::string text_text(SourceFormat const& source, ReportSubject const& subject) {
  std::vector<std::string> parts;
  if (!source.encoding.empty()) {
    parts.push_back(encoding_text(source, subject.encoding_is_guess));
  }
  for (std::string const& part : {line_ends_text(source), compression_text(source)}) {
    if (!part.empty()) {
      parts.push_back(part);
    }
  }
  return parts.empty() ? "no line ends" : fmt::format("{}", fmt::join(parts, ", "));
}

std::string sampled_text(Analysis const& analysis) {
  SampledPart const part = sampled_part(analysis);
  return fmt::format("{}{}, {} of data", part.is_all ? "" : "the first ",
                     counted(part.num_lines, "line"), counted(part.num_records, "record"));
}

/// Names that stand more than once, each with how often that is.
std::string repeated_names_note(Format const& format, Evidence const& evidence) {
  constexpr std::size_t most = 6;
  std::vector<std::string> names;
  for (std::u16string const& name : evidence.repeated_names) {
    if (names.size() < most) {
      auto const times = std::ranges::count(format.columns, name, &Column::name);
      names.push_back(times == 2 ? fmt::format("{} twice", in_quotes(name))
                                 : fmt::format("{} {} times", in_quotes(name), times));
    }
  }
  return fmt::format("names that stand more than once: {}{}", fmt::join(names, ", "),
                     and_more(evidence.repeated_names.size() - names.size()));
}

/// What the analysis has to tell beside the answer.
std::vector<std::string> notes_of(Format const& format, Evidence const& evidence) {
  std::vector<std::string> notes;
  if (!evidence.repeated_names.empty()) {
    notes.push_back(repeated_names_note(format, evidence));
  }
  if (evidence.units_left_over > 0) {
    notes.push_back(fmt::format("the widths end {} before the longest line",
                                counted(evidence.units_left_over, "character")));
  }
  if (format.region.num_tables > 1) {
    notes.push_back(fmt::format("the text holds {} tables; this is number {}",
                                format.region.num_tables, format.region.table + 1));
  }
  return notes;
}

}  // namespace

void add_data(FactLines& facts, Analysis const& analysis) {
  facts.add("data", data_text(analysis));
}

void add_text(FactLines& facts, Analysis const& analysis, ReportSubject const& subject) {
  facts.add("text", text_text(analysis.format.source, subject));
  facts.add("sampled", sampled_text(analysis));
}

void add_notes(FactLines& facts, Analysis const& analysis, ReportSubject const& subject) {
  if (subject.encoding_is_guess && !subject.encoding_explanation.empty()) {
    facts.add("note", "the encoding is a guess: " + subject.encoding_explanation);
  }
  for (std::string const& note : notes_of(analysis.format, analysis.evidence)) {
    facts.add("note", note);
  }
  for (std::string const& note : subject.notes) {
    facts.add("note", display_bytes(note).utf8);
  }
}

}  // namespace textimport::reporting
