// SPDX-License-Identifier: MIT
//
// A bounded block of a stream that ends on a line.
#pragma once

#include <string>
#include <vector>

#include "text_format_detection/export.hpp"
#include "text_format_detection/model/field.hpp"
#include "text_format_detection/platform/text_stream.hpp"

namespace textio {

/// The text that the stream holds from its current position: all of it when it is at most
/// 4,194,304 code units long, otherwise a prefix of at most that length which ends just behind the
/// first code unit of a terminator (the last one that lies wholly within that length).
///
/// Empty when a longer text has no terminator there. Grows and refills the stream's buffer, and
/// does not move its current position. The field is a view into the buffer: valid until the stream
/// grows, is refilled, advances or ends. Throws what the stream's source throws and std::bad_alloc.
[[nodiscard]] TFD_API Field get_fixed_stream(ostrel::io::text::stream::TextStream const& stream,
                                             std::vector<std::u16string> const& terminators);

}  // namespace textio
