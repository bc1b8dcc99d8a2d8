// SPDX-License-Identifier: MIT
//
// Made by tools/fit_weights from labelled files; not to be edited by hand.
#include "text_import/analysis/weighing/weights_internal.hpp"

namespace textimport::analysis {

namespace {

constexpr std::array<MeasureWeights, 79> weights{{
    {"kind", {0, 0, 0, 0, 0}},
    {"tab", {0, 0, 0, 0, 0}},
    {"comma", {0, 0, 0, 0, 0}},
    {"semicolon", {0, 0, 0, 0, 0}},
    {"bar", {0, 0, 0, 0, 0}},
    {"long_delimiter", {0, 0, 0, 0, 0}},
    {"inner_sign", {0, 0, 0, 0, 0}},
    {"single_blank", {0, 0, 0, 0, 0}},
    {"assumed", {0, 0, 0, 0, 0}},
    {"engine", {0, 0, 0, 0, 0}},
    {"uncovered", {0, 0, 0, 0, 0}},
    {"uncovered_root", {0, 0, 0, 0, 0}},
    {"irregular", {0, 0, 0, 0, 0}},
    {"split", {0, 0, 0, 0, 0}},
    {"split_much", {0, 0, 0, 0, 0}},
    {"records", {0, 0, 0, 0, 0}},
    {"one_record", {0, 0, 0, 0, 0}},
    {"two_records", {0, 0, 0, 0, 0}},
    {"reaches_end", {0, 0, 0, 0, 0}},
    {"flawless_end", {0, 0, 0, 0, 0}},
    {"long_records", {0, 0, 0, 0, 0}},
    {"unsound", {0, 0, 0, 0, 0}},
    {"broken", {0, 0, 0, 0, 0}},
    {"mixed", {0, 0, 0, 0, 0}},
    {"empty", {0, 0, 0, 0, 0}},
    {"open_ends", {0, 0, 0, 0, 0}},
    {"typed", {0, 0, 0, 0, 0}},
    {"typed_column", {0, 0, 0, 0, 0}},
    {"names", {0, 0, 0, 0, 0}},
    {"two_columns", {0, 0, 0, 0, 0}},
    {"columns", {0, 0, 0, 0, 0}},
    {"inner_blanks", {0, 0, 0, 0, 0}},
    {"seconds", {0, 0, 0, 0, 0}},
    {"keys", {0, 0, 0, 0, 0}},
    {"fit", {0, 0, 0, 0, 0}},
    {"unaligned", {0, 0, 0, 0, 0}},
    {"narrow_gaps", {0, 0, 0, 0, 0}},
    {"disagreement", {0, 0, 0, 0, 0}},
    {"head_disagreement", {0, 0, 0, 0, 0}},
    {"tail", {0, 0, 0, 0, 0}},
    {"ruled", {0, 0, 0, 0, 0}},
    {"unequal", {0, 0, 0, 0, 0}},
    {"torn", {0, 0, 0, 0, 0}},
    {"as_by_blanks", {0, 0, 0, 0, 0}},
    {"columns_by_blanks", {0, 0, 0, 0, 0}},
    {"rival_tab", {0, 0, 0, 0, 0}},
    {"rival_usual", {0, 0, 0, 0, 0}},
    {"rival_blank", {0, 0, 0, 0, 0}},
    {"rival_rare", {0, 0, 0, 0, 0}},
    {"rival_fixed", {0, 0, 0, 0, 0}},
    {"rival_best", {0, 0, 0, 0, 0}},
    {"behind", {0, 0, 0, 0, 0}},
    {"sentences", {0, 0, 0, 0, 0}},
    {"function_words", {0, 0, 0, 0, 0}},
    {"numbers", {0, 0, 0, 0, 0}},
    {"time_stamps", {0, 0, 0, 0, 0}},
    {"logs", {0, 0, 0, 0, 0}},
    {"levels", {0, 0, 0, 0, 0}},
    {"pairs", {0, 0, 0, 0, 0}},
    {"single_values", {0, 0, 0, 0, 0}},
    {"leaders", {0, 0, 0, 0, 0}},
    {"colon_keys", {0, 0, 0, 0, 0}},
    {"equals_keys", {0, 0, 0, 0, 0}},
    {"tags", {0, 0, 0, 0, 0}},
    {"code", {0, 0, 0, 0, 0}},
    {"indented", {0, 0, 0, 0, 0}},
    {"blank_lines", {0, 0, 0, 0, 0}},
    {"letters", {0, 0, 0, 0, 0}},
    {"digits", {0, 0, 0, 0, 0}},
    {"wide_gaps", {0, 0, 0, 0, 0}},
    {"comma_blanks", {0, 0, 0, 0, 0}},
    {"prose", {0, 0, 0, 0, 0}},
    {"patterns", {0, 0, 0, 0, 0}},
    {"length_spread", {0, 0, 0, 0, 0}},
    {"words_spread", {0, 0, 0, 0, 0}},
    {"words", {0, 0, 0, 0, 0}},
    {"addresses", {0, 0, 0, 0, 0}},
    {"lines", {0, 0, 0, 0, 0}},
    {"few_lines", {0, 0, 0, 0, 0}},
}};

}  // namespace

std::span<MeasureWeights const> all_weights() noexcept {
  return weights;
}

double const decided_from = 0.65;

}  // namespace textimport::analysis
