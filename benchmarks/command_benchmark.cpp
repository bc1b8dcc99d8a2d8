// SPDX-License-Identifier: MIT
//
// The program text-format as a whole process, in turn with /bin/true: the difference is what it
// costs beyond starting a process at all.
#include <array>
#include <filesystem>
#include <fstream>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include "benchmarks/operation.hpp"

namespace textio::benchmarks {

namespace {

/// Runs a program with its output thrown away. Throws std::runtime_error when it fails.
void run_process(std::vector<std::string> words) {
  std::vector<char*> arguments;
  arguments.reserve(words.size() + 1);
  for (std::string& word : words) {
    arguments.push_back(word.data());
  }
  arguments.push_back(nullptr);
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
  pid_t child = 0;
  int const failure =
      posix_spawn(&child, arguments[0], &actions, nullptr, arguments.data(), environ);
  posix_spawn_file_actions_destroy(&actions);
  int status = 0;
  if (failure != 0 || waitpid(child, &status, 0) != child || status != 0) {
    throw std::runtime_error("could not run " + words[0]);
  }
}

std::size_t run_true() {
  run_process({"/bin/true"});
  return 0;
}

Work start_true(Shape const& /*shape*/, std::u16string_view /*text*/) {
  return run_true;
}

std::string write_file(std::u16string_view const text) {
  auto path =
      std::filesystem::temp_directory_path() / ("command_benchmark." + std::to_string(::getpid()));
  std::ofstream file(path, std::ios::binary);
  for (char16_t const unit : text) {
    file.put(static_cast<char>(unit));
  }
  return path.string();
}

Prepare start_command(std::vector<std::string> const& words) {
  return [words](Shape const& /*shape*/, std::u16string_view const text) {
    auto remove = [](std::string* const path) {
      std::error_code ignored;
      std::filesystem::remove(*path, ignored);
      std::default_delete<std::string>()(path);
    };
    std::shared_ptr<std::string> const path(new std::string(write_file(text)), remove);
    return [words, path] {
      std::vector<std::string> command{TFD_COMMAND};
      command.insert(command.end(), words.begin(), words.end());
      command.push_back(*path);
      run_process(command);
      return command.size();
    };
  };
}

Operation command(std::string const& name, std::vector<std::string> const& words) {
  return {.name = name,
          .prepare = start_command(words),
          .shapes = "narrow_numbers wide_text",
          .reference_name = "/bin/true",
          .reference = start_true};
}

}  // namespace

std::span<Operation const> operations() {
  static std::vector<Operation> const all{
      command("detect", {"detect"}),
      command("detect_json", {"detect", "--json"}),
      command("explain", {"explain"}),
  };
  return all;
}

}  // namespace textio::benchmarks
