// SPDX-License-Identifier: MIT

#include "cli/commands/commands.hpp"
#include "cli/file_loop.hpp"
#include "text_import/report/json_report.hpp"
#include "text_import/report/report.hpp"

namespace cli {

int detect(Arguments const& arguments) {
  Task const task = make_task(arguments);
  textimport::ReportStyle const style = style_of(task);
  return answer_files(arguments, task, [&](Answer const& answer, bool const first) {
    switch (task.output) {
      case Output::Json:
        return textimport::report_json(answer.analysis, answer.subject);
      case Output::Line:
        return textimport::report_line(answer.analysis, answer.subject);
      case Output::Report:
        break;
    }
    return (first ? "" : "\n") + textimport::report(answer.analysis, answer.subject, style);
  });
}

}  // namespace cli
