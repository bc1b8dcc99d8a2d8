// SPDX-License-Identifier: MIT
//
// Keeping one record. Whether it is empty is asked before the field limit cuts it.
#include "text_format_detection/reading/record_store_internal.hpp"

#include <algorithm>

namespace textio::reading {

bool RecordStore::is_empty() const noexcept {
  std::span<Field const> const fields = array_.open_fields();
  if (status != Status::Whole) {
    return false;
  }
  if (fields.empty()) {
    return true;
  }
  char16_t const* const end = fields.back().data() + fields.back().length();
  std::size_t const length = static_cast<std::size_t>(end - text_.data()) - start_;
  return model::consists_of(text_.substr(start_, length), whitespace_);
}

void RecordStore::keep() {
  std::span<Field const> const fields = array_.open_fields();
  bool const is_blank =
      fields.size() == 1 && model::consists_of(fields.front().view(), whitespace_);
  std::size_t const num_kept = is_blank ? 0 : std::min(fields.size(), max_fields_);
  if (num_kept < fields.size()) {
    array_.drop_open_fields(num_kept);
  }
  array_.end_record();
}

}  // namespace textio::reading
