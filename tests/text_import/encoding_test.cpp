// SPDX-License-Identifier: MIT
#include "text_import/source/encoding.hpp"

#include <algorithm>

#include <gtest/gtest.h>
#include <unicode/ucnv.h>

#include "tests/text_import/made_data.hpp"

namespace textimport {
namespace {

using namespace std::string_literals;
using made::read_all;

std::string encoded(char const* const encoding, std::string const& utf8) {
  std::u16string const text = made::utf16(utf8);
  UErrorCode status = U_ZERO_ERROR;
  UConverter* const converter = ucnv_open(encoding, &status);
  std::string bytes(8 * text.size() + 16, '\0');
  std::int32_t const length =
      ucnv_fromUChars(converter, bytes.data(), static_cast<std::int32_t>(bytes.size()), text.data(),
                      static_cast<std::int32_t>(text.size()), &status);
  EXPECT_TRUE(U_SUCCESS(status)) << encoding;
  ucnv_close(converter);
  bytes.resize(static_cast<std::size_t>(length));
  return bytes;
}

char const* const german =
    "Name;Stra\u00DFe;Gr\u00F6\u00DFe\nM\u00FCller;K\u00F6nigsallee 5;1,85\n"
    "J\u00E4ger;Hauptstra\u00DFe 12;1,70\nSchr\u00F6der;M\u00FChlenweg \u20AC;1,92\n";
char const* const polish =
    "imi\u0119;nazwisko;miasto\n\u0141ukasz;Wi\u015Bniewski;\u0141\u00F3d\u017A\n"
    "Zofia;W\u00F3jcik;Krak\u00F3w\nJ\u00F3zef;D\u0105browski;Gda\u0144sk\n";
char const* const russian =
    "\u0438\u043C\u044F;\u0433\u043E\u0440\u043E\u0434\n\u0418\u0432\u0430\u043D;\u041C\u043E\u0441"
    "\u043A\u0432\u0430\n\u041C\u0430\u0440\u0438\u044F;\u041F\u0435\u0442\u0435\u0440\u0431\u0443"
    "\u0440\u0433\n\u041F\u0451\u0442\u0440;\u0421\u0438\u0431\u0438\u0440\u044C\n";
char const* const japanese =
    "\u540D\u524D,\u90FD\u5E02,\u5E74\u9F62\n\u7530\u4E2D\u305F\u308D\u3046,\u6771\u4EAC,34\n"
    "\u9234\u6728\u306F\u306A\u3053,\u5927\u962A,28\n";
char const* const chinese =
    "\u59D3\u540D,\u57CE\u5E02,\u5E74\u9F84\n\u5F20\u4F1F,\u5317\u4EAC,34\n\u738B\u82B3,"
    "\u4E0A\u6D77,28\n\u674E\u5A1C,\u5E7F\u5DDE,45\n";
char const* const ascii = "a,b\n1,2\n";

TEST(encoding, is_found_in_tables_and_gives_their_text) {
  struct row {
    char const* text;
    char const* encoding;
    char const* reason;
    std::string mark = {};
  };

  for (row const& row : {
           row{ascii, "UTF-8", "only_ascii"},
           row{"", "UTF-8", "only_ascii"},
           row{ascii, "UTF-8", "byte_order_mark", "\xEF\xBB\xBF"},
           row{german, "UTF-8", "valid_utf8"},
           row{chinese, "UTF-8", "valid_utf8"},
           row{ascii, "UTF-16LE", "byte_order_mark", "\xFF\xFE"},
           row{chinese, "UTF-16LE", "byte_order_mark", "\xFF\xFE"},
           row{german, "UTF-16BE", "byte_order_mark", "\xFE\xFF"},
           row{german, "UTF-32LE", "byte_order_mark", "\xFF\xFE\0\0"s},
           row{german, "UTF-32BE", "byte_order_mark", "\0\0\xFE\xFF"s},
           row{chinese, "GB18030", "byte_order_mark", "\x84\x31\x95\x33"},
           row{ascii, "UTF-16LE", "nul_pattern"},
           row{german, "UTF-16LE", "nul_pattern"},
           row{russian, "UTF-16LE", "nul_pattern"},
           row{chinese, "UTF-16LE", "nul_pattern"},
           row{ascii, "UTF-16BE", "nul_pattern"},
           row{russian, "UTF-16BE", "nul_pattern"},
           row{chinese, "UTF-16BE", "nul_pattern"},
           row{ascii, "UTF-32LE", "nul_pattern"},
           row{russian, "UTF-32LE", "nul_pattern"},
           row{chinese, "UTF-32BE", "nul_pattern"},
           row{german, "windows-1252", "statistics"},
           row{polish, "windows-1250", "statistics"},
           row{polish, "ISO-8859-2", "statistics"},
           row{russian, "windows-1251", "statistics"},
           row{russian, "KOI8-R", "statistics"},
           row{russian, "IBM866", "statistics"},
           row{japanese, "Shift_JIS", "statistics"},
           row{japanese, "EUC-JP", "statistics"},
           row{japanese, "ISO-2022-JP", "statistics"},
           row{chinese, "GB18030", "statistics"},
       }) {
    SCOPED_TRACE(row.encoding + " "s + row.reason + " " + row.text);
    std::string const bytes = row.mark + encoded(row.encoding, row.text);
    made::outcome const read = read_all(bytes);
    EXPECT_EQ(read.findings.encoding.name, row.encoding);
    EXPECT_STREQ(name_of(read.findings.encoding.reason), row.reason);
    EXPECT_EQ(read.findings.encoding.is_guess(), row.reason == "statistics"s);
    EXPECT_EQ(read.findings.encoding.mark_bytes, row.mark.size());
    EXPECT_TRUE(read.whole == made::utf16(row.text));
    open_options options;
    options.encoding = row.encoding;
    options.strict = true;
    EXPECT_TRUE(read_all(bytes, options).whole == made::utf16(row.text)) << "when it is given";
  }
}

TEST(encoding, of_odd_bytes_is_decided_for_a_reason) {
  struct row {
    std::string bytes;
    char const* encoding;
    char const* reason;
    bool complete = true;
  };

  std::string const umlauts = "\u00E4\u00F6\u00FC\u00DF,\u20AC\n"s;
  for (row const& row : {
           row{umlauts + "\xFF", "UTF-8", "mostly_utf8"},
           row{umlauts + "\xC3", "UTF-8", "mostly_utf8"},
           row{umlauts + "\xC3", "UTF-8", "valid_utf8", false},
           row{"abc\xE2\x82", "UTF-8", "only_ascii", false},
           row{"a\xF0\x9F\x98", "UTF-8", "only_ascii", false},
           row{"a\xED\xA0", "windows-1252", "statistics", false},
           row{"\xE4", "windows-1252", "statistics"},
           row{"a\0b"s, "UTF-8", "only_ascii"},
           row{"a\0b\0c\0\nd\0e\0f\0\n"s, "UTF-8", "only_ascii"},
           row{"\xFF\xFE\0\0x\0y\0"s, "UTF-16LE", "byte_order_mark"},
           row{"\xFF\xFE", "UTF-16LE", "byte_order_mark"},
           row{"\xEF\xBB", "windows-1252", "statistics"},
           row{encoded("EUC-JP",
                       "\u540D\u524D,\u90FD\u5E02,\u5E74\u9F62\n\u9234\u6728\u82B1\u5B50,"
                       "\u5927\u962A,28\n"),
               "windows-1252", "fallback"},
           row{"a\x1B[1mb", "UTF-8", "only_ascii"},
       }) {
    encoding_finding const found = find_encoding(row.bytes, row.complete);
    EXPECT_TRUE(found.name == row.encoding && name_of(found.reason) == std::string(row.reason))
        << testing::PrintToString(row.bytes) << ": " << found.name << ", " << name_of(found.reason);
    EXPECT_FALSE(found.explanation.empty());
  }
}

TEST(encoding, is_given_by_any_of_its_names) {
  struct row {
    char const* name;
    std::string head;
    char const* encoding;
    std::size_t mark_bytes;
  };

  for (row const& row : {
           row{"utf8", "a", "UTF-8", 0},
           row{"UTF_8",
               "\xEF\xBB\xBF"
               "a",
               "UTF-8", 3},
           row{"latin1", "\xEF\xBB\xBF", "ISO-8859-1", 0},
           row{"CP1252", "", "windows-1252", 0},
           row{"sjis", "", "Shift_JIS", 0},
           row{"utf-16",
               "\xFF\xFE"
               "a\0"s,
               "UTF-16LE", 2},
           row{"utf-16", "a\0,\0"s, "UTF-16LE", 0},
           row{"utf-16", "\x4E\x00"s, "UTF-16BE", 0},
           row{"utf-32", "\0\0\xFE\xFF"s, "UTF-32BE", 4},
           row{"utf-32",
               "\xFF\xFE"
               "a\0"s,
               "UTF-32BE", 0},
           row{"UTF-16LE", "\xFE\xFF"s, "UTF-16LE", 0},
       }) {
    encoding_finding const found = given_encoding(row.name, row.head, "made");
    EXPECT_EQ(found.name, row.encoding) << row.name;
    EXPECT_EQ(found.mark_bytes, row.mark_bytes) << row.name;
    EXPECT_EQ(found.reason, encoding_reason::Given);
  }
}

TEST(encoding, that_is_unknown_lists_the_near_ones) {
  struct row {
    char const* name;
    char const* near;
  };

  for (row const& row : {row{"win1252", "windows-1252"}, row{"utf-9", "UTF-8"},
                         row{"shiftjs", "Shift_JIS"}, row{"koi-8r", "KOI8-R"},
                         row{"iso8859-22", "ISO-8859-2"}, row{"xyzzy", "usual ones are UTF-8"},
                         row{"", "usual ones are"}, row{"utf-16,version=1", "UTF-16"}}) {
    try {
      static_cast<void>(given_encoding(row.name, "", "made"));
      if (*row.name != '\0' && std::string(row.name) != "koi-8r") {
        ADD_FAILURE() << row.name;
      }
    } catch (import_error const& error) {
      EXPECT_EQ(error.kind(), import_error_kind::UnknownEncoding);
      EXPECT_NE(error.message().find(row.near), std::string::npos) << error.message();
    }
  }
  std::vector<std::string> const names = encoding_names();
  EXPECT_TRUE(std::is_sorted(names.begin(), names.end()));
  for (std::string const& name : names) {
    EXPECT_NO_THROW(static_cast<void>(given_encoding(name, "", "made"))) << name;
  }
}

}  // namespace
}  // namespace textimport
