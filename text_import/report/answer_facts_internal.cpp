// SPDX-License-Identifier: MIT
#include "text_import/report/answer_facts_internal.hpp"

#include <algorithm>
#include <string>
#include <vector>

#include <fmt/format.h>

#include "text_import/format/words.hpp"
#include "text_import/report/character_names.hpp"
#include "text_import/report/display_text.hpp"
#include "text_import/report/format_rules_internal.hpp"
#include "text_import/report/reading_words_internal.hpp"
#include "text_import/report/score_words_internal.hpp"

namespace textimport::reporting {

namespace {

std::string layout_text(Analysis const& analysis) {
  LayoutFormat const& layout = analysis.format.layout;
  if (!analysis.decided) {
    return fmt::format("not decided; read as {}", word_of(layout.layout));
  }
  return fmt::format("{}{}", word_of(layout.layout), given_mark(layout.origin));
}

std::string widths_text(std::vector<std::size_t> const& widths) {
  constexpr std::size_t most = 60;
  std::size_t const shown = std::min(widths.size(), most);
  return fmt::format("{}{}",
                     fmt::join(widths.begin(), widths.begin() + std::ptrdiff_t(shown), ", "),
                     and_more(widths.size() - shown));
}

std::string quote_text(QuotingFormat const& quoting) {
  if (quoting.quote == 0) {
    return "none; quotation marks belong to the values";
  }
  std::string quote = display_text({&quoting.quote, 1}).utf8;
  switch (quoting.escape_kind) {
    case QuoteEscape::Doubled:
      break;
    case QuoteEscape::Character:
      return fmt::format("{}, escaped by {}", quote, display_text({&quoting.escape, 1}).utf8);
    case QuoteEscape::None:
      return fmt::format("{}, which cannot stand in a value", quote);
  }
  return quote;
}

void add_quotes(FactLines& facts, QuotingFormat const& quoting) {
  bool const is_usual = quoting.quote == u'"' && quoting.escape_kind == QuoteEscape::Doubled;
  if (!is_usual || quoting.origin == Origin::Given) {
    facts.add("quotes", fmt::format("{}{}", quote_text(quoting), given_mark(quoting.origin)));
  }
}

void add_comments(FactLines& facts, CommentFormat const& comments) {
  auto const& markers = comments.markers;
  if (markers.empty()) {
    if (comments.origin == Origin::Given) {
      facts.add("comments", "none (given)");
    }
    return;
  }
  std::string const text =
      markers.size() == 1 ? fmt::format("behind {}", in_quotes(markers.front()))
                          : fmt::format("{} to {}", in_quotes(markers[0]), in_quotes(markers[1]));
  facts.add("comments", fmt::format("{}{}", text, given_mark(comments.origin)));
}

std::string mark_text(char16_t const mark, Origin const origin) {
  return fmt::format("{}{}", mark == 0 ? "none" : delimiter_name({&mark, 1}), given_mark(origin));
}

std::string missing_text(MarkFormat const& marks) {
  constexpr std::size_t most = 12;
  std::vector<std::string> words;
  for (std::u16string const& word : marks.missing_words) {
    if (words.size() < most) {
      words.push_back(in_quotes(word));
    }
  }
  std::size_t const rest = marks.missing_words.size() - words.size();
  return words.empty() ? "no words (given)"
                       : fmt::format("{}{} (given)", fmt::join(words, ", "), and_more(rest));
}

void add_marks(FactLines& facts, MarkFormat const& marks) {
  if (marks.decimal_mark != u'.' || marks.decimal_mark_origin == Origin::Given) {
    facts.add("decimal mark", mark_text(marks.decimal_mark, marks.decimal_mark_origin));
  }
  if (marks.thousands_mark != 0 || marks.thousands_mark_origin == Origin::Given) {
    facts.add("thousands", mark_text(marks.thousands_mark, marks.thousands_mark_origin));
  }
  if (marks.missing_words_origin == Origin::Given) {
    facts.add("missing", missing_text(marks));
  }
}

/// Whether the answer was weighed against others.
bool is_weighed(Reason const reason) {
  switch (reason) {
    case Reason::OnlyReading:
    case Reason::BestReading:
    case Reason::NoTable:
    case Reason::Unsure:
      return true;
    case Reason::NoRecords:
    case Reason::Given:
    case Reason::EngineDecided:
    case Reason::ColumnsDiffer:
    case Reason::LayoutNotFound:
    case Reason::StartNotFound:
      break;
  }
  return false;
}

}  // namespace

std::string_view given_mark(Origin const origin) {
  return origin == Origin::Given ? " (given)" : "";
}

void add_layout(FactLines& facts, Analysis const& analysis) {
  Format const& format = analysis.format;
  LayoutFormat const& layout = format.layout;
  facts.add("layout", layout_text(analysis));
  if (layout.layout == Layout::Delimited || layout.layout == Layout::SpaceAligned) {
    facts.add("delimiter",
              fmt::format("{}{}", reading_name(layout), given_mark(layout.delimiters_origin)));
  } else if (layout.layout == Layout::FixedWidth) {
    facts.add("widths",
              fmt::format("{}{}", widths_text(layout.widths), given_mark(layout.widths_origin)));
  }
  add_quotes(facts, format.quoting);
  add_comments(facts, format.comments);
  add_marks(facts, format.marks);
  if (std::string const rules = rules_text(layout); !rules.empty()) {
    facts.add("rules", rules);
  }
}

void add_confidence(FactLines& facts, Analysis const& analysis) {
  if (is_weighed(analysis.reason)) {
    double const certainty = analysis.certainty.layout;
    facts.add("how sure", fmt::format("{}, {}", share_text(certainty), confidence_word(certainty)));
  }
}

void add_open_parts(FactLines& facts, Analysis const& analysis) {
  auto const& open = analysis.evidence.open_parts;
  if (!analysis.decided || open.empty()) {
    return;
  }
  std::vector<std::string_view> texts;
  for (TablePart const part : open) {
    texts.push_back(part == TablePart::FirstLine  ? "where the data begin"
                    : part == TablePart::LastLine ? "where the data end"
                                                  : "which lines hold names");
  }
  facts.add("open", fmt::format("{}; {} sure of the table", fmt::join(texts, ", "),
                                share_text(analysis.certainty.table.value_or(0))));
}

void add_candidates(FactLines& facts, Analysis const& analysis) {
  constexpr std::size_t most = 3;
  constexpr std::size_t indent = 9;
  Evidence const& evidence = analysis.evidence;
  auto const candidates = ranked_candidates(evidence);
  std::size_t const shown = std::min(candidates.size(), most);
  if (analysis.decided || shown == 0) {
    return;
  }
  facts.add("candidates", fmt::format("the best first{}", and_more(candidates.size() - shown)));
  for (std::size_t i = 0; i < shown; ++i) {
    Candidate const& candidate = *candidates[i];
    std::string sentence =
        fmt::format("{}, {} likely", candidate_text(candidate), share_text(candidate.share));
    if (candidates.size() > 1) {
      Candidate const& other = *candidates[i == 0 ? 1 : 0];
      std::string const reasons = strongest_text(evidence, candidate, other, 2);
      sentence += reasons.empty() ? "" : fmt::format("; for it: {}", reasons);
    }
    facts.text() += fmt::format("    {:>3}  ", i + 1) + wrapped(sentence, indent, facts.width());
  }
  facts.add("to settle", "say how the lines are split, or give more of the text");
}

}  // namespace textimport::reporting
