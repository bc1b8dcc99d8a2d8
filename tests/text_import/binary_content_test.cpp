// SPDX-License-Identifier: MIT
//
// Files that are no text are refused with a sentence that says what they look like; texts that
// only begin like them are not.
#include <gtest/gtest.h>

#include "tests/text_import/made_data.hpp"
#include "text_import/source/binary_content_internal.hpp"

namespace textimport {
namespace {

using namespace std::string_literals;
using made::outcome;
using made::read_all;

TEST(binary_content, is_named) {
  struct row {
    std::string head;
    char const* name;
  };

  for (row const& row : {
           row{"PAR1\x15\x04", "Parquet"},
           row{"Obj\x01\x04\x14", "Avro"},
           row{"ORC\x08\x03", "ORC"},
           row{"ARROW1\0\0"s, "Arrow"},
           row{"SQLite format 3\0\x10"s, "SQLite"},
           row{"\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1", "older office"},
           row{made::zip({{"[Content_Types].xml", "<x/>"}, {"xl/workbook.xml", "<x/>"}}), "xlsx"},
           row{"PK\x03\x04"s + std::string(26, '\0') +
                   "mimetypeapplication/vnd.oasis.opendocument.spreadsheet",
               "OpenDocument"},
           row{"%PDF-1.7\n1 0 obj\n", "PDF"},
           row{"\x89HDF\r\n\x1A\n", "HDF5"},
           row{"CDF\x02\0\0"s, "NetCDF"},
           row{"\x89PNG\r\n\x1A\n", "PNG"},
           row{"\xFF\xD8\xFF\xE0\0\x10JFIF"s, "JPEG"},
           row{"GIF89a\x01\0\x01\0"s, "GIF"},
           row{"II*\0\x08\0"s, "TIFF"},
           row{"BM\x9A\x02\0\0\0\0\0\0\x36\0\0\0"s, "BMP"},
           row{"\x7F"
               "ELF\x02\x01\x01",
               "ELF"},
           row{"7z\xBC\xAF\x27\x1C", "7z"},
           row{std::string(257, 'a') + "ustar\0"s, "tar"},
           row{"\x1F\x9D\x90", "compress"},
       }) {
    outcome const read = read_all(row.head + std::string(20, '\xE4'));
    EXPECT_EQ(read.error, "binary_content") << row.name;
    EXPECT_NE(read.message.find(row.name), std::string::npos) << read.message;
  }
}

TEST(binary_content, is_not_what_only_begins_alike) {
  for (char const* const text :
       {"PAR1,2\n3,4\n", "ORC;Elf\n", "Obj,1\n", "BM,1\n", "MZ\n", "GIF89a,x\n", "CDF,1\n",
        "ARROW1 a\n", "7z,1\n", "II*,1\n", "%PDF,1\n", "RDX3\n"}) {
    EXPECT_EQ(read_all(text).error, "") << text;
  }
}

TEST(binary_content, is_what_has_many_control_characters_of_several_kinds) {
  struct row {
    char const* what;
    std::string bytes;
    bool is_text;
  };

  std::string noise;
  std::string shorts;
  std::uint32_t state = 1;
  for (int i = 0; i < 4000; ++i) {
    state = state * 1664525 + 1013904223;
    noise.push_back(static_cast<char>(state >> 24U));
    shorts.push_back(static_cast<char>(state >> 28U));
    shorts.push_back('\0');
  }
  std::string const line =
      "a\x01"
      "b\x01"
      "c\n";
  for (row const& row : {
           row{"noise", noise, false},
           row{"noise in a packed file", made::packed("gzip", noise), false},
           row{"small numbers of 16 bits", shorts, false},
           row{"one delimiter that is a control character", line + line + line, true},
           row{"NUL delimiters", "a\0b\0c\nd\0e\0f\n"s, true},
           row{"NUL padding", "a,b\nc,d\n" + std::string(1000, '\0'), true},
           row{"a few of them in much text", made::table_of(2000) + "\1\2\3\4\5\6\7", true},
           row{"colours of a terminal", "\x1B[1ma\x1B[0m,b\n\x1B[1mc\x1B[0m,d\n", true},
           row{"a page break", "a\fb\vc\n", true},
           row{"units and records apart",
               "a\x1F"
               "b\x1E"
               "c\x1F"
               "d\x1E",
               true},
           row{"empty", "", true},
       }) {
    outcome const read = read_all(row.bytes);
    EXPECT_EQ(read.error, row.is_text ? "" : "binary_content") << row.what << read.message;
  }
  open_options named;
  named.encoding = "IBM037";
  EXPECT_EQ(read_all(noise, named).error, "") << "whoever names the encoding says that it is text";
}

}  // namespace
}  // namespace textimport
