// SPDX-License-Identifier: MIT
//
// Catching parser errors by their own types.
#pragma once

#include "text_format_detection/model/errors.hpp"

namespace support {

/// Calls `action`, and `found` with the name and the parser error that it throws, if any. The base
/// comes last: whoever is caught there has lost its own type.
template <class Action, class Found>
void catch_parser_error(Action const& action, Found const& found) {
  namespace exception = textio::parser::exception;
  try {
    action();
  } catch (exception::partial_field_error const& error) {
    found("partial_field_error", error);
  } catch (exception::empty_line_rule const& error) {
    found("empty_line_rule", error);
  } catch (exception::leading_delimiters_error const& error) {
    found("leading_delimiters_error", error);
  } catch (exception::consecutive_delimiters_error const& error) {
    found("consecutive_delimiters_error", error);
  } catch (exception::trailing_delimiters_error const& error) {
    found("trailing_delimiters_error", error);
  } catch (exception::parser_exception const& error) {
    found("parser_exception", error);
  }
}

}  // namespace support
