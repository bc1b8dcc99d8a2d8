// SPDX-License-Identifier: MIT
//
// The parts of the delimited scan that are compiled once: the reader's exported operations and the
// treatment of trailing delimiters.
#include "text_format_detection/reading/delimited_scanner_internal.hpp"

namespace textio {

namespace reading {

void apply_trailing_rule(enums::TrailingDelimitersRule const rule, RecordStore& record) {
  if (rule == enums::TrailingDelimitersRule::Keep) {
    return;
  }
  while (record.ends_with_empty_field()) {
    if (rule == enums::TrailingDelimitersRule::Error) {
      throw parser::exception::trailing_delimiters_error(0, 0, {}, {});
    }
    record.drop_last_field();
  }
}

}  // namespace reading

namespace parser {

template <class Text>
std::size_t DelimitedRecordReader::find_line_start(Text const& text, std::size_t pos) const {
  std::u16string_view const view = text.view();
  pos = model::skip_members(view, pos, model::UnitSet(options_->whitespace));
  bool const ignores_delimiters =
      options_->leading_delimiters_rule == enums::LeadingDelimitersRule::Ignore;
  return ignores_delimiters ? reading::skip_delimiters(view, pos, *delimiters_) : pos;
}

template <enums::ConsecutiveDelimitersRule Rule, class Text>
void DelimitedRecordReader::handle_consecutive_delimiters(Text const& text,
                                                          std::size_t const field_index,
                                                          std::size_t& pos, bool& pending,
                                                          std::size_t& first_trailing) const {
  static_assert(Rule == enums::ConsecutiveDelimitersRule::Error);
  std::u16string_view const view = text.view();
  if (options_->trailing_delimiters_rule == enums::TrailingDelimitersRule::Ignore) {
    std::size_t const behind = reading::skip_delimiters(view, pos, *delimiters_);
    if (behind != pos) {
      pos = behind;
      pending = true;
      first_trailing = std::min(field_index + 1, first_trailing);
    }
    return;
  }
  if (delimiters_->length_at(view, pos) != 0) {
    throw exception::consecutive_delimiters_error(0, 0, {}, {});
  }
}

template TFD_API std::size_t DelimitedRecordReader::find_line_start<Field>(Field const& text,
                                                                           std::size_t pos) const;
template TFD_API void DelimitedRecordReader::handle_consecutive_delimiters<
    enums::ConsecutiveDelimitersRule::Error, Field>(Field const& text, std::size_t field_index,
                                                    std::size_t& pos, bool& pending,
                                                    std::size_t& first_trailing) const;

}  // namespace parser

}  // namespace textio
