// SPDX-License-Identifier: MIT
//
// Opening and reading, with the failures of the system put in its place.
#include "text_import/source/bytes/byte_source.hpp"

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <fstream>

#include <gtest/gtest.h>
#include <unistd.h>

#include "tests/text_import/made_data.hpp"

namespace textimport {
namespace {

/// A folder of the test's own, gone at its end.
class Files : public testing::Test {
 public:
  Files(Files const&) = delete;
  Files(Files&&) = delete;
  Files& operator=(Files const&) = delete;
  Files& operator=(Files&&) = delete;

 protected:
  Files() {
    std::string folder = (std::filesystem::temp_directory_path() / "text_import_XXXXXX").string();
    if (::mkdtemp(folder.data()) == nullptr) {
      throw std::filesystem::filesystem_error("mkdtemp",
                                              std::error_code(errno, std::generic_category()));
    }
    folder_ = folder;
  }

  ~Files() override { std::filesystem::remove_all(folder_); }

  std::string write(std::string const& name, std::string const& bytes) {
    std::string path = folder_ + "/" + name;
    std::ofstream(path, std::ios::binary) << bytes;
    return path;
  }

  std::string folder_;
};

/// The error of opening `path`: name of its kind and errno; empty if there is none.
std::string open_error(std::string const& path) {
  try {
    static_cast<void>(TextSource::open(path));
    return "";
  } catch (ImportError const& error) {
    return std::string(name_of(error.kind())) + " " + std::to_string(error.system_error());
  }
}

TEST_F(Files, that_cannot_be_opened_are_told_apart) {
  std::string const file = write("file", "a,b\n");
  std::string const loop = folder_ + "/loop";
  std::filesystem::create_symlink(loop, loop);
  EXPECT_EQ(open_error(file), "");
  EXPECT_EQ(open_error(folder_ + "/none"), "file-not-found " + std::to_string(ENOENT));
  EXPECT_EQ(open_error(file + "/inside"), "file-not-found " + std::to_string(ENOTDIR));
  EXPECT_EQ(open_error(file + std::string("\0x", 2)), "file-not-found " + std::to_string(ENOENT));
  EXPECT_EQ(open_error(""), "file-not-found " + std::to_string(ENOENT));
  EXPECT_EQ(open_error(folder_), "is-directory " + std::to_string(EISDIR));
  EXPECT_EQ(open_error(loop), "open-failed " + std::to_string(ELOOP));
  if (::geteuid() != 0) {
    std::filesystem::permissions(file, std::filesystem::perms::none);
    EXPECT_EQ(open_error(file), "no-permission " + std::to_string(EACCES));
  }
}

TEST_F(Files, before_a_colon_are_archives_of_a_member) {
  std::string const archive = write("a.zip", made::zip({{"m", "1\n"}, {"n:o", "2\n"}}));
  std::filesystem::create_directory(folder_ + "/d");
  write("plain:m", "3\n");
  write("d:e.zip", made::zip({{"m", "4\n"}}));
  EXPECT_EQ(TextSource::open(archive + ":m").sample().view(), u"1\n");
  EXPECT_EQ(TextSource::open(archive + ":m").path(), archive);
  EXPECT_EQ(TextSource::open(archive + ":n:o").sample().view(), u"2\n");
  EXPECT_EQ(TextSource::open(folder_ + "/plain:m").sample().view(), u"3\n") << "a file of its own";
  EXPECT_EQ(TextSource::open(folder_ + "/d:e.zip:m").sample().view(), u"4\n") << "d is a folder";
  EXPECT_EQ(open_error(archive + ":x"), "member-not-found 0");
  EXPECT_EQ(open_error(folder_ + "/none:m"), "file-not-found " + std::to_string(ENOENT));
}

/// read(2) as a script: interrupted before every call, pieces of 64 bytes, an error at one call.
struct ScriptedRead {
  std::string bytes;
  std::size_t failing_call;
  std::size_t position = 0;
  std::size_t calls = 0;
  bool interrupted = false;

  ssize_t operator()(int /*descriptor*/, void* const room, std::size_t const capacity) {
    interrupted = !interrupted;
    if (interrupted) {
      errno = EINTR;
      return -1;
    }
    if (++calls == failing_call) {
      errno = EIO;
      return -1;
    }
    std::size_t const length =
        bytes.copy(static_cast<char*>(room), std::min<std::size_t>(capacity, 64), position);
    position += length;
    return static_cast<ssize_t>(length);
  }
};

TEST_F(Files, that_fail_at_any_read_say_where_and_why) {
  std::string const plain = made::table_of(2000);
  for (char const* const format : {"none", "gzip", "bzip2", "xz", "zstd", "lz4", "zip"}) {
    std::string const bytes = format == std::string("none") ? plain : made::packed(format, plain);
    std::size_t const reads = (bytes.size() + 63) / 64 + 1;  // with the end
    for (std::size_t call = 1; call <= reads + 1; ++call) {
      made::Outcome const read =
          made::read_all(open_bytes(write("file", ""), ScriptedRead{bytes, call}));
      SCOPED_TRACE(std::to_string(call) + ": " + read.message);
      if (call > reads) {
        EXPECT_TRUE(read.error.empty() && read.whole == made::utf16(plain));
        continue;
      }
      std::uint64_t const where = std::min((call - 1) * 64, bytes.size());
      EXPECT_EQ(read.error, "read-failed");
      EXPECT_EQ(read.error_byte, where);
      EXPECT_NE(read.message.find("byte " + std::to_string(where) + " "), std::string::npos);
      EXPECT_NE(read.message.find(std::strerror(EIO)), std::string::npos);
    }
  }
}

TEST_F(Files, are_not_read_behind_their_end_or_their_error) {
  std::size_t calls = 0;
  for (int const failure : {0, EIO}) {
    calls = 0;
    auto const source = open_bytes(write("file", ""), [&](int, void*, std::size_t) -> ssize_t {
      ++calls;
      errno = failure;
      return failure == 0 ? 0 : -1;
    });
    char room[8];
    for (int i = 0; i < 3; ++i) {
      if (failure == 0) {
        EXPECT_EQ(source->read(room, sizeof room), 0U);
      } else {
        EXPECT_THROW(source->read(room, sizeof room), ImportError);
      }
    }
    EXPECT_EQ(calls, 1U);
  }
}

}  // namespace
}  // namespace textimport
