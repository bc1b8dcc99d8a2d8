// SPDX-License-Identifier: MIT

#include "text_import/format/format_json.hpp"

#include <algorithm>

#include "text_import/format/format_check_internal.hpp"
#include "text_import/format/format_reader_internal.hpp"
#include "text_import/format/json_values_internal.hpp"

namespace textimport {

namespace {

/// Takes no notice of anything but why a text is no JSON.
class SyntaxProbe : public nlohmann::json_sax<nlohmann::json> {
 public:
  bool null() override { return true; }

  bool boolean(bool) override { return true; }

  bool number_integer(number_integer_t) override { return true; }

  bool number_unsigned(number_unsigned_t) override { return true; }

  bool number_float(number_float_t, string_t const&) override { return true; }

  bool string(string_t&) override { return true; }

  bool binary(binary_t&) override { return true; }

  bool start_object(std::size_t) override { return true; }

  bool key(string_t&) override { return true; }

  bool end_object() override { return true; }

  bool start_array(std::size_t) override { return true; }

  bool end_array() override { return true; }

  bool parse_error(std::size_t, std::string const&,
                   nlohmann::json::exception const& error) override {
    std::string_view const text = error.what();  // "[kind] parse error at line 1, column 5: ..."
    message_ = text.substr(std::min(text.size(), text.find("] ") + 2));
    return false;
  }

  [[nodiscard]] std::string const& message() const noexcept { return message_; }

 private:
  std::string message_;
};

std::string syntax_error(std::string_view const text) {
  SyntaxProbe probe;
  static_cast<void>(nlohmann::json::sax_parse(text, &probe));
  return "no JSON: " + probe.message();
}

/// "schema" stands beside the members of the Format.
void read_format(JsonPlace const& place, Format& format) {
  std::uint64_t schema = 0;
  MemberReader reader(place);
  reader("schema", schema);
  if (schema != json_schema) {
    place.fail("\"schema\" must be there and be " + std::to_string(json_schema));
  }
  auto const layout = place.value.find("layout");
  if (layout == place.value.end()) {
    place.fail("\"layout\" must be there");
  } else if (layout->is_object() && !layout->contains("layout")) {
    place.at(*layout, "layout").fail("\"layout\" must be there, the kind of layout");
  }
  visit_members(reader, format);
  refuse_unknown_members(place, reader.names());
  if (place.error.empty()) {
    place.error = impossible_value(format);
  }
}

std::string plain_text(Json const& json) {
  return json.dump(-1, ' ', false, Json::error_handler_t::replace);
}

bool is_plain(Json const& json) {
  return !json.is_structured() || json.empty();
}

void append_indented(std::string& text, Json const& json, std::size_t left);

/// The items of a list or the members of an object, each behind `start`.
void append_items(std::string& text, Json const& json, std::string const& start,
                  std::size_t const left) {
  bool is_first = true;
  for (auto const& [name, value] : json.items()) {
    text.append(is_first ? "" : ",").append(is_first && start == " " ? "" : start);
    text.append(json.is_object() ? plain_text(name) + ": " : "");
    append_indented(text, value, left);
    is_first = false;
  }
}

/// Lists of plain values stand on one line, all else on lines of their own.
void append_indented(std::string& text, Json const& json, std::size_t const left) {
  if (is_plain(json)) {
    text += plain_text(json);
    return;
  }
  text += json.is_object() ? '{' : '[';
  if (json.is_array() && std::ranges::all_of(json, is_plain)) {
    append_items(text, json, " ", left);
  } else {
    append_items(text, json, "\n" + std::string(left + 2, ' '), left + 2);
    text.append("\n").append(left, ' ');
  }
  text += json.is_object() ? '}' : ']';
}

}  // namespace

std::string to_json(Format const& format, JsonForm const form) {
  Json const object = format_object(format);
  if (form == JsonForm::Compact) {
    return compact_text(object);
  }
  std::string text;
  append_indented(text, object, 0);
  return text + '\n';
}

FormatParse format_from_json(std::string_view const json) {
  FormatParse parse;
  auto const value = nlohmann::json::parse(json, nullptr, false);
  if (value.is_discarded()) {
    parse.error = syntax_error(json);
  } else if (!value.is_object()) {
    parse.error = "a Format is an object";
  } else {
    read_format({value, "", parse.error}, parse.format.emplace());
  }
  if (!parse.error.empty()) {
    parse.format.reset();
  }
  return parse;
}

}  // namespace textimport
