// SPDX-License-Identifier: MIT
//
// Fields and who owns their text, field arrays, and what an options record must not be.
#include <type_traits>
#include <utility>

#include <gtest/gtest.h>

#include "tests/support/table.hpp"
#include "tests/support/text.hpp"
#include "text_format_detection/detection/strategy_selector.hpp"
#include "text_format_detection/model/field.hpp"
#include "text_format_detection/model/field_array.hpp"
#include "text_format_detection/platform/record_readers.hpp"

namespace {

using support::show;
using textio::Field;
using textio::FieldArray;
using textio::detection::StrategySelector;
using textio::parser::options;
using TypeOptions = ostrel::io::text::typedetection::TypeAnalyzerOptions;

// Readers and selectors refer to their options, which therefore must not be a temporary.
template <class Reader>
constexpr bool takes_only_lasting_options =
    std::is_constructible_v<Reader, options const&> && !std::is_constructible_v<Reader, options> &&
    !std::is_constructible_v<Reader, options const>;
static_assert(takes_only_lasting_options<textio::parser::DelimitedRecordReader>);
static_assert(takes_only_lasting_options<textio::parser::FixedWidthRecordReader>);
static_assert(takes_only_lasting_options<textio::parser::LineRecordReader>);
static_assert(std::is_constructible_v<StrategySelector, options const&, TypeOptions const&>);
static_assert(!std::is_constructible_v<StrategySelector, options, TypeOptions const&>);
static_assert(!std::is_constructible_v<StrategySelector, options const&, TypeOptions>);

TEST(TextModel, FieldThatIsMovedFromIsEmpty) {
  Field from(u"abc");
  Field to(std::move(from));
  EXPECT_EQ(show(to.view()), "abc");
  EXPECT_EQ(from.data(), nullptr);  // NOLINT: that is the question
  from = std::move(to);
  EXPECT_EQ(show(from.view()), "abc");
  EXPECT_EQ(to.data(), nullptr);  // NOLINT: the same
}

TEST(TextModel, MutableFieldOwnsWhatIsLeft) {
  for (std::size_t const length : {0U, 32U, 33U, 1000U}) {
    std::u16string text(length + 2, u'a');
    textio::MutableField field{Field(text)};
    field.remove_prefix(1);
    field.remove_suffix(1);
    field.own();
    text.assign(text.size(), u'b');
    char16_t const* const copy = field.data();
    field.own();
    EXPECT_EQ(field.data(), copy) << "once";
    EXPECT_EQ(show(field.view()), std::string(length, 'a'));
    field.remove_suffix(length + 1);
    EXPECT_TRUE(field.empty());
  }
}

TEST(TextModel, FieldArray) {
  support::for_each_row("model/field_array.tsv", [](support::Row const& row) {
    FieldArray array = support::make_records(row.counts(0));
    EXPECT_EQ(array.record_ends(), row.counts(1));
    array.drop_trailing_empty_records();
    EXPECT_EQ(array.record_ends(), row.counts(2));
    EXPECT_EQ(array.fields().size(), row.counts(2).empty() ? 0 : row.counts(2).back());
  });
  FieldArray fields;
  fields.append_empty_record();
  fields.append_record(u"ab,,c", std::vector<textio::FieldBounds>{{0, 2}, {3, 3}, {4, 5}});
  fields.append_record(std::vector<Field>{Field(u"d"), Field(u"e")});
  fields.append_record(u"f", std::vector<textio::FieldBounds>{{0, 1}});  // there is room
  EXPECT_EQ(show(fields), "() / ab||c / d|e / f");
  EXPECT_EQ(fields.record_start(2), 3U);
}

}  // namespace
