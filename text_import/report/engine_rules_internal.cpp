// SPDX-License-Identifier: MIT
#include "text_import/report/engine_rules_internal.hpp"

#include <algorithm>
#include <array>

namespace textimport::reporting {

namespace {

constexpr std::array engine_rules{
    EngineRuleText{"numvariables", "the number of columns that is expected",
                   "only this one has the number of columns that is expected"},
    EngineRuleText{"dates", "any columns of dates and times",
                   "only this one has columns of dates or times"},
    EngineRuleText{"variation", "least irregular, small differences aside",
                   "this one's records are the most regular"},
    EngineRuleText{"class_value",
                   "most telling column types: a date with time counts 25, a date or duration 10, "
                   "a number 3, another type 1, a lone delimiter -1",
                   "this one's column types tell the most"},
    EngineRuleText{"header_lines", "fewest header lines, if the records are all alike",
                   "this one has the fewest header lines"},
    EngineRuleText{"non_empty", "largest share of columns with values",
                   "this one has the largest share of columns with values"},
    EngineRuleText{"priors_rank",
                   "most usual delimiter: comma 0, tab 1, semicolon 2, space 3, runs of blanks 3.5",
                   "this one's delimiter is the most usual"},
};

}  // namespace

EngineRuleText engine_rule(std::string_view const name) {
  auto const* const known = std::ranges::find(engine_rules, name, &EngineRuleText::name);
  return known == engine_rules.end() ? EngineRuleText{name, name, name} : *known;
}

}  // namespace textimport::reporting
