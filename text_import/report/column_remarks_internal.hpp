// SPDX-License-Identifier: MIT
//
// What is not as usual about a column, in words.
#pragma once

#include <string>

#include "text_import/format/column.hpp"
#include "text_import/format/evidence.hpp"

namespace textimport::reporting {

/// "day first; 3 of 20 values are other; 19 empty"; empty when all is as usual. `certainty`: of the
/// type, which is told when it is low.
[[nodiscard]] std::string column_remarks(Column const& column, ColumnEvidence const& counts,
                                         double certainty);

}  // namespace textimport::reporting
