// SPDX-License-Identifier: MIT
//
// Building the record readers from a record of options.
#include "text_format_detection/platform/record_readers.hpp"

#include "text_format_detection/model/text_view_internal.hpp"

namespace textio::parser {

DelimitedRecordReader::DelimitedRecordReader(parser::options const& options)
    : options_(&options),
      quote_character_(model::unit_at(options.quote_characters, 0)),
      delimiters_(get_or_create_delim(options.delimiters)),
      line_endings_(get_or_create_delim(options.line_endings)),
      stop_characters_(delimiters_->first_units() + line_endings_->first_units()) {}

FixedWidthRecordReader::FixedWidthRecordReader(parser::options const& options)
    : options_(&options),
      line_endings_(get_or_create_delim(options.line_endings)),
      stop_characters_(line_endings_->first_units()) {}

LineRecordReader::LineRecordReader(parser::options const& options)
    : options_(&options),
      value_ends_(get_or_create_delim({})),
      line_endings_(get_or_create_delim(options.line_endings)),
      stop_characters_(line_endings_->first_units()) {}

}  // namespace textio::parser
