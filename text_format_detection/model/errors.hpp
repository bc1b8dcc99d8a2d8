// SPDX-License-Identifier: MIT
//
// The parser errors: plain classes, thrown by value and caught by reference. They deliberately do
// not derive from std::exception; catching parser_exception catches every one of them.
#pragma once

#include <cstddef>
#include <string>

#include "text_format_detection/export.hpp"

namespace textio::parser::exception {

/// What every parser error carries.
class TFD_API parser_exception {
 public:
  parser_exception(std::size_t record, std::size_t field, std::u16string const& detail,
                   std::u16string const& token);
  parser_exception(parser_exception const&);
  parser_exception& operator=(parser_exception const&);
  ~parser_exception();

  /// The number of records counted before the failing one. 0 in the delimiter errors.
  std::size_t record;
  /// The number of fields already stored for the failing record. 0 in all but
  /// partial_field_error.
  std::size_t field;
  /// Empty in every error that this library raises.
  std::u16string detail;
  /// The two characters \n (a backslash and the letter) in partial_field_error, else empty.
  std::u16string token;
};

/// A fixed-width record ends inside a column, and the partial-field rule is Error.
class TFD_API partial_field_error : public parser_exception {
 public:
  using parser_exception::parser_exception;
};

/// A record is empty or blank, and the empty-line rule is Error.
class TFD_API empty_line_rule : public parser_exception {
 public:
  using parser_exception::parser_exception;
};

/// A record begins with a delimiter, and the leading rule is Error.
class TFD_API leading_delimiters_error : public parser_exception {
 public:
  using parser_exception::parser_exception;
};

/// A delimiter directly follows a delimiter, and the consecutive rule is Error.
class TFD_API consecutive_delimiters_error : public parser_exception {
 public:
  using parser_exception::parser_exception;
};

/// A record ends with a delimiter, and the trailing rule is Error.
class TFD_API trailing_delimiters_error : public parser_exception {
 public:
  using parser_exception::parser_exception;
};

}  // namespace textio::parser::exception
