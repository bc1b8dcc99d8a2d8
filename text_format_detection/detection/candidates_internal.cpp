// SPDX-License-Identifier: MIT
//
// Building candidates in order, and the acceptance test.
#include "text_format_detection/detection/candidates_internal.hpp"

#include <utility>

#include "text_format_detection/detection/candidate_characters_internal.hpp"
#include "text_format_detection/detection/fixed_width_detection_internal.hpp"
#include "text_format_detection/detection/line_alignment_internal.hpp"
#include "text_format_detection/detection/sampler_internal.hpp"
#include "text_format_detection/model/text_constants_internal.hpp"
#include "text_format_detection/model/text_view_internal.hpp"
#include "text_format_detection/strategies/layout_strategies.hpp"

namespace textio::detection {

namespace {

using StrategyPtr = std::shared_ptr<GenericStrategy>;

// A variation from here on is no table: lines lie a whole field off the typical number.
constexpr double variation_limit = 1.0;

/// The share of a strategy's columns whose type is decided.
double typed_share(GenericStrategy& strategy) {
  StrategyValuation const& score = strategy.valuation();
  return static_cast<double>(score.typed_columns) / static_cast<double>(score.num_variables);
}

class CandidateBuilder {
 public:
  explicit CandidateBuilder(CandidateInput const& input) : in_(input) {}

  CandidateList build() {
    if (in_.options.layout == enums::Layout::FixedWidth) {
      build_fixed_width();
    } else {
      build_from_characters();
    }
    return std::move(list_);
  }

 private:
  /// A new strategy of one kind, from the caller's options.
  template <class Strategy, class... Arguments>
  [[nodiscard]] StrategyPtr make(Arguments&&... arguments) const {
    return std::make_shared<Strategy>(in_.options, in_.type_options,
                                      std::forward<Arguments>(arguments)...);
  }

  void sample(StrategyPtr const& strategy) {
    sample_strategy(in_.context, strategy, true);
    if (in_.log != nullptr) {
      in_.log->push_back({strategy, CandidateFate::Accepted, RejectionClause::None, {}});
    }
  }

  void append(StrategyPtr const& strategy) {
    list_.push_back(strategy);
    if (SampledStrategy* const entry = last_entry()) {
      entry->candidate = list_.size() - 1;
    }
  }

  void note(CandidateFate const fate, RejectionClause const clause = RejectionClause::None) {
    if (SampledStrategy* const entry = last_entry()) {
      entry->fate = fate;
      entry->clause = clause;
    }
  }

  /// What the log says of the strategy sampled last: each one's fate is known before the next.
  [[nodiscard]] SampledStrategy* last_entry() const {
    return in_.log != nullptr ? &in_.log->back() : nullptr;
  }

  /// The fixed-width layout that the caller asks for, with widths given or to be found.
  void build_fixed_width() {
    if (!in_.options.column_widths.empty()) {
      StrategyPtr const strategy =
          make<FixedWidthStrategy>(std::vector<std::size_t>(in_.options.column_widths));
      sample(strategy);
      strategy->header_lines(
          equal_length_header(*strategy, in_.lines, in_.options.detect_header_lines));
      append(strategy);
      return;
    }
    if (!in_.options.detect_header_lines && in_.options.header_lines >= in_.lines.num_records()) {
      // Nothing but header lines: there are no data lines to find columns in.
      StrategyPtr const strategy = make<FixedWidthStrategy>(std::vector<std::size_t>{1});
      strategy->header_lines(in_.options.header_lines);
      sample(strategy);
      append(strategy);
      return;
    }
    StrategyPtr const space_aligned = make<SpaceAlignedStrategy>();
    sample(space_aligned);
    choose_fixed_width(space_aligned);
  }

