// SPDX-License-Identifier: MIT
//
// A Format in the words of the engine's record readers.
#pragma once

#include "text_format_detection/model/enums.hpp"
#include "text_format_detection/model/options.hpp"
#include "text_import/export.hpp"
#include "text_import/format/format.hpp"

namespace textimport {

/// The options with which the engine's readers read the data of a text of this Format, rules that
/// are set to Error included.
[[nodiscard]] TEXT_IMPORT_API textio::parser::options reading_options(Format const& format);

/// The mode of these readers.
[[nodiscard]] TEXT_IMPORT_API textio::enums::StrategyMode reading_mode(Layout layout) noexcept;

/// The layout that is read in this mode.
[[nodiscard]] TEXT_IMPORT_API Layout layout_of(textio::enums::StrategyMode mode) noexcept;

}  // namespace textimport
