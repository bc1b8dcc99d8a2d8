// SPDX-License-Identifier: MIT
//
// One answer for each file of a call: in the order given, whatever happens to the others.
#pragma once

#include <functional>
#include <string>

#include "cli/arguments.hpp"
#include "cli/request_building.hpp"
#include "text_import/analysis/analysis.hpp"
#include "text_import/report/style.hpp"
#include "text_import/source/text_source.hpp"

namespace cli {

/// What is known of one file. The analysis refers to the text.
struct Answer {
  textimport::TextSource text;
  textimport::Analysis analysis;
  textimport::ReportSubject subject;
};

/// Makes what is printed about one file. `first` is true for the first that is printed.
using Renderer = std::function<std::string(Answer const& answer, bool first)>;

/// Analyses each file and prints what `render` makes of it. Files that cannot be read and broken
/// rules are told on standard error, and the former as an object when JSON is asked for.
/// Returns the highest exit code. Throws UsageError, OutputError and ClosedPipe.
[[nodiscard]] int answer_files(Arguments const& arguments, Task task, Renderer const& render);

/// How the output for people looks, on what standard output is.
[[nodiscard]] textimport::ReportStyle style_of(Task const& task);

}  // namespace cli
