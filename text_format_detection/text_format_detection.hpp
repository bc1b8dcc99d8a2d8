// SPDX-License-Identifier: MIT
//
// Everything public.
#pragma once

#include "text_format_detection/detection/detection_report.hpp"
#include "text_format_detection/detection/evaluate_strategy.hpp"
#include "text_format_detection/detection/header_lines.hpp"
#include "text_format_detection/detection/strategy_selector.hpp"
#include "text_format_detection/detection/untried_characters.hpp"
#include "text_format_detection/export.hpp"
#include "text_format_detection/model/enums.hpp"
#include "text_format_detection/model/errors.hpp"
#include "text_format_detection/model/field.hpp"
#include "text_format_detection/model/field_array.hpp"
#include "text_format_detection/model/options.hpp"
#include "text_format_detection/platform/datetime.hpp"
#include "text_format_detection/platform/delimiter_matcher.hpp"
#include "text_format_detection/platform/record_readers.hpp"
#include "text_format_detection/platform/text_stream.hpp"
#include "text_format_detection/platform/type_analyzer_options.hpp"
#include "text_format_detection/reading/fixed_stream.hpp"
#include "text_format_detection/reading/read_records.hpp"
#include "text_format_detection/reading/read_summary.hpp"
#include "text_format_detection/strategies/generic_strategy.hpp"
#include "text_format_detection/strategies/layout_strategies.hpp"
#include "text_format_detection/strategies/strategy_valuation.hpp"
#include "text_format_detection/version.hpp"
