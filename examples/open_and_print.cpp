// SPDX-License-Identifier: MIT
//
// Opens a file, prints what a reader of it has to know as JSON, and the first rows of its table.
#include <iostream>
#include <string>

#include <text_import/analysis/analysis.hpp>
#include <text_import/format/format_json.hpp>
#include <text_import/format/utf.hpp>
#include <text_import/import_error.hpp>
#include <text_import/source/text_source.hpp>
#include <text_import/table/rows.hpp>

int main(int const count, char** const words) {
  if (count != 2) {
    std::cerr << "usage: open_and_print FILE\n";
    return 2;
  }
  try {
    auto const text = textimport::TextSource::open(words[1]);
    auto const analysis = textimport::analyse(text.text_sample(), {});
    textimport::Format const& format = analysis.format;
    std::cout << textimport::to_json(format);

    auto const& region = format.region;
    auto const end_line = region.end_line.value_or(analysis.lines.count());
    auto const data = analysis.lines.between(region.first_line, end_line);
    for (textimport::Row const& row : textimport::read_rows(format, data, 5)) {
      std::string between;
      for (std::u16string const& value : row) {
        std::cout << between << textimport::to_utf8(value);
        between = " | ";
      }
      std::cout << '\n';
    }
    return analysis.decided ? 0 : 1;
  } catch (textimport::ImportError const& error) {
    std::cerr << error.what() << '\n';
    return 2;
  }
}
