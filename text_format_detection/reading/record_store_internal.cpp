// SPDX-License-Identifier: MIT
//
// Storing one record. Whether it is empty is asked before the field limit cuts it.
#include "text_format_detection/reading/record_store_internal.hpp"

#include <algorithm>
#include <span>

namespace textio::reading {

void RecordStore::store(std::u16string_view const text, RecordScan const& scan) {
  std::span<FieldBounds const> const fields = scan.fields();
  if (fields.empty() || (fields.size() == 1 && is_blank(text, fields.front()))) {
    store_empty();
    return;
  }
  fields_.append_record(text.data(), fields.first(std::min(fields.size(), max_fields_)));
}

bool RecordStore::is_blank(std::u16string_view const text, FieldBounds const field) const {
  return model::consists_of(text.substr(field.start, field.end - field.start), whitespace_);
}

}  // namespace textio::reading
