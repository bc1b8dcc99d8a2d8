// SPDX-License-Identifier: MIT
//
// Exceptions must not pass through libarchive, which is written in C: an error of the bytes below
// is kept when it is met in the callback, and thrown when libarchive comes back with its own.
#include "text_import/source/compression/archive_source_internal.hpp"

#include <algorithm>
#include <array>
#include <cerrno>
#include <clocale>
#include <new>
#include <utility>

namespace textimport {
namespace {

using namespace std::string_view_literals;

constexpr std::size_t max_listed_members = 20;

/// While it lives, names beyond ASCII can be read, whatever the locale of the program. Holds for
/// the calling thread only.
class Utf8Names {
 public:
  Utf8Names() : locale_(::newlocale(LC_CTYPE_MASK, "C.UTF-8", nullptr)) {
    previous_ = ::uselocale(locale_);  // without that locale: nothing changes
  }

  Utf8Names(Utf8Names const&) = delete;
  Utf8Names(Utf8Names&&) = delete;
  Utf8Names& operator=(Utf8Names const&) = delete;
  Utf8Names& operator=(Utf8Names&&) = delete;

  ~Utf8Names() {
    ::uselocale(previous_);
    if (locale_ != nullptr) {
      ::freelocale(locale_);
    }
  }

 private:
  locale_t locale_;
  locale_t previous_ = nullptr;
};

// libarchive tells these cases apart in words only: its own, those of the xz library for a missing
// end, zlib's number for it.
constexpr std::array truncation_words = {"runcated"sv, "No progress is possible"sv, "(-5)"sv};
// Checksums of what was delivered completely; others count as damage.
constexpr std::array checksum_words = {"bad CRC"sv, "lz4 stream checksum"sv};
constexpr std::array unsupported_words = {"nsupported"sv, "assphrase"sv, "ncrypt"sv};

template <std::size_t Count>
bool says_any_of(std::string_view const text, std::array<std::string_view, Count> const& words) {
  return std::any_of(words.begin(), words.end(), [text](std::string_view const word) {
    return text.find(word) != std::string_view::npos;
  });
}

/// Folders, and what one system adds to archives beside each file, are no members to read.
bool is_text_member(std::string_view const name) {
  return !name.ends_with('/') && !name.starts_with("__MACOSX/");
}

}  // namespace

void ArchiveSource::MemberNames::add(std::string const& name) {
  ++count;
  if (first.size() < max_listed_members) {
    first.push_back(name);
  }
}

std::string ArchiveSource::MemberNames::list() const {
  std::string names;
  for (std::string const& name : first) {
    names += (names.empty() ? "" : ", ") + name;
  }
  return names + (count > first.size() ? " ..." : "");
}

ArchiveSource::ArchiveSource(std::unique_ptr<ByteSource> raw, std::string const& path,
                             std::string const& format, OpenOptions const& options)
    : DecompressingSource(std::move(raw), path, format, options),
      library_(the_archive_library(path)),
      handle_(library_.archive_read_new(), library_.archive_read_free),
      is_zip_(format == "zip"),
      is_member_named_(!options.member.empty()) {
  if (handle_ == nullptr) {
    throw std::bad_alloc();
  }
  set_up(format);
  if (library_.archive_read_open(handle_.get(), this, nullptr, deliver_block, nullptr) !=
      ARCHIVE_OK) {
    fail();
  }
  find_member(options.member);
}

ArchiveSource::~ArchiveSource() = default;

void ArchiveSource::set_up(std::string const& format) {
  struct Filter {
    std::string_view format;
    int (*enable)(archive*);
  };

  Filter const filters[] = {
      {"bzip2", library_.archive_read_support_filter_bzip2},
      {"xz", library_.archive_read_support_filter_xz},
      {"zstd", library_.archive_read_support_filter_zstd},
      {"lz4", library_.archive_read_support_filter_lz4},
  };
  for (Filter const& known : filters) {
    if (known.format == format) {
      known.enable(handle_.get());
    }
  }
  if (is_zip_) {
    library_.archive_read_support_format_zip_streamable(handle_.get());
  } else {
    library_.archive_read_support_format_raw(handle_.get());
    library_.archive_read_support_format_empty(handle_.get());  // raw alone refuses an empty text
  }
}

long ArchiveSource::deliver_block(archive* const handle, void* const self,
                                  void const** const block) {
  auto& source = *static_cast<ArchiveSource*>(self);
  try {
    std::string_view const bytes = source.next_block();
    *block = bytes.data();
    return static_cast<long>(bytes.size());
  } catch (...) {
    source.raw_failure_ = std::current_exception();
    source.library_.archive_set_error(handle, EIO, "the file could not be read");
    return ARCHIVE_FATAL;
  }
}

/// Goes to the next member that could be a text; false behind the last one.
bool ArchiveSource::next_member(std::string& name) {
  Utf8Names const names_are_utf8;
  archive_entry* entry = nullptr;
  do {
    int const result = library_.archive_read_next_header(handle_.get(), &entry);
    if (result == ARCHIVE_EOF) {
      return false;
    }
    if (result != ARCHIVE_OK && result != ARCHIVE_WARN) {
      fail();
    }
    char const* const pathname = library_.archive_entry_pathname(entry);
    name = pathname == nullptr ? "" : pathname;
  } while (is_zip_ && !is_text_member(name));
  if (library_.archive_entry_is_data_encrypted(entry) != 0) {
    throw error(ImportErrorKind::UnsupportedArchive,
                "the member " + name + " of the archive is encrypted; unpack it first");
  }
  return true;
}

void ArchiveSource::find_member(std::string const& wanted) {
  MemberNames names;
  std::string name;
  while (next_member(name)) {
    names.add(name);
    if (wanted.empty() || name == wanted) {
      has_data_ = true;
      member_ = is_zip_ ? name : "";
      expect_one_filter();
      return;
    }
  }
  if (is_zip_) {
    throw ImportError(ImportErrorKind::MemberNotFound, path(),
                      names.count == 0
                          ? "the zip archive holds no file"
                          : "the zip archive has no member " + wanted + "; it has " + names.list());
  }
}

/// The end of the chain counts as a filter. Data whose first bytes are too few or not right pass
/// without one, data that were packed twice through one more.
void ArchiveSource::expect_one_filter() const {
  constexpr std::uint64_t longest_header = 32;
  int const filters = is_zip_ ? 2 : library_.archive_filter_count(handle_.get());
  if (filters > 2) {
    throw error(ImportErrorKind::NestedCompression,
                "packed twice: inside the " + format() + " data lies " + format() +
                    " data; unpack the file once and try again");
  }
  if (filters < 2) {
    throw consumed_bytes() < longest_header ? truncated() : damaged("the header is not right");
  }
}

void ArchiveSource::expect_no_further_member() {
  has_data_ = false;
  if (!is_zip_ || is_member_named_) {
    return;
  }
  MemberNames names;
  std::string name = member_;
  do {
    names.add(name);
  } while (next_member(name));
  if (names.count > 1) {
    throw ImportError(ImportErrorKind::SeveralMembers, path(),
                      "the zip archive has " + std::to_string(names.count) + " members (" +
                          names.list() + "); name one of them behind the path, as in " + path() +
                          ":" + names.first.front());
  }
}

std::size_t ArchiveSource::decompress(char* const room, std::size_t const capacity) {
  while (data_.empty() && has_data_) {
    if (has_failed_) {
      fail();
    }
    read_next_data();
  }
  std::size_t const length = data_.copy(room, capacity);
  data_.remove_prefix(length);
  return length;
}

void ArchiveSource::read_next_data() {
  void const* block = nullptr;
  std::size_t length = 0;
  la_int64_t offset = 0;
  int const result = library_.archive_read_data_block(handle_.get(), &block, &length, &offset);
  if (result == ARCHIVE_EOF) {
    expect_no_further_member();
    return;
  }
  // A wrong checksum comes together with the last data, which are delivered first.
  data_ = {static_cast<char const*>(block), length};
  has_failed_ = result != ARCHIVE_OK;
}

void ArchiveSource::fail() const {
  if (raw_failure_) {
    std::rethrow_exception(raw_failure_);
  }
  char const* const message = library_.archive_error_string(handle_.get());
  std::string const detail = message == nullptr ? "" : message;
  if (library_.archive_errno(handle_.get()) == ENOMEM) {
    throw std::bad_alloc();
  }
  if (says_any_of(detail, truncation_words)) {
    throw truncated();
  }
  if (says_any_of(detail, checksum_words)) {
    throw wrong_checksum();
  }
  if (says_any_of(detail, unsupported_words)) {
    throw error(
        ImportErrorKind::UnsupportedArchive,
        "the data are packed in a way that is unknown here (" + detail + "); unpack them first");
  }
  throw damaged(detail);
}

}  // namespace textimport
