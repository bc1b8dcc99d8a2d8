// SPDX-License-Identifier: MIT

#include "cli/file_loop.hpp"

#include <algorithm>
#include <utility>

#include <fmt/format.h>

#include "cli/console.hpp"
#include "cli/file_names.hpp"
#include "cli/format_file.hpp"
#include "cli/usage_error.hpp"
#include "text_import/report/broken_rules.hpp"
#include "text_import/report/display_text.hpp"
#include "text_import/report/json_report.hpp"
#include "text_import/source/notes.hpp"

namespace cli {

namespace {

Answer find_answer(std::string const& path, Task const& task) {
  auto text = textimport::TextSource::open(path, task.opening);
  auto const& encoding = text.findings().encoding;
  textimport::ReportSubject subject{.path = path,
                                    .encoding_reason = textimport::name_of(encoding.reason),
                                    .encoding_explanation = encoding.explanation,
                                    .encoding_is_guess = encoding.is_guess(),
                                    .notes = textimport::notes(text.findings())};
  auto analysis = textimport::analyse(text.text_sample(), task.request);
  return {std::move(text), std::move(analysis), std::move(subject)};
}

Option option_of(textimport::BrokenRule const rule) {
  using textimport::BrokenRule;
  switch (rule) {
    case BrokenRule::ConsecutiveDelimiters:
      return Option::Consecutive;
    case BrokenRule::LeadingDelimiters:
      return Option::Leading;
    case BrokenRule::TrailingDelimiters:
      return Option::Trailing;
    case BrokenRule::EmptyLine:
      return Option::EmptyLines;
    case BrokenRule::PartialField:
      break;
  }
  return Option::PartialField;
}

/// "data.csv:14: a delimiter directly follows another one, which --consecutive error forbids; ..."
std::string violation_message(std::string const& path, textimport::Violation const& violation) {
  Option const option = option_of(violation.rule);
  auto allowed = choices(spec(option));
  std::erase(allowed, "error");
  std::string_view const last = allowed.back();
  allowed.pop_back();
  return fmt::format("{}:{}: {}, which {} error forbids; allow it with {} or {}",
                     textimport::display_bytes(textimport::display_name(path)).utf8,
                     violation.position.line + 1, textimport::meaning_of(violation.rule),
                     flag(option), fmt::join(allowed, ", "), last);
}

/// The exit code for one file, once everything about it is printed.
int answer_file(std::string const& path, Task const& task, Renderer const& render, bool& first) {
  try {
    Answer const answer = find_answer(path, task);
    if (!task.save_path.empty()) {
      save_format(task.save_path, answer.analysis.format);
    }
    write_output(render(answer, first));
    first = false;
    if (answer.analysis.violation) {
      write_message(violation_message(path, *answer.analysis.violation));
      return exit_code::failed;
    }
    return answer.analysis.table_decided ? exit_code::decided : exit_code::undecided;
  } catch (textimport::ImportError const& error) {
    write_message(textimport::display_bytes(error.what()).utf8);
    if (task.output == Output::Json) {
      write_output(textimport::error_json(path, error));
    }
    return exit_code::failed;
  }
}

/// Reads the Format that is given. What it says of the bytes is needed when files are opened.
void take_format(Task& task) {
  if (task.format_path.empty()) {
    return;
  }
  auto const& source = task.request.format.emplace(read_format(task.format_path)).source;
  if (task.opening.encoding.empty()) {
    task.opening.encoding = source.encoding;
  }
  if (task.opening.line_endings.empty() &&
      source.line_endings != textimport::SourceFormat().line_endings) {
    task.opening.line_endings = source.line_endings;
  }
}

}  // namespace

int answer_files(Arguments const& arguments, Task task, Renderer const& render) {
  int code = exit_code::decided;
  bool first = true;
  try {
    take_format(task);
    FileNames names(arguments);
    while (auto const path = names.next()) {
      code = std::max(code, answer_file(*path, task, render, first));
    }
  } catch (textimport::ImportError const& error) {  // the list itself, or the Format
    write_message(textimport::display_bytes(error.what()).utf8);
    code = exit_code::failed;
  } catch (ClosedPipe const&) {
    // Whoever reads has seen enough.
  }
  return code;
}

textimport::ReportStyle style_of(Task const& task) {
  return {.width = task.width ? *task.width : output_width(),
          .rows = task.rows,
          .colors = colors_of(task.color)};
}

}  // namespace cli
