// SPDX-License-Identifier: MIT

#include "cli/file_names.hpp"

#include <array>

#include <fmt/format.h>

#include "cli/usage_error.hpp"
#include "text_import/report/display_text.hpp"

namespace cli {

FileNames::FileNames(Arguments const& arguments)
    : names_(arguments.operands.begin(), arguments.operands.end()) {
  if (arguments.has(Option::FilesFrom)) {
    list_path_ = arguments.given.at(Option::FilesFrom).front();
    list_ = textimport::open_bytes(list_path_);
  } else if (names_.empty()) {
    names_.emplace_back("-");
  }
}

std::optional<std::string> FileNames::next() {
  while (names_.empty() && list_ != nullptr) {
    constexpr std::size_t block = 4096;
    std::array<char, block> room{};
    std::size_t const length = list_->read(room.data(), room.size());
    rest_.append(room.data(), length);
    for (auto end = rest_.find('\0'); end != std::string::npos; end = rest_.find('\0')) {
      names_.push_back(rest_.substr(0, end));
      rest_.erase(0, end + 1);
    }
    if (length == 0) {
      list_.reset();
      if (!rest_.empty()) {
        names_.push_back(std::move(rest_));  // the last NUL may be missing
      }
    }
  }
  if (names_.empty()) {
    return std::nullopt;
  }
  std::string name = std::move(names_.front());
  names_.pop_front();
  check(name);
  return name;
}

void FileNames::check(std::string const& name) const {
  if (name.empty()) {
    throw UsageError(list_path_.empty() ? std::string("a file name is empty")
                                        : fmt::format("--files0-from {}: a file name is empty",
                                                      textimport::display_bytes(list_path_).utf8));
  }
  if (name == "-" && list_path_ == "-") {
    throw UsageError("--files0-from -: standard input is the list, it cannot be a file of it");
  }
}

}  // namespace cli
