// SPDX-License-Identifier: MIT
//
// A stranger's program that opens a file, and catches the error of one that is not there.
#include <cstdio>

#include <text_import/import_error.hpp>
#include <text_import/source/text_source.hpp>

int main(int argc, char** argv) {
  if (argc != 2) {
    return 2;
  }
  try {
    if (textimport::TextSource::open(argv[1]).sample().empty()) {
      return 1;
    }
    textimport::TextSource::open("no such file");
  } catch (textimport::ImportError const& error) {
    std::puts("opened");
    return error.kind() == textimport::ImportErrorKind::FileNotFound ? 0 : 1;
  }
  return 1;
}
