#include "editor/setting.hpp"

#include <algorithm>
#include <charconv>
#include <string_view>
#include <tuple>
#include <utility>
#include <vector>

#include <rapidcheck.h>

#include "editor/editor_names.hpp"
#include "nurl/core/text.hpp"
#include "nurl/input/gamess/editor.hpp"
#include "support/deck_generator.hpp"
#include "support/groups.hpp"

using nurl::core::text::to_upper_copy;
using nurl::input::gamess::GamessInput;
using nurl::input::gamess::InputEditor;
using nurl::input::gamess::KeyValue;
using nurl::input::gamess::NamedSection;
using nurl::input::gamess::detail::editor_key_name;
using nurl::input::gamess::detail::editor_section_name;
using nurl::input::gamess::detail::editor_trim;

namespace nurl::test {

namespace {

using Place = std::pair<std::string, std::string>;

/// A group and a keyword.
rc::Gen<Place> place_in(const GamessInput& deck) {
    std::vector<Place> known;
    for (const StructuredValue& row : structured_values())
        known.emplace_back(row.group, row.keyword);
    std::vector<Place> listed;
    const InputEditor editor{deck};
    for (const std::string& name : editor.section_names())
        for (const KeyValue& entry : editor.list_keywords(name))
            listed.emplace_back(name, entry.key);
    if (listed.empty()) listed = known;
    return rc::gen::oneOf(rc::gen::pair(group_name(), keyword()),
                          rc::gen::elementOf(std::move(known)),
                          rc::gen::elementOf(std::move(listed)));
}

/// What the member of a keyword holds; nothing when there is none.
std::optional<ValueKind> member_kind(const std::string& group, const std::string& key) {
    for (const StructuredValue& row : structured_values())
        if (row.group == group && row.keyword == key) return row.kind;
    return std::nullopt;
}

/// Decimal text as it is written; nothing when it is no 32-bit integer.
std::optional<std::string> as_integer(std::string_view text) {
    if (text.starts_with('+') && !text.starts_with("+-")) text.remove_prefix(1);
    std::int32_t number = 0;
    const auto read = std::from_chars(text.data(), text.data() + text.size(), number);
    if (read.ec != std::errc{} || read.ptr != text.data() + text.size()) return std::nullopt;
    return std::to_string(number);
}

/// A logical word as the member of a keyword is written; nothing for any other text.
std::optional<std::string> as_logical(const std::string& text, bool as_number) {
    for (const char* word : {".T.", "T", "TRUE", "YES", "1"})
        if (to_upper_copy(text) == word) return as_number ? "1" : ".T.";
    for (const char* word : {".F.", "F", "FALSE", "NO"})
        if (to_upper_copy(text) == word) return as_number ? "0" : ".F.";
    return std::nullopt;
}

/// A value as the member of its keyword is written; nothing when it does not convert.
std::optional<std::string> converted(const Setting& setting) {
    const std::string& text = setting.bare_value;
    switch (setting.member.value()) {
        case ValueKind::Text:
            return to_upper_copy(text);
        case ValueKind::Units:
            return to_upper_copy(text) == "BOHR" ? "BOHR" : "ANGS";
        case ValueKind::Integer:
            return as_integer(text);
        case ValueKind::Logical:
            return as_logical(text, setting.bare_key == "NOSYM");
    }
    return std::nullopt;
}

/// What the member of a keyword gives, whatever the further entries hold.
std::optional<std::string> member_value(GamessInput deck, const Setting& setting) {
    if (InputEditor{deck}.has_section(setting.bare_group))
        extra_of(deck, setting.bare_group).clear();
    return InputEditor{deck}.get_keyword(setting.bare_group, setting.bare_key);
}

std::string expected_in_record(const GamessInput& before, const Setting& setting) {
    if (!setting.member) return setting.bare_value;
    if (const auto text = converted(setting)) return *text;
    return member_value(before, setting).value_or(setting.bare_value);
}

/// Of a keyword that stands twice among the entries only the first value is replaced, and the last
/// one counts.
std::string expected_in_group(const GamessInput& before, const Setting& setting) {
    const NamedSection* const group = before.find_section(setting.bare_group);
    if (group == nullptr) return setting.bare_value;
    Entries same;
    for (const KeyValue& entry : group->entries)
        if (editor_key_name(entry.key) == setting.bare_key) same.push_back(entry);
    return same.size() > 1 ? same.back().value : setting.bare_value;
}

}  // namespace

Setting::Setting(const GamessInput& deck) : value(*nurl::test::value()) {
    std::tie(group, key) = *place_in(deck);
    bare_group = editor_section_name(group);
    bare_key = editor_key_name(key);
    bare_value = editor_trim(value);
    is_structured = std::ranges::find(structured_groups, bare_group) != structured_groups.end();
    member = member_kind(bare_group, bare_key);
}

std::string expected_value(const GamessInput& before, const Setting& setting) {
    return setting.is_structured ? expected_in_record(before, setting)
                                 : expected_in_group(before, setting);
}

}  // namespace nurl::test
