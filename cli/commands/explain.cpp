// SPDX-License-Identifier: MIT

#include "cli/commands/commands.hpp"
#include "cli/file_loop.hpp"
#include "text_import/report/json_report.hpp"
#include "text_import/report/report.hpp"

namespace cli {

int explain(Arguments const& arguments) {
  Task const task = make_task(arguments);
  textimport::ReportStyle const style = style_of(task);
  return answer_files(arguments, task, [&](Answer const& answer, bool const first) {
    if (task.output == Output::Json) {
      return textimport::explanation_json(answer.analysis, answer.subject);
    }
    return (first ? "" : "\n") + textimport::explanation(answer.analysis, answer.subject, style);
  });
}

}  // namespace cli
