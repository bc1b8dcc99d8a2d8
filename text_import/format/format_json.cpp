// SPDX-License-Identifier: MIT

#include "text_import/format/format_json.hpp"

#include <algorithm>
#include <utility>

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

}  // namespace

std::string to_json(Format const& format, JsonForm const form) {
  bool const is_indented = form == JsonForm::Indented;
  JsonWriter writer(is_indented ? JsonWriter::Layout::Indented : JsonWriter::Layout::OneLine);
  write_format(writer, format);
  std::string text = std::move(writer).take();
  return is_indented ? std::move(text) + '\n' : text;
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
