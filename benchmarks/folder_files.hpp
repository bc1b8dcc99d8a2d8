// SPDX-License-Identifier: MIT
//
// What the programs that answer about the files of a folder have in common.
#pragma once

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

#include "text_import/format/format.hpp"

namespace benchmarks {

/// The word by which labels of files name a layout.
[[nodiscard]] inline char const* layout_word(textimport::Layout const layout) {
  switch (layout) {
    case textimport::Layout::Delimited:
      return "delimited";
    case textimport::Layout::SpaceAligned:
      return "space";
    case textimport::Layout::FixedWidth:
      return "fixed";
    case textimport::Layout::Lines:
      break;
  }
  return "line";
}

/// The paths of the files in a folder, sorted. Throws std::filesystem::filesystem_error.
[[nodiscard]] inline std::vector<std::string> files_of(std::string const& folder) {
  std::vector<std::string> paths;
  for (auto const& entry : std::filesystem::directory_iterator(folder)) {
    if (entry.is_regular_file()) {
      paths.push_back(entry.path().string());
    }
  }
  std::sort(paths.begin(), paths.end());
  return paths;
}

}  // namespace benchmarks
