// SPDX-License-Identifier: MIT
//
// The story of a survey: hypotheses, readings, weighing, and what can be said of the answer.
#include "text_import/survey/survey.hpp"

#include <cstdio>
#include <cstdlib>
#include "text_import/survey/header_rows_internal.hpp"
#include "text_import/survey/hypothesis_internal.hpp"
#include "text_import/survey/readings_internal.hpp"
#include "text_import/survey/sample_lines_internal.hpp"
#include "text_import/survey/weighing_internal.hpp"

namespace textimport {

namespace survey {
namespace {
std::string narrow(std::u16string_view t){ std::string s; for(char16_t c: t) s.push_back(c<32?'^':c<127?char(c):'?'); return s; }
}
}

survey_findings survey_text(textio::Field const& sample, survey_options const& options) {
  using namespace survey;
  std::u16string_view const text = sample.view().substr(0, sample.view().find(textio::end_mark));
  sample_lines const lines(text, options.parsing.line_endings);
  auto const hypotheses = propose_hypotheses(lines, options);
  auto readings = collect_readings(lines, hypotheses, options);
  weighing const weighed = weigh_readings(readings, options.given.layout || options.given.delimiter || options.given.widths);
  static bool const dump = std::getenv("DUMP") != nullptr;
  survey_findings f;
  for (std::size_t i=0;i<readings.size();++i) { auto&r=readings[i];
    if (dump) std::printf("   h%zu %d '%s' k%zu cov %.3f reg %.3f sound %.3f broken %.3f typed %.3f empty %.3f tc %zu rec %zu..%zu of %zu fell %s\n", r.hypothesis, int(r.layout), narrow(r.delimiter).c_str(), r.block.columns, r.coverage, r.regularity, r.soundness, r.broken_share, r.typed_share, r.empty_share, r.typed_columns, r.block.first, r.block.last, r.records.size(), std::string(weighed.fates[i].rule).c_str());
    f.candidates.push_back({hypotheses[r.hypothesis].name, r.layout, r.delimiter, r.block.columns, r.coverage, r.soundness, weighed.fates[i].rule, weighed.fates[i].measure});
  }
  f.winner = weighed.winner;
  if (f.winner) { auto& r=readings[*f.winner];
    f.layout = r.layout; f.delimiter=r.delimiter; f.num_columns=r.block.columns; f.data_starts_at = r.records[find_header_rows(r).first_data].line; f.strategy = r.strategy;  f.columns.resize(f.num_columns);}
  else { f.strategy = read_lines(lines, options); f.columns.resize(1); }
  return f;
}

}  // namespace textimport
