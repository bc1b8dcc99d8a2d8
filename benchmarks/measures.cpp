// SPDX-License-Identifier: MIT
//
// What the analysis measures of every way to read the files of a folder: measures FOLDER. Prints
// the names of the measures as a JSON array, then one JSON object a line: "id" (the file's name)
// and "candidates", each an array of the layout
// ("delimited", "space", "fixed", "line"), the delimiter, the number of columns, and an object from
// the position of a measure to its value, zeros left out. tools/fit_weights runs it.
#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <string>
#include <vector>

#include <nlohmann/json.hpp>

#include "benchmarks/folder_files.hpp"
#include "text_import/analysis/analysis.hpp"
#include "text_import/format/utf.hpp"
#include "text_import/import_error.hpp"
#include "text_import/source/text_source.hpp"

namespace {

using nlohmann::ordered_json;
using textimport::Candidate;

ordered_json show(Candidate const& candidate) {
  ordered_json values = ordered_json::object();
  for (auto const& piece : candidate.pieces) {
    values[std::to_string(piece.measure)] = piece.value;
  }
  return {benchmarks::layout_word(candidate.layout), textimport::to_utf8(candidate.delimiter),
          candidate.num_columns, values};
}

/// The measures are the same for all files.
void print_file(std::string const& path, bool const is_first) {
  auto const text = textimport::TextSource::open(path);
  auto const found = textimport::analyse(text.text_sample(), {});
  if (is_first) {
    ordered_json names = ordered_json::array();
    for (auto const& measure : found.evidence.measures) {
      names.push_back(measure.name);
    }
    std::puts(names.dump().c_str());
  }
  ordered_json candidates = ordered_json::array();
  for (Candidate const& candidate : found.evidence.candidates) {
    if (candidate.is_table) {
      candidates.push_back(show(candidate));
    }
  }
  ordered_json const object{{"id", std::filesystem::path(path).filename().string()},
                            {"candidates", candidates}};
  std::puts(object.dump(-1, ' ', true, ordered_json::error_handler_t::replace).c_str());
}

}  // namespace

int main(int const argc, char const* const* const argv) {
  if (argc != 2) {
    std::fputs("usage: measures FOLDER\n", stderr);
    return 2;
  }
  try {
    bool is_first = true;
    for (std::string const& path : benchmarks::files_of(argv[1])) {
      try {
        print_file(path, is_first);
        is_first = false;
      } catch (textimport::ImportError const&) {
        continue;  // no text: nothing to weigh
      }
    }
  } catch (std::filesystem::filesystem_error const& error) {
    std::fprintf(stderr, "measures: %s\n", error.what());
    return 2;
  }
  return 0;
}
