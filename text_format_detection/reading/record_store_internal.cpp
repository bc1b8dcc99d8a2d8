// SPDX-License-Identifier: MIT
//
// Storing one record. Whether it is empty is asked before the field limit cuts it.
#include "text_format_detection/reading/record_store_internal.hpp"

#include <algorithm>
#include <span>

namespace textio::reading {

void RecordStore::store(std::u16string_view const text, RecordScan const& scan) {
  std::size_t const num_fields = scan.num_fields();
  bool const one_blank_field =
      num_fields == 1 &&
      model::consists_of(text.substr(scan.bounds[0], scan.bounds[1] - scan.bounds[0]), whitespace_);
  if (num_fields == 0 || one_blank_field) {
    store_empty();
    return;
  }
  std::span<std::size_t const> const bounds(scan.bounds);
  fields_.append_record(text.data(), bounds.first(2 * std::min(num_fields, max_fields_)));
}

}  // namespace textio::reading
