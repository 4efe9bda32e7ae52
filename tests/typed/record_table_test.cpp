#include <algorithm>

#include "typed/all_records.hpp"
#include "typed/expected_rows.hpp"
#include "typed/sample_values.hpp"

using namespace nurl::input::gamess;
using namespace nurl::input::gamess::test;
using typed::detail::group_of;
using typed::detail::typed_fields;

namespace {

template <class Record>
NamedSection section_with(std::string_view keyword, std::string_view value) {
    return {std::string{group_of<Record>}, {{std::string{keyword}, std::string{value}}}, {}};
}

std::string lower(std::string_view text) {
    std::string copy(text);
    std::ranges::transform(copy, copy.begin(), [](char c) {
        return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
    });
    return copy;
}

}  // namespace

TEST_CASE_TEMPLATE("A record has the documented keywords in order, each of its kind", Record,
                   NURL_ALL_RECORDS) {
    const auto& expected = expected_rows<Record>;
    REQUIRE(typed_fields<Record>.size() == expected.size());
    for (std::size_t row = 0; row < expected.size(); ++row) {
        CHECK(typed_fields<Record>[row].keyword == expected[row].keyword);
        CHECK(sample_of(typed_fields<Record>[row]).kind == expected[row].kind);
    }
}

TEST_CASE_TEMPLATE("Every keyword is read into a member of its own and written back", Record,
                   NURL_ALL_RECORDS) {
    for (const auto& field : typed_fields<Record>) {
        CAPTURE(field.keyword);
        const Sample sample = sample_of(field);
        const Record record =
            functions<Record>.read(section_with<Record>(field.keyword, sample.given));
        CHECK(record != Record{});
        CHECK(record.extra_entries.empty());
        const NamedSection written = typed::to_named_section(record);
        CHECK(written == section_with<Record>(field.keyword, sample.written));
    }
}

TEST_CASE_TEMPLATE("Every keyword is found in lower case, with blanks and under any index", Record,
                   NURL_ALL_RECORDS) {
    for (const auto& field : typed_fields<Record>) {
        CAPTURE(field.keyword);
        const Sample sample = sample_of(field);
        const Record plain =
            functions<Record>.read(section_with<Record>(field.base(), sample.given));
        const std::string indexed = "  " + lower(field.base()) + "(7) ";
        CHECK(functions<Record>.read(section_with<Record>(indexed, sample.given)) == plain);
        CHECK(plain.extra_entries.empty());
    }
}

TEST_CASE_TEMPLATE("A value that does not convert is kept as an entry and leaves its member alone",
                   Record, NURL_ALL_RECORDS) {
    for (const auto& field : typed_fields<Record>) {
        const Sample sample = sample_of(field);
        if (sample.broken.empty()) continue;
        CAPTURE(field.keyword);
        Record expected;
        expected.extra_entries = {{std::string{field.keyword}, std::string{sample.broken}}};
        const NamedSection section = section_with<Record>(field.keyword, sample.broken);
        CHECK(functions<Record>.read(section) == expected);
        CHECK(typed::to_named_section(expected) == section);

        NamedSection both = section_with<Record>(field.keyword, sample.given);
        both.entries.push_back(section.entries.front());
        Record kept = functions<Record>.read(section_with<Record>(field.keyword, sample.given));
        kept.extra_entries = expected.extra_entries;
        CHECK(functions<Record>.read(both) == kept);
    }
}

TEST_CASE_TEMPLATE("Keywords are written in table order, then extra entries, then raw lines",
                   Record, NURL_ALL_RECORDS) {
    NamedSection given{std::string{group_of<Record>}, {{"UNKNOWN(2)", "kept"}}, {"free text"}};
    NamedSection expected = given;
    expected.entries.clear();
    for (const auto& field : typed_fields<Record>) {
        const Sample sample = sample_of(field);
        given.entries.insert(given.entries.begin(),
                             {std::string{field.keyword}, std::string{sample.given}});
        expected.entries.push_back({std::string{field.keyword}, std::string{sample.written}});
    }
    expected.entries.push_back({"UNKNOWN(2)", "kept"});
    CHECK(typed::to_named_section(functions<Record>.read(given)) == expected);
}

TEST_CASE_TEMPLATE("A default record writes an empty group under the name of its group", Record,
                   NURL_ALL_RECORDS) {
    const NamedSection empty{std::string{group_of<Record>}, {}, {}};
    CHECK(typed::to_named_section(Record{}) == empty);
    CHECK(functions<Record>.read(empty) == Record{});
    CHECK(functions<Record>.read({"ANY OTHER NAME", {}, {}}) == Record{});
}

TEST_CASE_TEMPLATE("A getter gives nothing without the group and a default record when it is empty",
                   Record, NURL_ALL_RECORDS) {
    GamessInput input;
    CHECK(functions<Record>.get(input) == std::nullopt);
    input.sections.push_back({lower(group_of<Record>), {}, {}});
    CHECK(functions<Record>.get(input) == Record{});
}

TEST_CASE_TEMPLATE("A setter replaces the group whole and in its place", Record, NURL_ALL_RECORDS) {
    GamessInput input;
    input.sections = {
        {"A", {}, {}}, {std::string{group_of<Record>}, {{"X", "1"}}, {"text"}}, {"B", {}, {}}};
    const auto& field = typed_fields<Record>.front();
    const Record record =
        functions<Record>.read(section_with<Record>(field.keyword, sample_of(field).given));
    functions<Record>.set(input, record);
    REQUIRE(input.sections.size() == 3);
    CHECK(input.sections[1] == typed::to_named_section(record));
    functions<Record>.set(input, Record{});
    CHECK(input.sections[1] == NamedSection{std::string{group_of<Record>}, {}, {}});
    CHECK(input.extra_sections.empty());
}

TEST_CASE_TEMPLATE("The editor's pair reads and writes the group of its document", Record,
                   NURL_ALL_RECORDS) {
    InputEditor editor{GamessInput{}};
    CHECK((editor.*functions<Record>.editor_get)() == std::nullopt);
    const auto& field = typed_fields<Record>.back();
    const Record record =
        functions<Record>.read(section_with<Record>(field.keyword, sample_of(field).given));
    (editor.*functions<Record>.editor_set)(record);
    CHECK((editor.*functions<Record>.editor_get)() == record);
    CHECK(editor.input().extra_sections.size() == 1);
    CHECK(editor.get_keyword(group_of<Record>, field.keyword) == sample_of(field).written);
}
