// SPDX-License-Identifier: MIT
#include "text_import/source/encoding/binary_content_internal.hpp"

#include <algorithm>
#include <array>
#include <numeric>

#include "text_import/import_error.hpp"
#include "text_import/source/bytes/compression_marks_internal.hpp"
#include "text_import/source/encoding/unit_count_internal.hpp"

namespace textimport {
namespace {

using namespace std::string_view_literals;

constexpr std::string_view export_as_text = "export its tables as text";
constexpr std::string_view no_table = "it holds no text table";
constexpr std::string_view unpack_first = "unpack it first";

struct FormatMark {
  std::size_t offset;
  std::string_view bytes;
  bool may_begin_a_text;  // counts only if control characters follow
  BinaryFormat format;
};

constexpr FormatMark format_marks[] = {
    {0, "PAR1"sv, true, {"a Parquet file", export_as_text}},
    {0, "Obj\x01"sv, false, {"an Avro file", export_as_text}},
    {0, "ORC"sv, true, {"an ORC file", export_as_text}},
    {0, "ARROW1"sv, true, {"an Arrow file", export_as_text}},
    {0, "FEA1"sv, true, {"a Feather file", export_as_text}},
    {0, "SQLite format 3\0"sv, false, {"an SQLite database", export_as_text}},
    {8, "DUCK"sv, true, {"a DuckDB database", export_as_text}},
    {0,
     "\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1"sv,
     false,
     {"a document of an older office program (xls, doc ...)", "save the sheet as CSV"}},
    {0, "%PDF-"sv, false, {"a PDF document", no_table}},
    {0, R"({\rtf)"sv, false, {"an RTF document", "save it as plain text"}},
    {0, "\x89HDF\r\n\x1A\n"sv, false, {"an HDF5 file", export_as_text}},
    {0, "CDF\x01"sv, false, {"a NetCDF file", export_as_text}},
    {0, "CDF\x02"sv, false, {"a NetCDF file", export_as_text}},
    {0, "CDF\x05"sv, false, {"a NetCDF file", export_as_text}},
    {0, "\x93NUMPY"sv, false, {"a NumPy array", export_as_text}},
    {0, "MATLAB 5.0 MAT-file"sv, true, {"a MATLAB file", export_as_text}},
    {0, "RDX2\n"sv, true, {"an R data file", export_as_text}},
    {0, "RDX3\n"sv, true, {"an R data file", export_as_text}},
    {0, "$FL2@(#)"sv, true, {"an SPSS file", export_as_text}},
    {0, "<stata_dta>"sv, true, {"a Stata file", export_as_text}},
    {0, "\x89PNG\r\n\x1A\n"sv, false, {"a PNG image", no_table}},
    {0, "\xFF\xD8\xFF"sv, false, {"a JPEG image", no_table}},
    {0, "GIF87a"sv, true, {"a GIF image", no_table}},
    {0, "GIF89a"sv, true, {"a GIF image", no_table}},
    {0, "II*\0"sv, false, {"a TIFF image", no_table}},
    {0, "MM\0*"sv, false, {"a TIFF image", no_table}},
    {8, "WEBP"sv, true, {"a WebP image", no_table}},
    {6,
     "\0\0\0\0"
     "6\0\0\0"sv,
     false,
     {"a BMP image", no_table}},
    {0,
     "\x7F"
     "ELF"sv,
     false,
     {"an ELF program or library", no_table}},
    {0, "MZ"sv, true, {"a Windows program", no_table}},
    {0, "\xCF\xFA\xED\xFE"sv, false, {"a macOS program", no_table}},
    {0, "\xCA\xFE\xBA\xBE"sv, false, {"a Java class or macOS program", no_table}},
    {0, "\0asm"sv, false, {"a WebAssembly module", no_table}},
    {0, "7z\xBC\xAF\x27\x1C"sv, false, {"a 7z archive", unpack_first, true}},
    {0, "Rar!\x1A\x07"sv, false, {"a RAR archive", unpack_first, true}},
    {257, "ustar"sv, true, {"a tar archive", unpack_first, true}},
    {0, "\x1F\x9D"sv, false, {"data packed by compress", unpack_first, true}},
    {0, "LZIP\x01"sv, false, {"lzip data", unpack_first, true}},
    {0, "\x5D\0\0\x80\0\xFF"sv, false, {"lzma data", unpack_first, true}},
};

/// True for the control characters that text hardly has: tab, line ends, page break and escape are
/// none of them.
bool is_control(char16_t const unit) {
  bool const is_usual = (unit >= 0x09 && unit <= 0x0D) || unit == 0x1B;
  return (unit < 0x20 && !is_usual) || unit == 0x7F;
}

bool has_control_bytes(std::string_view const bytes) {
  return std::any_of(bytes.begin(), bytes.end(),
                     [](char const c) { return is_control(static_cast<unsigned char>(c)); });
}

[[noreturn]] void throw_binary(std::string const& path, std::string_view const what,
                               std::string_view const advice) {
  throw ImportError(
      ImportErrorKind::BinaryContent, path,
      "this is no text: it looks like " + std::string(what) + "; " + std::string(advice));
}

/// The first member of a zip archive as its bytes stand in the head: name, then data.
std::string_view first_zip_member(std::string_view const head) {
  constexpr std::size_t name_offset = 30;
  return head.starts_with("PK\x03\x04"sv) && head.size() > name_offset ? head.substr(name_offset)
                                                                       : std::string_view{};
}

}  // namespace

BinaryFormat const* binary_format_of(std::string_view const head) {
  std::string_view const sniffed = head.substr(0, sniffed_bytes);
  auto const* const found =
      std::find_if(std::begin(format_marks), std::end(format_marks), [=](FormatMark const& mark) {
        return sniffed.size() >= mark.offset &&
               sniffed.substr(mark.offset).starts_with(mark.bytes) &&
               (!mark.may_begin_a_text || has_control_bytes(sniffed));
      });
  return found == std::end(format_marks) ? nullptr : &found->format;
}

void refuse_office_document(std::string_view const head, std::string const& path) {
  std::string_view const member = first_zip_member(head);
  for (std::string_view const part :
       {"[Content_Types].xml"sv, "_rels/"sv, "docProps/"sv, "xl/"sv}) {
    if (member.starts_with(part)) {
      throw_binary(path, "an office document (xlsx, docx ...)", "save the sheet as CSV");
    }
  }
  if (member.starts_with("mimetypeapplication/vnd.oasis.opendocument"sv)) {
    throw_binary(path, "an OpenDocument file (ods, odt ...)", "save the sheet as CSV");
  }
}

void refuse_binary_format(std::string_view const head, std::string_view const compression,
                          std::string const& path) {
  std::string_view const inner = compression_of(head);
  BinaryFormat const* const format = binary_format_of(head);
  if (compression != "none" && (inner != "none" || (format != nullptr && format->is_archive))) {
    std::string const what =
        inner != "none" ? std::string(inner) + " data" : std::string(format->description);
    throw ImportError(ImportErrorKind::NestedCompression, path,
                      "packed twice: inside the " + std::string(compression) + " data lies " +
                          what + "; unpack the file once and try again");
  }
  if (format != nullptr) {
    throw_binary(path, format->description, format->advice);
  }
}

void refuse_control_characters(std::u16string_view const text, std::string const& path) {
  auto const is_odd = [](char16_t const unit, char16_t /*next*/) { return is_control(unit); };
  if (count_units(text, is_odd) == 0) {
    return;
  }
  std::array<std::size_t, 0x80> counts{};
  for (char16_t const unit : text) {
    if (is_control(unit)) {
      ++counts[unit];
    }
  }
  std::size_t const most_frequent = *std::max_element(counts.begin(), counts.end());
  std::size_t const others =
      std::accumulate(counts.begin(), counts.end(), std::size_t{0}) - most_frequent;
  constexpr std::size_t suspicious = 4;
  if (others >= suspicious && others > text.size() / 32) {
    throw_binary(path, "binary data, with many control characters",
                 "if it is text, name its encoding");
  }
}

}  // namespace textimport
