// SPDX-License-Identifier: MIT
//
// What the survey answers about the files of a folder: survey_answers FOLDER [RUNS]. Prints one
// JSON object a line: "id" (the file's name), "layout" ("delimited", "space", "fixed", "line", or
// "none" for a file that is no text), "delimiter", "header_lines" (the physical line, from 0, of
// the first data), "num_columns", "decided", "confidence", and "seconds" for opening, reading,
// decoding and surveying, the median of RUNS (1 unless given). tools/accuracy runs it.
#include <algorithm>
#include <charconv>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <nlohmann/json.hpp>

#include "text_import/import_error.hpp"
#include "text_import/source/text_source.hpp"
#include "text_import/survey/survey.hpp"

namespace {

using nlohmann::ordered_json;

char const* layout_word(textimport::Layout const layout) {
  switch (layout) {
    case textimport::Layout::Delimited:
      return "delimited";
    case textimport::Layout::SpaceAligned:
      return "space";
    case textimport::Layout::FixedWidth:
      return "fixed";
    case textimport::Layout::Lines:
      break;
  }
  return "line";
}

/// A delimiter as UTF-8; those that are guessed lie in the basic plane.
std::string to_utf8(std::u16string const& text) {
  std::string bytes;
  for (char16_t const c : text) {
    if (c < 0x80) {
      bytes += static_cast<char>(c);
      continue;
    }
    if (c >= 0x800) {
      bytes += static_cast<char>(0xE0 | (c >> 12));
    }
    bytes += static_cast<char>(c < 0x800 ? 0xC0 | (c >> 6) : 0x80 | ((c >> 6) & 0x3F));
    bytes += static_cast<char>(0x80 | (c & 0x3F));
  }
  return bytes;
}

ordered_json survey_file(std::string const& path) {
  auto const text = textimport::TextSource::open(path);
  textimport::SurveyOptions options;
  options.goes_on = text.findings().goes_on;
  options.encoding = text.findings().encoding.name;
  auto const found = textimport::survey_text(text.sample(), options);
  return {{"layout", layout_word(found.layout)},
          {"delimiter", to_utf8(found.delimiter)},
          {"header_lines", found.data_starts_at},
          {"num_columns", found.num_columns},
          {"decided", found.decided},
          {"confidence", found.confidence}};
}

ordered_json answer(std::string const& path, std::size_t const runs) {
  using Clock = std::chrono::steady_clock;
  ordered_json object{{"id", std::filesystem::path(path).filename().string()}};
  std::vector<double> seconds;
  try {
    for (std::size_t run = 0; run < runs; ++run) {
      auto const start = Clock::now();
      object.update(survey_file(path));
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
    std::fputs("usage: survey_answers FOLDER [RUNS]\n", stderr);
    return 2;
  }
  try {
    std::vector<std::string> paths;
    for (auto const& entry : std::filesystem::directory_iterator(argv[1])) {
      if (entry.is_regular_file()) {
        paths.push_back(entry.path().string());
      }
    }
    std::sort(paths.begin(), paths.end());
    for (std::string const& path : paths) {
      std::puts(
          answer(path, runs).dump(-1, ' ', true, ordered_json::error_handler_t::replace).c_str());
    }
  } catch (std::filesystem::filesystem_error const& error) {
    std::fprintf(stderr, "survey_answers: %s\n", error.what());
    return 2;
  }
  return 0;
}
