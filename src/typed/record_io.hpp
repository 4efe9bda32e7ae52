/// @file
/// Reading and writing any typed record by its table.
#pragma once

#include <iterator>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

#include "model/entries.hpp"
#include "nurl/core/text.hpp"
#include "nurl/input/gamess/typed/detail.hpp"
#include "nurl/input/gamess/typed/field.hpp"
#include "typed/pieces.hpp"

namespace nurl::input::gamess::typed::detail {

/// Converters of a trimmed value, one for each kind of single value and of list element.
inline bool read_value(std::string_view text, std::int32_t& value) {
    return core::text::try_parse_int(text, value);
}
inline bool read_value(std::string_view text, double& value) {
    return core::text::try_parse_double(text, value);
}
inline bool read_value(std::string_view text, bool& value) { return try_parse_bool(text, value); }
inline bool read_value(std::string_view text, std::string& value) {
    value = core::text::to_upper_copy(text);
    return true;
}
inline bool read_value(std::string_view text, std::vector<std::int32_t>& list) {
    return parse_int_list(text, list);
}
inline bool read_value(std::string_view text, std::vector<double>& list) {
    return parse_double_list(text, list);
}
inline bool read_value(std::string_view text, std::vector<std::string>& list) {
    for (const std::string_view piece : split_pieces(text))
        list.push_back(core::text::to_upper_copy(piece));
    return true;
}

/// Stores a single value; the last one of a keyword stays.
template <class Record, class Value>
bool assign(std::optional<Value> Record::*member, std::string_view text, Record& into) {
    Value value{};
    if (!read_value(text, value)) return false;
    into.*member = std::move(value);
    return true;
}

template <class Record>
bool assign(CaseKept<Record> field, std::string_view text, Record& into) {
    into.*field.member = std::string{text};
    return true;
}

/// Appends to a list.
template <class Record, class Value>
bool assign(std::vector<Value> Record::*member, std::string_view text, Record& into) {
    std::vector<Value> values;
    if (!read_value(text, values)) return false;
    std::move(values.begin(), values.end(), std::back_inserter(into.*member));
    return true;
}

template <class Record>
bool assign(WithoutIndex<Record> field, std::string_view text, Record& into) {
    return assign(field.member, text, into);
}

template <class Record>
bool assign(ReplacedOnReading<Record> field, std::string_view text, Record& into) {
    return read_value(text, into.*field.member);
}

/// Stores an entry in the member of its keyword. @return false when there is none or the value does
/// not convert; the record is then untouched
template <class Record>
bool assign_entry(const KeyValue& entry, Record& into) {
    const std::string base = base_key(entry.key);
    for (const auto& field : typed_fields<Record>)
        if (field.base() == base)
            return std::visit([&](const auto& member) { return assign(member, entry.value, into); },
                              field.member);
    return false;
}

/// Reads a group into a record.
template <class Record>
Record read_record(const NamedSection& section) {
    Record record;
    SectionContent content = collect_section_content(section);
    for (KeyValue& entry : content.entries)
        if (!assign_entry(entry, record)) record.extra_entries.push_back(std::move(entry));
    record.raw_lines = std::move(content.raw_lines);
    return record;
}

/// Writers of one member under its keyword, one for each kind.
using Entries = std::vector<KeyValue>;

inline void push(Entries& entries, std::string_view key, std::optional<std::int32_t> value) {
    push_optional_int(entries, key, value);
}
inline void push(Entries& entries, std::string_view key, std::optional<double> value) {
    push_optional_double(entries, key, value);
}
inline void push(Entries& entries, std::string_view key, std::optional<bool> value) {
    push_optional_bool(entries, key, value);
}
inline void push(Entries& entries, std::string_view key, const std::optional<std::string>& value) {
    push_optional_token(entries, key, value);
}
inline void push(Entries& entries, std::string_view key, const std::vector<std::int32_t>& list) {
    push_int_list(entries, key, list);
}
inline void push(Entries& entries, std::string_view key, const std::vector<double>& list) {
    push_double_list(entries, key, list);
}
inline void push(Entries& entries, std::string_view key, const std::vector<std::string>& list) {
    std::string joined;
    for (const std::string& token : list) {
        if (&token != &list.front()) joined += ',';
        joined += core::text::to_upper_copy(core::text::trim(token));
    }
    gamess::detail::append_entry(entries, key, joined);
}

template <class Record, class Value>
void push_member(Entries& entries, const TypedField<Record>& field, Value Record::*member,
                 const Record& from) {
    push(entries, field.keyword, from.*member);
}

template <class Record>
void push_member(Entries& entries, const TypedField<Record>& field, CaseKept<Record> kind,
                 const Record& from) {
    gamess::detail::append_entry(entries, field.keyword, (from.*kind.member).value_or(""));
}

template <class Record>
void push_member(Entries& entries, const TypedField<Record>& field, WithoutIndex<Record> kind,
                 const Record& from) {
    push(entries, field.keyword, from.*kind.member);
}

template <class Record>
void push_member(Entries& entries, const TypedField<Record>& field, ReplacedOnReading<Record> kind,
                 const Record& from) {
    const auto& list = from.*kind.member;
    push(entries, list.size() == 1 ? field.base() : field.keyword, list);
}

/// Writes a record as its group.
template <class Record>
NamedSection write_record(const Record& record) {
    Entries entries;
    for (const auto& field : typed_fields<Record>)
        std::visit([&](const auto& member) { push_member(entries, field, member, record); },
                   field.member);
    return make_named_section(std::string{group_of<Record>}, std::move(entries),
                              record.extra_entries, record.raw_lines);
}

/// Reads the record's group of a document.
template <class Record>
std::optional<Record> get_record(const GamessInput& input) {
    return get_section_model<Record>(input, group_of<Record>, read_record<Record>);
}

/// Replaces or adds the record's group in a document.
template <class Record>
void set_record(GamessInput& input, const Record& record) {
    set_named_section(input, group_of<Record>, write_record(record));
}

}  // namespace nurl::input::gamess::typed::detail
