// SPDX-License-Identifier: MIT
//
// What speaks for the role of each line of some files: line_features <LIST. The list names one file
// a line, behind a tab its layout ("delimited", "space", "fixed") and behind another the delimiter,
// "\t" for a tab; a file without layout is read as the analysis finds it. Prints one JSON object a
// file: "id", "layout", "columns", "sees_end", "lines" (first line, line behind, kind), "judged"
// (position among the lines, whether a blank line stands before it, the features' numbers, the role
// that the weights give), "texts" (the cells of the first lines), and "margin". tools/fit_roles
// reads it.
#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <iostream>
#include <string>
#include <string_view>
#include <vector>

#include <nlohmann/json.hpp>

#include "text_import/analysis/describing/line_features_internal.hpp"
#include "text_import/analysis/describing/role_sequence_internal.hpp"
#include "text_import/analysis/describing/table_lines_internal.hpp"
#include "text_import/analysis/readings/collecting_internal.hpp"
#include "text_import/analysis/weighing/weighing_internal.hpp"
#include "text_import/format/utf.hpp"
#include "text_import/format/words.hpp"
#include "text_import/import_error.hpp"
#include "text_import/source/text_source.hpp"

namespace {

using nlohmann::ordered_json;
namespace analysis = textimport::analysis;

textimport::Request request_of(std::string_view const layout, std::string const& delimiter) {
  textimport::Request request;
  if (layout == "delimited" && !delimiter.empty()) {
    request.delimiters.push_back(delimiter == "\\t" ? u"\t" : *textimport::from_utf8(delimiter));
  } else if (layout == "space") {
    request.layout = textimport::Layout::SpaceAligned;
  } else if (layout == "fixed") {
    request.layout = textimport::Layout::FixedWidth;
  }
  return request;
}

ordered_json lines_of(analysis::TableLines const& lines) {
  ordered_json list = ordered_json::array();
  for (analysis::TableLine const& line : lines.all()) {
    list.push_back({line.line, line.end, static_cast<int>(line.kind)});
  }
  return list;
}

ordered_json texts_of(analysis::TableLines const& lines) {
  constexpr std::size_t most = 60;
  ordered_json list = ordered_json::array();
  for (std::size_t i = 0; i < std::min(most, lines.all().size()); ++i) {
    ordered_json texts = ordered_json::array();
    for (analysis::LineCell const& cell : lines.cells(lines.all()[i])) {
      texts.push_back(textimport::to_utf8(cell.text));
    }
    list.push_back(texts);
  }
  return list;
}

ordered_json judged_of(analysis::TableLines const& lines, bool const sees_end,
                       ordered_json& margin) {
  ordered_json list = ordered_json::array();
  auto const judged = analysis::judge_lines(lines, sees_end);
  auto const roles = analysis::best_roles(judged, sees_end, {});
  for (std::size_t i = 0; i < judged.size(); ++i) {
    ordered_json features = ordered_json::array();
    for (analysis::LineFeature const feature : judged[i].features) {
      features.push_back(static_cast<int>(feature));
    }
    list.push_back(
        {judged[i].position, judged[i].blank_before, features, static_cast<int>(roles.roles[i])});
  }
  margin = std::min({roles.margins.first_line, roles.margins.last_line, roles.margins.names});
  return list;
}

ordered_json describe(std::string const& path, std::string_view const layout,
                      std::string const& delimiter) {
  auto const text = textimport::TextSource::open(path);
  auto const sample = text.text_sample();
  auto const task = analysis::make_task(sample, request_of(layout, delimiter));
  textimport::LineIndex const index(sample.text, task.parsing.line_endings);
  auto collected =
      analysis::collect_readings(index, analysis::propose_hypotheses(index, task), task);
  auto const weighed = analysis::weigh_readings(
      collected.readings, index, collected.engine_decision.get(), task.layout.has_value());
  ordered_json object{{"id", std::filesystem::path(path).filename().string()}};
  if (!weighed.winner) {
    return object;
  }
  analysis::Reading const& reading = collected.readings[*weighed.winner];
  analysis::TableLines const lines(reading, index);
  bool const sees_end = !sample.goes_on && reading.records.size() < task.request.records;
  object["layout"] = textimport::word_of(reading.layout);
  object["columns"] = reading.block.columns;
  object["sees_end"] = sees_end;
  object["lines"] = lines_of(lines);
  object["judged"] = judged_of(lines, sees_end, object["margin"]);
  object["texts"] = texts_of(lines);
  return object;
}

}  // namespace

int main() {
  ordered_json names = ordered_json::array();
  for (analysis::FeatureText const& feature : analysis::feature_texts) {
    names.push_back(feature.name);
  }
  std::puts(names.dump().c_str());
  std::string line;
  while (std::getline(std::cin, line)) {
    std::size_t const layout = line.find('\t');
    std::size_t const delimiter = line.find('\t', layout + 1);
    try {
      std::puts(describe(line.substr(0, layout), line.substr(layout + 1, delimiter - layout - 1),
                         line.substr(delimiter + 1))
                    .dump(-1, ' ', true, ordered_json::error_handler_t::replace)
                    .c_str());
    } catch (textimport::ImportError const& error) {
      std::fprintf(stderr, "line_features: %s\n", error.what());
    }
  }
  return 0;
}
