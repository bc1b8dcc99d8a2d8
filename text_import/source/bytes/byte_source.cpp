// SPDX-License-Identifier: MIT
//
// Descriptors are read with read(2) itself: a buffer of the standard library would lose errno and
// the place of an error, and would wait for a full block on a pipe.
#include "text_import/source/bytes/byte_source.hpp"

#include <algorithm>
#include <cerrno>
#include <system_error>
#include <utility>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "text_import/import_error.hpp"

namespace textimport {
namespace {

std::string system_message(int const number) {
  return std::generic_category().message(number);
}

[[noreturn]] void throw_open_error(std::string const& path, int const number) {
  switch (number) {
    case ENOENT:
    case ENOTDIR:
      throw ImportError(ImportErrorKind::FileNotFound, path,
                        "there is no such file; check the path")
          .with_system_error(number);
    case EACCES:
    case EPERM:
      throw ImportError(ImportErrorKind::NoPermission, path,
                        "no permission to read the file; check its access rights")
          .with_system_error(number);
    default:
      throw ImportError(ImportErrorKind::OpenFailed, path,
                        "the file could not be opened (" + system_message(number) + ")")
          .with_system_error(number);
  }
}

[[noreturn]] void throw_is_directory(std::string const& path) {
  throw ImportError(ImportErrorKind::IsDirectory, path,
                    "this is a directory; name a file inside it")
      .with_system_error(EISDIR);
}

class DescriptorSource : public ByteSource {
 public:
  DescriptorSource(int const descriptor, std::string path, ReadFunction read)
      : descriptor_(descriptor), path_(std::move(path)), read_(std::move(read)) {}

  DescriptorSource(DescriptorSource const&) = delete;
  DescriptorSource(DescriptorSource&&) = delete;
  DescriptorSource& operator=(DescriptorSource const&) = delete;
  DescriptorSource& operator=(DescriptorSource&&) = delete;

  ~DescriptorSource() override {
    if (descriptor_ != STDIN_FILENO) {
      ::close(descriptor_);
    }
  }

  std::size_t read(char* const room, std::size_t const capacity) override {
    if (at_end_) {
      return 0;  // a terminal would wait for more behind its end
    }
    throw_if_failed();
    ssize_t delivered = 0;
    do {
      delivered = read_(descriptor_, room, capacity);
    } while (delivered < 0 && errno == EINTR);
    failure_ = delivered < 0 ? errno : 0;
    throw_if_failed();
    at_end_ = delivered == 0;
    offset_ += static_cast<std::uint64_t>(delivered);
    return static_cast<std::size_t>(delivered);
  }

 private:
  void throw_if_failed() const {
    if (failure_ == EISDIR) {
      throw_is_directory(path_);
    }
    if (failure_ != 0) {
      throw ImportError(ImportErrorKind::ReadFailed, path_,
                        "reading failed at byte " + std::to_string(offset_) + " of the file (" +
                            system_message(failure_) + "); copy the file and try again")
          .at_byte(offset_)
          .with_system_error(failure_);
    }
  }

  int descriptor_;
  std::string path_;
  ReadFunction read_;
  std::uint64_t offset_ = 0;
  int failure_ = 0;
  bool at_end_ = false;
};

class MemorySource : public ByteSource {
 public:
  explicit MemorySource(std::string_view const bytes) : bytes_(bytes) {}

  std::size_t read(char* const room, std::size_t const capacity) override {
    std::size_t const delivered = bytes_.copy(room, capacity);
    bytes_.remove_prefix(delivered);
    return delivered;
  }

 private:
  std::string_view bytes_;
};

int open_descriptor(std::string const& path) {
  // A file name cannot hold a NUL byte; open() would take what stands in front of it.
  if (path.find('\0') != std::string::npos) {
    throw_open_error(path, ENOENT);
  }
  int descriptor = -1;
  do {
    descriptor = ::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NOCTTY);
  } while (descriptor < 0 && errno == EINTR);
  if (descriptor < 0) {
    throw_open_error(path, errno);
  }
  return descriptor;
}

}  // namespace

ByteSource::~ByteSource() = default;

std::unique_ptr<ByteSource> open_bytes(std::string const& path, ReadFunction read) {
  if (!read) {
    read = ::read;
  }
  int const descriptor = path == "-" ? STDIN_FILENO : open_descriptor(path);
  auto source = std::make_unique<DescriptorSource>(descriptor, path, std::move(read));

  struct stat status {};

  if (::fstat(descriptor, &status) == 0 && S_ISDIR(status.st_mode)) {
    throw_is_directory(path);
  }
  return source;
}

std::unique_ptr<ByteSource> memory_bytes(std::string_view const bytes) {
  return std::make_unique<MemorySource>(bytes);
}

}  // namespace textimport
