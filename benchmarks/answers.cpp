// SPDX-License-Identifier: MIT
//
// What the analysis says of the files of a folder: answers FOLDER [RUNS]. Prints one JSON object a
// line with the members that judges of answers read: "id" (the file's name), "layout" ("delimited",
// "space", "fixed", "line", or "none" for a file that is no text), "delimiter", "widths",
// "header_lines" (the line, from 0, of the first data), "data_ends_at" (the line behind the last,
// null: the sample ends before them), "num_columns", "names" (null: none), "types",
// "type_certainties", "decimal_mark", "escape", "encoding", "roles" (of lines that hold no data, by
// their numbers), "decided", "table_decided", "confidence", and "seconds" for opening, decoding and
// analysing, the median of RUNS (1 unless given). tools/accuracy and tools/compare run it.
#include <algorithm>
#include <charconv>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include <nlohmann/json.hpp>

#include "benchmarks/folder_files.hpp"
#include "text_import/analysis/analysis.hpp"
#include "text_import/format/utf.hpp"
#include "text_import/format/words.hpp"
#include "text_import/import_error.hpp"
#include "text_import/source/text_source.hpp"

namespace {

using nlohmann::ordered_json;
using textimport::Analysis;
using textimport::Column;
using textimport::Format;

ordered_json mark(char16_t const c) {
  return c == 0 ? ordered_json() : ordered_json(textimport::to_utf8(std::u16string(1, c)));
}

ordered_json names_of(Format const& format) {
  if (!textimport::has_names(format)) {
    return nullptr;
  }
  ordered_json names = ordered_json::array();
  for (Column const& column : format.columns) {
    names.push_back(textimport::to_utf8(column.name));
  }
  return names;
}

ordered_json types_of(Format const& format) {
  ordered_json types = ordered_json::array();
  for (Column const& column : format.columns) {
    std::string_view const word = textimport::word_of(column.type);
    types.push_back(word == "date-time" ? "datetime" : word == "duration" ? "time" : word);
  }
  return types;
}

/// The mark that the columns show; "mixed" when they show several.
ordered_json decimal_mark_of(Format const& format) {
  std::set<char16_t> marks;
  for (Column const& column : format.columns) {
    if (column.numbers.decimal_mark != 0) {
      marks.insert(column.numbers.decimal_mark);
    }
  }
  if (marks.size() > 1) {
    return "mixed";
  }
  return mark(marks.empty() ? format.marks.decimal_mark : *marks.begin());
}

ordered_json roles_of(Analysis const& analysis) {
  ordered_json roles = ordered_json::object();
  for (textimport::NotedLine const& line : analysis.evidence.lines) {
    roles[std::to_string(line.line)] = textimport::word_of(line.role);
  }
  return roles;
}

ordered_json answer_about(std::string const& path) {
  auto const text = textimport::TextSource::open(path);
  Analysis const found = textimport::analyse(text.text_sample(), {});
  Format const& format = found.format;
  auto const& end = format.region.end_line;
  bool const is_delimited = format.layout.layout == textimport::Layout::Delimited;
  return {
      {"layout", benchmarks::layout_word(format.layout.layout)},
      {"delimiter", is_delimited ? ordered_json(textimport::to_utf8(format.layout.delimiters[0]))
                                 : ordered_json()},
      {"widths", format.layout.widths},
      {"header_lines", format.region.first_line},
      {"data_ends_at", end ? ordered_json(*end) : ordered_json()},
      {"num_columns", std::max<std::size_t>(format.columns.size(), 1)},
      {"names", names_of(format)},
      {"types", types_of(format)},
      {"type_certainties", found.certainty.columns},
      {"decimal_mark", decimal_mark_of(format)},
      {"escape", mark(format.quoting.escape)},
      {"encoding", format.source.encoding},
      {"roles", roles_of(found)},
      {"decided", found.decided},
      {"table_decided", found.table_decided},
      {"confidence", found.certainty.layout}};
}

ordered_json answer(std::string const& path, std::size_t const runs) {
  using Clock = std::chrono::steady_clock;
  ordered_json object{{"id", std::filesystem::path(path).filename().string()}};
  std::vector<double> seconds;
  try {
    for (std::size_t run = 0; run < runs; ++run) {
      auto const start = Clock::now();
      object.update(answer_about(path));
      seconds.push_back(std::chrono::duration<double>(Clock::now() - start).count());
    }
  } catch (textimport::ImportError const& error) {
    object.update({{"layout", "none"}, {"decided", false}, {"message", error.message()}});
    return object;
  }
  std::sort(seconds.begin(), seconds.end());
  object["seconds"] = seconds[seconds.size() / 2];
  return object;
}

}  // namespace

int main(int const argc, char const* const* const argv) {
  std::string_view const runs_text = argc > 2 ? argv[2] : "1";
  std::size_t runs = 0;
  std::from_chars(runs_text.data(), runs_text.data() + runs_text.size(), runs);
  if (argc < 2 || argc > 3 || runs == 0) {
    std::fputs("usage: answers FOLDER [RUNS]\n", stderr);
    return 2;
  }
  try {
    for (std::string const& path : benchmarks::files_of(argv[1])) {
      std::puts(
          answer(path, runs).dump(-1, ' ', true, ordered_json::error_handler_t::replace).c_str());
    }
  } catch (std::filesystem::filesystem_error const& error) {
    std::fprintf(stderr, "answers: %s\n", error.what());
    return 2;
  }
  return 0;
}
