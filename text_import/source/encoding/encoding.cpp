// SPDX-License-Identifier: MIT
//
// The tests in their order. UTF-8 stands before every guess, because text in another encoding is
// hardly ever well-formed UTF-8, while statistics take short UTF-8 for many things. Guesses are
// corrected where the bytes themselves speak against them.
#include "text_import/source/encoding/encoding.hpp"

#include <algorithm>
#include <array>
#include <memory>
#include <new>
#include <optional>
#include <utility>

#include <uchardet.h>

#include "text_import/import_error.hpp"
#include "text_import/source/encoding/ascii_internal.hpp"
#include "text_import/source/encoding/decoder_internal.hpp"
#include "text_import/source/encoding/encoding_evidence_internal.hpp"
#include "text_import/source/encoding/encoding_names_internal.hpp"

namespace textimport {
namespace {

using namespace std::string_view_literals;

constexpr char const* fallback_encoding = "windows-1252";

struct ByteOrderMark {
  std::string_view bytes;
  char const* encoding;
};

// UTF-32LE before UTF-16LE, whose mark it begins with.
constexpr std::array<ByteOrderMark, 6> marks = {{
    {"\xEF\xBB\xBF"sv, "UTF-8"},
    {"\xFF\xFE\0\0"sv, "UTF-32LE"},
    {"\0\0\xFE\xFF"sv, "UTF-32BE"},
    {"\xFF\xFE"sv, "UTF-16LE"},
    {"\xFE\xFF"sv, "UTF-16BE"},
    {"\x84\x31\x95\x33"sv, "GB18030"},
}};

ByteOrderMark const* mark_of(std::string_view const head) {
  for (ByteOrderMark const& mark : marks) {
    // The first two bytes of UTF-32LE may also be UTF-16LE with a NUL character in front.
    bool const is_doubtful = mark.bytes == "\xFF\xFE\0\0"sv && !looks_like_utf32(head, false);
    if (head.starts_with(mark.bytes) && !is_doubtful) {
      return &mark;
    }
  }
  return nullptr;
}

std::optional<std::string> by_nul_pattern(std::string_view const head) {
  if (head.find('\0') == std::string_view::npos) {
    return std::nullopt;
  }
  for (bool const big_endian : {false, true}) {
    if (looks_like_utf32(head, big_endian)) {
      return big_endian ? "UTF-32BE" : "UTF-32LE";
    }
  }
  for (bool const big_endian : {false, true}) {
    if (looks_like_utf16(head, big_endian)) {
      return big_endian ? "UTF-16BE" : "UTF-16LE";
    }
  }
  return std::nullopt;
}

/// The first lines with bytes that are no ASCII, as many as statistics need, since these take their
/// time; the first lines at all for a text that has no such bytes. Cut at line ends, which are the
/// same in every encoding that comes to statistics.
std::string telling_lines(std::string_view head) {
  constexpr std::size_t enough = std::size_t{1} << 14U;
  if (ascii_run(head) == head.size()) {
    return std::string(head.substr(0, enough));
  }
  std::string lines;
  while (!head.empty() && lines.size() < enough) {
    std::size_t const end = head.find_first_of("\r\n"sv);
    std::string_view const line = head.substr(0, end).substr(0, enough - lines.size());
    head.remove_prefix(line.size() + (line.size() == end ? 1 : 0));
    if (ascii_run(line) != line.size()) {
      lines.append(line) += '\n';
    }
  }
  return lines;
}

std::string statistical_answer(std::string_view const text) {
  std::unique_ptr<uchardet, decltype(&uchardet_delete)> const detector(uchardet_new(),
                                                                       uchardet_delete);
  if (detector == nullptr || uchardet_handle_data(detector.get(), text.data(), text.size()) != 0) {
    throw std::bad_alloc();
  }
  uchardet_data_end(detector.get());
  return uchardet_get_charset(detector.get());
}

bool has_byte_between(std::string_view const bytes, unsigned char const first,
                      unsigned char const last) {
  return std::any_of(bytes.begin(), bytes.end(), [=](char const c) {
    auto const byte = static_cast<unsigned char>(c);
    return byte >= first && byte <= last;
  });
}

// An ISO encoding and the Windows one that has nearly the same letters and, in place of 32 control
// characters that no text uses, more characters.
struct IsoAndWindows {
  std::string_view iso;
  char const* windows;
};

constexpr std::array<IsoAndWindows, 6> iso_and_windows_pairs = {{
    {"ISO-8859-2", "windows-1250"},
    {"ISO-8859-7", "windows-1253"},
    {"ISO-8859-8", "windows-1255"},
    {"ISO-8859-9", "windows-1254"},
    {"ISO-8859-13", "windows-1257"},
    {"ISO-8859-15", "windows-1252"},
}};

/// What the bytes make of a statistical answer.
std::string corrected(std::string const& answer, std::string_view const head) {
  if (answer == "ISO-8859-1") {
    return "windows-1252";  // every text in the one is the same text in the other
  }
  bool const has_windows_bytes = has_byte_between(head, 0x80, 0x9F);
  for (IsoAndWindows const& pair : iso_and_windows_pairs) {
    if (answer == pair.iso && has_windows_bytes) {
      return pair.windows;
    }
  }
  // Letters in ISO-8859-2 that are signs in windows-1250, as in Polish and Czech words.
  constexpr std::string_view only_iso_letters = "\xA1\xA6\xA9\xAB\xAC\xAE\xB1\xB5\xB6\xBB"sv;
  if (answer == "windows-1250" && !has_windows_bytes &&
      head.find_first_of(only_iso_letters) != std::string_view::npos) {
    return "ISO-8859-2";
  }
  return answer;
}

/// True when hardly a byte of the text is bad in the encoding.
bool fits(std::string const& encoding, std::string_view const text) {
  Decoder trial(encoding, 0, false, {});
  std::u16string decoded;
  trial.decode(text, false, decoded);
  auto const ascii = static_cast<std::uint64_t>(std::count_if(text.begin(), text.end(), is_ascii));
  return trial.counts().bad_bytes * 16 <= text.size() - ascii;
}

/// The encoding that the statistics name, if it can be believed.
std::optional<std::string> by_statistics(std::string_view const head) {
  std::string const lines = telling_lines(head);
  std::string const answer = statistical_answer(lines);
  // Its words for "no idea", and for what was excluded before.
  if (answer.empty() || answer == "ASCII" || answer.starts_with("UTF-")) {
    return std::nullopt;
  }
  std::string const known = answer == "UHC" ? "windows-949" : usual_encoding_name(answer);
  if (known.empty()) {
    return std::nullopt;
  }
  std::string const encoding = corrected(known, head);
  return fits(encoding, lines) ? std::optional(encoding) : std::nullopt;
}

EncodingFinding guess(std::string_view const head) {
  if (auto const name = by_statistics(head)) {
    return {*name, EncodingReason::Statistics,
            "the bytes are not UTF-8, and their frequencies speak for " + *name, 0};
  }
  return {fallback_encoding, EncodingReason::Fallback,
          "the bytes are not UTF-8, and do not tell what they are", 0};
}

[[noreturn]] void throw_unknown(std::string const& name, std::string const& path) {
  std::vector<std::string> near = near_encoding_names(name);
  std::string const introduction = near.empty() ? "usual ones are " : "near ones are ";
  if (near.empty()) {
    near = {"UTF-8", "UTF-16LE", "windows-1252", "ISO-8859-1", "Shift_JIS", "GB18030"};
  }
  std::string list;
  for (std::string const& candidate : near) {
    list += (list.empty() ? "" : ", ") + candidate;
  }
  throw ImportError(ImportErrorKind::UnknownEncoding, path,
                    "there is no encoding \"" + name + "\"; " + introduction + list);
}

}  // namespace

EncodingFinding find_encoding(std::string_view const head, bool const complete) {
  if (ByteOrderMark const* const mark = mark_of(head)) {
    return {mark->encoding, EncodingReason::ByteOrderMark, "the file begins with a byte-order mark",
            mark->bytes.size()};
  }
  if (auto const name = by_nul_pattern(head)) {
    return {*name, EncodingReason::NulPattern, "every few bytes are NUL, in the order of " + *name,
            0};
  }
  Utf8Evidence const utf8 = examine_utf8(head, complete);
  if (utf8.faults == 0 && utf8.sequences == 0) {
    // ASCII with escapes may be text that shifts to other characters by them.
    auto const shifting = utf8.has_escapes ? by_statistics(head) : std::nullopt;
    return shifting
               ? EncodingFinding{*shifting, EncodingReason::Statistics,
                                 "the text shifts to other characters by escapes", 0}
               : EncodingFinding{"UTF-8", EncodingReason::OnlyAscii, "all characters are ASCII", 0};
  }
  if (utf8.faults == 0) {
    return {"UTF-8", EncodingReason::ValidUtf8, "all of the text is well-formed UTF-8", 0};
  }
  if (utf8.sequences > 4 * utf8.faults) {
    return {"UTF-8", EncodingReason::MostlyUtf8,
            "nearly all characters beyond ASCII are well-formed UTF-8", 0};
  }
  return guess(head);
}

EncodingFinding given_encoding(std::string const& name, std::string_view const head,
                               std::string const& path) {
  EncodingFinding finding{usual_encoding_name(name), EncodingReason::Given,
                          "the encoding was given", 0};
  if (finding.name.empty()) {
    throw_unknown(name, path);
  }
  ByteOrderMark const* const mark = mark_of(head);
  if (finding.name == "UTF-16" || finding.name == "UTF-32") {
    std::string const family = std::exchange(finding.name, finding.name + "BE");
    std::string const found =
        mark != nullptr ? mark->encoding : by_nul_pattern(head).value_or(std::string{});
    if (found.starts_with(family)) {
      finding.name = found;
    }
  }
  if (mark != nullptr && finding.name == usual_encoding_name(mark->encoding)) {
    finding.mark_bytes = mark->bytes.size();
  }
  return finding;
}

char const* name_of(EncodingReason const reason) noexcept {
  switch (reason) {
    case EncodingReason::Given:
      return "given";
    case EncodingReason::ByteOrderMark:
      return "byte-order-mark";
    case EncodingReason::NulPattern:
      return "nul-pattern";
    case EncodingReason::OnlyAscii:
      return "only-ascii";
    case EncodingReason::ValidUtf8:
      return "valid-utf8";
    case EncodingReason::MostlyUtf8:
      return "mostly-utf8";
    case EncodingReason::Statistics:
      return "statistics";
    case EncodingReason::Fallback:
      return "fallback";
  }
  return "unknown";
}

std::vector<std::string> encoding_names() {
  return all_encoding_names();
}

}  // namespace textimport
