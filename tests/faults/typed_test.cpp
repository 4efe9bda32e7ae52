#include <cstdint>
#include <string>
#include <vector>

#include <doctest/doctest.h>

#include "faults/decks.hpp"
#include "faults/fail_each.hpp"
#include "nurl/input/gamess/reader.hpp"
#include "typed/all_records.hpp"
#include "typed/sample_values.hpp"

using namespace nurl::input::gamess;
using namespace nurl::input::gamess::test;
using namespace nurl::input::gamess::typed::detail;
using nurl::test::fail_each_allocation_of;
using nurl::test::fail_each_allocation_of_change;

namespace {

const std::string long_text = "A-TEXT-THAT-IS-LONGER-THAN-FIFTEEN-BYTES";

/// The group of a record with a value for each of its keywords, and with what has no member.
template <class Record>
NamedSection full_group() {
    NamedSection group{std::string{group_of<Record>}, {}, {}};
    for (const auto& field : typed_fields<Record>)
        group.entries.push_back({std::string{field.keyword}, std::string{sample_of(field).given}});
    group.entries.push_back({long_text, long_text});
    group.entries.push_back(
        {std::string{typed_fields<Record>.front().keyword}, "a broken value(("});
    group.raw_lines = {"some text without a keyword", "KEY=" + long_text + " and text = behind it",
                       "  "};
    return group;
}

/// A document without the group, with it, and one that was made in code.
template <class Record>
std::vector<GamessInput> documents() {
    GamessInput read = parse_string(nurl::test::whole_deck).input;
    const std::string name{group_of<Record>};
    std::erase_if(read.sections, [&](const NamedSection& group) { return group.name == name; });
    GamessInput with_group = read;
    with_group.sections.insert(with_group.sections.begin(), full_group<Record>());
    return {read, with_group, GamessInput{}};
}

}  // namespace

TEST_CASE_TEMPLATE("A group is read into its record and written or memory runs out", Record,
                   NURL_ALL_RECORDS) {
    const NamedSection group = full_group<Record>();
    const Record record = functions<Record>.read(group);
    REQUIRE(record.extra_entries.size() >= 2);
    fail_each_allocation_of([&group] { return functions<Record>.read(group); });
    fail_each_allocation_of([&record] { return typed::to_named_section(record); });
}

TEST_CASE_TEMPLATE("A record that cannot be set leaves the document as it was", Record,
                   NURL_ALL_RECORDS) {
    const Record record = functions<Record>.read(full_group<Record>());
    for (const GamessInput& deck : documents<Record>()) {
        const Functions<Record>& all = functions<Record>;
        fail_each_allocation_of([&] { return all.get(deck); });
        fail_each_allocation_of_change(deck,
                                       [&](GamessInput& changed) { all.set(changed, record); });
        const InputEditor editor{deck};
        fail_each_allocation_of([&] { return (editor.*all.editor_get)(); });
        fail_each_allocation_of_change(
            editor, [&](InputEditor& changed) { (changed.*all.editor_set)(record); },
            &InputEditor::input);
    }
}

TEST_CASE("A list that cannot be read leaves the old one") {
    fail_each_allocation_of_change(std::vector<std::int32_t>{1, 2}, [](auto& list) {
        static_cast<void>(parse_int_list("1, 2, 3, 4, 5, 6, 7, 8, 9", list));
    });
    fail_each_allocation_of_change(std::vector<double>{1.0}, [](auto& list) {
        static_cast<void>(parse_double_list("1.0D0, 2, 3, 4, 5,, 6.5", list));
    });
}

TEST_CASE("Entries that cannot be pushed leave the list as it was") {
    const std::vector<KeyValue> before{{long_text, long_text}};
    const auto fail_each = [&before](const auto& push) {
        fail_each_allocation_of_change(before, push);
    };
    fail_each([](auto& list) { push_optional_int(list, long_text, 1); });
    fail_each([](auto& list) { push_optional_double(list, long_text, 0.123456789012345); });
    fail_each([](auto& list) { push_optional_bool(list, long_text, true); });
    fail_each([](auto& list) { push_optional_token(list, long_text, long_text); });
    fail_each([](auto& list) { push_int_list(list, long_text, {123456789, 123456789, 3}); });
    fail_each([](auto& list) { push_double_list(list, long_text, {0.123456789012345, 2.0}); });
}

TEST_CASE("Pieces of typed records run out of memory cleanly") {
    const NamedSection group = full_group<typed::StatptSection>();
    fail_each_allocation_of([&group] { return collect_section_content(group); });
    fail_each_allocation_of([&group] {
        return make_named_section(long_text, group.entries, group.entries, group.raw_lines);
    });
    fail_each_allocation_of([] { return base_key(long_text + "(1)"); });
    fail_each_allocation_of([] {
        bool value = false;
        return try_parse_bool(" .TRUE. ", value) || value;
    });
}

TEST_CASE("A group that cannot be stored leaves the document as it was") {
    const GamessInput deck = parse_string(nurl::test::whole_deck).input;
    for (const std::string& name : {std::string{"PCM"}, long_text}) {
        CAPTURE(name);
        fail_each_allocation_of_change(deck, [&name](GamessInput& changed) {
            set_named_section(changed, name, {"", {{long_text, "1"}}, {long_text}});
        });
        fail_each_allocation_of_change(
            deck, [&name](GamessInput& changed) { changed.upsert_section(name); });
    }
}
