// SPDX-License-Identifier: MIT
//
// A stranger's program that opens a file, finds out how it is laid out, saves that and reads it
// back, and catches the error of a file that is not there.
#include <cstdio>

#include <text_import/analysis/analysis.hpp>
#include <text_import/format/format_json.hpp>
#include <text_import/import_error.hpp>
#include <text_import/report/report.hpp>
#include <text_import/source/text_source.hpp>
#include <text_import/table/rows.hpp>

int main(int argc, char** argv) {
  if (argc != 2) {
    return 2;
  }
  try {
    auto const text = textimport::TextSource::open(argv[1]);
    auto const analysis = textimport::analyse(text.text_sample(), {});
    auto const again = textimport::format_from_json(textimport::to_json(analysis.format));
    bool const is_same = again.format && *again.format == analysis.format;
    auto const rows = textimport::read_rows(analysis.format, text.text_sample().text, 1);
    if (!is_same || rows.size() != 1 || textimport::report(analysis, {}, {}).empty()) {
      return 1;
    }
    textimport::TextSource::open("no such file");
  } catch (textimport::ImportError const& error) {
    std::puts("opened");
    return error.kind() == textimport::ImportErrorKind::FileNotFound ? 0 : 1;
  }
  return 1;
}
