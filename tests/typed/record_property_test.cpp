#include <algorithm>
#include <charconv>
#include <string>
#include <variant>

#include <doctest/doctest.h>
#include <rapidcheck.h>

#include "typed/all_records.hpp"

using namespace nurl::input::gamess;
using namespace nurl::input::gamess::test;
using namespace nurl::input::gamess::typed::detail;

namespace {

/// An upper-case word that is no keyword of any record: it begins with `Q_`.
std::string word() {
    return "Q_" + *rc::gen::container<std::string>(rc::gen::elementOf(std::string("ABXY019_")));
}

/// A real that 15 significant digits tell exactly, made from decimal text.
double short_real() {
    const auto digits =
        *rc::gen::inRange<std::int64_t>(-999'999'999'999'999, 1'000'000'000'000'000);
    const int exponent = *rc::gen::inRange(-40, 40);
    const std::string text = std::to_string(digits) + 'e' + std::to_string(exponent);
    double value = 0.0;
    std::from_chars(text.data(), text.data() + text.size(), value);
    return value;
}

template <class Value>
Value random_value() {
    if constexpr (std::is_same_v<Value, double>)
        return short_real();
    else if constexpr (std::is_same_v<Value, std::string>)
        return word();
    else
        return *rc::gen::arbitrary<Value>();
}

/// Gives a member a random value, or leaves it absent.
template <class Record>
struct Fill {
    Record* record;

    template <class Value>
    void operator()(std::optional<Value> Record::*member) const {
        if (*rc::gen::arbitrary<bool>()) record->*member = random_value<Value>();
    }
    template <class Value>
    void operator()(std::vector<Value> Record::*member) const {
        const auto size = *rc::gen::inRange<std::size_t>(0, 4);
        for (std::size_t i = 0; i < size; ++i) (record->*member).push_back(random_value<Value>());
    }
    void operator()(CaseKept<Record> kind) const { (*this)(kind.member); }
    void operator()(ReplacedOnReading<Record> kind) const { (*this)(kind.member); }
    void operator()(WithoutIndex<Record> kind) const { (*this)(kind.member); }
};

template <class Record>
Record random_record() {
    Record record;
    for (const auto& field : typed_fields<Record>) std::visit(Fill<Record>{&record}, field.member);
    const auto extras = *rc::gen::inRange(0, 3);
    for (int i = 0; i < extras; ++i) record.extra_entries.push_back({word(), word()});
    if (*rc::gen::arbitrary<bool>()) record.raw_lines = {"  free text, no pair", "! note"};
    return record;
}

/// A group with known and unknown keywords, good and bad values, and pairs hidden in raw lines.
template <class Record>
NamedSection random_section() {
    NamedSection section;
    const auto count = *rc::gen::inRange(0, 8);
    for (int i = 0; i < count; ++i) {
        const auto& field = *rc::gen::elementOf(
            std::vector(typed_fields<Record>.begin(), typed_fields<Record>.end()));
        const std::string key = *rc::gen::element(std::string{field.keyword}, word());
        const std::string value =
            *rc::gen::element<std::string>("1", "1,2", "x", ".T.", "2.5", "a b");
        if (*rc::gen::arbitrary<bool>())
            section.entries.push_back({key, value});
        else
            section.raw_lines.push_back("note$ " + key + "=" + value + "$ 7");
    }
    return section;
}

std::size_t count_words(const std::vector<std::string>& lines, std::string_view word) {
    std::size_t count = 0;
    for (const std::string& line : lines)
        for (std::size_t at = line.find(word); at != std::string::npos;
             at = line.find(word, at + 1))
            ++count;
    return count;
}

}  // namespace

TEST_CASE_TEMPLATE("A record survives being written and read", Record, NURL_ALL_RECORDS) {
    CHECK(rc::check([] {
        const auto record = random_record<Record>();
        RC_ASSERT(functions<Record>.read(typed::to_named_section(record)) == record);
    }));
}

TEST_CASE_TEMPLATE("What a group says is settled once it was read and written", Record,
                   NURL_ALL_RECORDS) {
    CHECK(rc::check([] {
        const Record once = functions<Record>.read(random_section<Record>());
        const NamedSection written = typed::to_named_section(once);
        const Record again = functions<Record>.read(written);
        RC_ASSERT(again == once);
        RC_ASSERT(typed::to_named_section(again) == written);
    }));
}

TEST_CASE_TEMPLATE("Unknown keywords and free text of a group are all kept", Record,
                   NURL_ALL_RECORDS) {
    CHECK(rc::check([] {
        const NamedSection section = random_section<Record>();
        const Record record = functions<Record>.read(section);
        const SectionContent content = collect_section_content(section);
        for (const KeyValue& entry : content.entries) {
            if (!entry.key.starts_with("Q_")) continue;
            RC_ASSERT(std::ranges::count(record.extra_entries, entry) ==
                      std::ranges::count(content.entries, entry));
        }
        RC_ASSERT(record.raw_lines == content.raw_lines);
        RC_ASSERT(count_words(record.raw_lines, "note") == count_words(section.raw_lines, "note"));
    }));
}
