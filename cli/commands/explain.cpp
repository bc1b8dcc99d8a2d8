// SPDX-License-Identifier: MIT

#include <nlohmann/json.hpp>

#include "cli/commands/commands.hpp"
#include "cli/console.hpp"
#include "cli/explain_report.hpp"
#include "cli/file_loop.hpp"
#include "cli/json_report.hpp"
#include "cli/settings.hpp"

namespace cli {

int explain(Arguments const& arguments) {
  Settings const settings = make_settings(arguments);
  Colors const colors = colors_of(settings.color);
  return answer_files(arguments, settings, [&](Answer const& answer, bool const first) {
    if (settings.json) {
      return json_line(explain_object(answer, settings));
    }
    return (first ? "" : "\n") + explain_report(answer, settings, colors);
  });
}

}  // namespace cli
