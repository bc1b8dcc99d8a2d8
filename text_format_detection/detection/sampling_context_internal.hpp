// SPDX-License-Identifier: MIT
//
// The state of one detection call that every sampling of it uses.
#pragma once

#include <cstddef>
#include <memory>
#include <string>

#include "text_format_detection/model/field.hpp"
#include "text_format_detection/model/field_array.hpp"
#include "text_format_detection/model/options.hpp"

namespace textio::detection {

/// Made once a call. Between samplings `fields` is empty, `limit_fields` false and `max_fields`
/// unknown; after an error the half-filled array stays until the next sampling or the end of the
/// call.
struct SamplingContext {
  SamplingContext(Field const& sample_text, std::size_t const num_data_records)
      : sample(&sample_text), record_limit(num_data_records) {}

  /// The head of the text; never copied.
  Field const* sample;
  /// The array being filled.
  std::unique_ptr<FieldArray> fields;
  /// The number of data records to sample.
  std::size_t record_limit;
  /// Whether a record keeps at most `max_fields` fields.
  bool limit_fields = false;
  std::size_t max_fields = unknown_count;
  /// The number of records sampled last, for which the next array gets its room at once.
  std::size_t num_records_before = 0;
  /// The whitespace of the strategy sampled last: one-field records are trimmed by it.
  std::unique_ptr<std::u16string> whitespace;
};

}  // namespace textio::detection
