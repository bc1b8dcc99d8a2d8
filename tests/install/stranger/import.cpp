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
    if (textimport::text_source::open(argv[1]).sample().empty()) {
      return 1;
    }
    textimport::text_source::open("no such file");
  } catch (textimport::import_error const& error) {
    std::puts("opened");
    return error.kind() == textimport::import_error_kind::FileNotFound ? 0 : 1;
  }
  return 1;
}