  void build_from_characters() {
    std::u16string const characters = candidate_characters(in_.lines);
    list_.reserve(characters.size());
    char16_t const thousands_separator = model::unit_at(in_.options.thousands_separator, 0);
    for (char16_t const character : characters) {
      if (character == in_.options.decimal_separator || character == thousands_separator) {
        continue;
      }
      if (character == u' ') {
        build_from_blanks();
        continue;
      }
      StrategyPtr const strategy = make<DelimitedStrategy>(character);
      sample(strategy);
      append_if_acceptable(strategy);
    }
  }

  /// Blanks stand for a space-aligned text, for fixed-width columns or for single spaces.
  void build_from_blanks() {
    StrategyPtr const space_aligned = make<SpaceAlignedStrategy>();
    sample(space_aligned);
    bool const compare = append_for_blanks(space_aligned);
    StrategyPtr const single_space = make<DelimitedStrategy>(u' ');
    sample(single_space);
    if (compare && !(typed_share(*single_space) >= typed_share(*space_aligned))) {
      note(CandidateFate::LessTyped);
      return;
    }
    append_if_acceptable(single_space);
  }

  /// Returns whether the single-space strategy has to match what was appended.
  bool append_for_blanks(StrategyPtr const& space_aligned) {
    bool const may_be_fixed_width = in_.options.layout != enums::Layout::SpaceAligned &&
                                    in_.lines.num_records() > 1 &&
                                    lines_are_aligned(in_.lines, space_aligned->header_lines());
    if (!may_be_fixed_width) {
      return append_if_acceptable(space_aligned);
    }
    choose_fixed_width(space_aligned);
    return true;
  }

  /// Appends fixed-width columns when they are asked for, or when they are more regular than the
  /// space-aligned reading without being more; else the space-aligned strategy. Neither is tested.
  void choose_fixed_width(StrategyPtr const& space_aligned) {
    StrategyValuation const& score = space_aligned->valuation();
    std::size_t const header_lines =
        equal_length_header(*space_aligned, in_.lines, in_.options.detect_header_lines);
    FixedWidthLayout layout = overlay_lines(in_.lines, header_lines);
    bool const asked_for = in_.options.layout == enums::Layout::FixedWidth;
    bool const better =
        score.num_variables >= layout.num_columns && score.data_variation > layout.variation;
    if (!asked_for && !better) {
      append(space_aligned);
      return;
    }
    note(CandidateFate::ReplacedByFixedWidth);
    StrategyPtr const fixed_width = make<FixedWidthStrategy>(std::move(layout.widths));
    fixed_width->header_lines(header_lines);
    sample(fixed_width);
    append(fixed_width);
  }

  bool append_if_acceptable(StrategyPtr const& strategy) {
    RejectionClause const clause =
        find_rejection(strategy->valuation(), in_.options.ignore_num_variables);
    if (clause != RejectionClause::None) {
      note(CandidateFate::Rejected, clause);
      return false;
    }
    append(strategy);
    return true;
  }

  CandidateInput const& in_;
  CandidateList list_;
};

}  // namespace

CandidateList generate_candidates(CandidateInput const& input) {
  return CandidateBuilder(input).build();
}

RejectionClause find_rejection(StrategyValuation const& score, bool const ignore_num_variables) {
  bool const one_field = score.typical_fields < 2;
  bool const irregular = !(score.data_variation < variation_limit);
  if (score.num_records == 1) {
    // One record proves little: only the usual delimiters are believed.
    if (score.prior_rank >= static_cast<double>(model::default_delimiters.size())) {
      return RejectionClause::SingleRecordUncommonDelimiter;
    }
    if (one_field) {
      return RejectionClause::SingleRecordOneField;
    }
    return irregular ? RejectionClause::SingleRecordIrregular : RejectionClause::None;
  }
  if (irregular) {
    return RejectionClause::Irregular;
  }
  // One field a record is a table only if somebody expects a number of variables. (Its variation
  // is never computed, so that the clause above comes first; the order is deliberate.)
  bool const expected = !ignore_num_variables && score.num_records > 1;
  return one_field && !expected ? RejectionClause::OneField : RejectionClause::None;
}

}  // namespace textio::detection
