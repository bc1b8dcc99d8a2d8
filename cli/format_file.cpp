// SPDX-License-Identifier: MIT

#include "cli/format_file.hpp"

#include <array>
#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <string_view>
#include <system_error>

#include <fcntl.h>
#include <fmt/format.h>
#include <unistd.h>

#include "cli/console.hpp"
#include "cli/usage_error.hpp"
#include "text_import/format/format_json.hpp"
#include "text_import/report/display_text.hpp"
#include "text_import/source/bytes/byte_source.hpp"

namespace cli {

namespace {

namespace fs = std::filesystem;

[[noreturn]] void fail(std::string const& path, int const error) {
  throw OutputError(fmt::format("{}: cannot be written: {}", textimport::display_bytes(path).utf8,
                                std::generic_category().message(error)));
}

/// Returns the system's error number, 0 when the file holds the text.
int write_file(std::string const& path, int const mode, std::string_view const text) {
  constexpr ::mode_t readable = 0666;  // less what the user's mask takes away
  int const file = ::open(path.c_str(), O_WRONLY | O_CLOEXEC | mode, readable);
  if (file < 0) {
    return errno;
  }
  int const error = write_all(file, text);
  int const close_error = ::close(file) == 0 ? 0 : errno;
  return error == 0 ? close_error : error;
}

/// Writes to a name of its own and renames that.
void replace_file(std::string const& path, std::string_view const text) {
  std::string const made = fmt::format("{}.{}.tmp", path, ::getpid());
  int error = write_file(made, O_CREAT | O_EXCL, text);
  bool const is_taken = error == EEXIST;
  if (error == 0 && std::rename(made.c_str(), path.c_str()) != 0) {
    error = errno;
  }
  if (error != 0 && !is_taken) {
    ::unlink(made.c_str());
  }
  if (error != 0) {
    fail(path, error);
  }
}

std::string whole_file(std::string const& path) {
  auto const bytes = textimport::open_bytes(path);
  std::string text;
  std::array<char, 4096> room{};
  while (std::size_t const length = bytes->read(room.data(), room.size())) {
    text.append(room.data(), length);
  }
  return text;
}

}  // namespace

textimport::Format read_format(std::string const& path) {
  auto parse = textimport::format_from_json(whole_file(path));
  if (!parse.format) {
    throw UsageError(
        fmt::format("--format {}: {}", textimport::display_bytes(path).utf8, parse.error));
  }
  return *std::move(parse.format);
}

void save_format(std::string const& path, textimport::Format const& format) {
  std::string const text = textimport::to_json(format);
  std::error_code ignored;
  fs::file_status const status = fs::status(path, ignored);
  if (fs::exists(status) && !fs::is_regular_file(status)) {  // a pipe, a terminal: not replaced
    if (int const error = write_file(path, 0, text); error != 0) {
      fail(path, error);
    }
    return;
  }
  fs::path const target = fs::exists(status) ? fs::canonical(path, ignored) : fs::path();
  replace_file(target.empty() ? path : target.string(), text);
}

}  // namespace cli
