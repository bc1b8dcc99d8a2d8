// SPDX-License-Identifier: MIT
//
// The members of the parser errors' base, kept out of line so that they exist once.
#include "text_format_detection/model/errors.hpp"

namespace textio::parser::exception {

parser_exception::parser_exception(std::size_t const record_index, std::size_t const field_index,
                                   std::u16string const& detail_text,
                                   std::u16string const& token_text)
    : record(record_index), field(field_index), detail(detail_text), token(token_text) {}

parser_exception::parser_exception(parser_exception const&) = default;
parser_exception& parser_exception::operator=(parser_exception const&) = default;
parser_exception::~parser_exception() = default;

}  // namespace textio::parser::exception
