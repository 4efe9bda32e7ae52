#include <algorithm>
#include <stdexcept>
#include <string>
#include <utility>
#include <variant>

#include "editor/added_group.hpp"
#include "editor/editor_names.hpp"
#include "editor/entry_list.hpp"
#include "editor/raw_line_cut.hpp"
#include "model/structured_groups.hpp"
#include "nurl/input/gamess/editor.hpp"
#include "reader/structured_values.hpp"

namespace nurl::input::gamess {

namespace {

using detail::editor_key_name;
using detail::editor_section_name;
using detail::editor_trim;

template <class Record>
void set_in_record(Record& record, std::string_view key, std::string_view value) {
    const auto* const field = detail::find_field<Record>(key);
    if (field != nullptr &&
        detail::store_value(*field, value, detail::ZeroText::IsNoLogical, record))
        detail::erase_entries(record.extra, key);
    else
        detail::upsert_entry(record.extra, key, value);
}

/// The keyword leaves the free text, so that the entry is the one place where it stands.
void set_in_group(NamedSection& section, std::string_view key, std::string_view value) {
    std::vector<std::string> lines = detail::cut_keyword(section.raw_lines, key).lines;
    std::erase_if(lines, [](const std::string& line) { return line.empty(); });
    detail::upsert_entry(section.entries, key, value);
    section.raw_lines = std::move(lines);
}

/// Clears a flagged member. @return whether it was given
template <class Record, class Value>
bool clear_member(const detail::Flagged<Record, Value>& member, Record& record) {
    if (!(record.*member.given)) return false;
    record.*member.given = false;
    if (member.on_removal == detail::OnRemoval::ClearsValue) record.*member.value = {};
    return true;
}

/// Clears an optional member. @return whether it held a value
template <class Record, class Value>
bool clear_member(detail::Optional<Record, Value> member, Record& record) {
    const bool was_given = (record.*member).has_value();
    (record.*member).reset();
    return was_given;
}

/// Entries in `extra` go only when there was no member to clear.
template <class Record>
bool remove_from_record(Record& record, std::string_view key) {
    if (const auto* const field = detail::find_field<Record>(key)) {
        const auto clear = [&record](const auto& member) { return clear_member(member, record); };
        if (std::visit(clear, field->member)) return true;
    }
    return detail::erase_entries(record.extra, key);
}

bool remove_from_group(NamedSection& section, std::string_view key) {
    detail::CutRawLines cut = detail::cut_keyword(section.raw_lines, key);
    section.raw_lines = std::move(cut.lines);
    return detail::erase_entries(section.entries, key) || cut.found;
}

}  // namespace

void InputEditor::set_keyword(std::string_view section, std::string_view key,
                              std::string_view value) {
    const std::string name = editor_section_name(section);
    const std::string keyword = editor_key_name(key);
    if (name.empty() || keyword.empty())
        throw std::runtime_error("Section name and keyword must be non-empty");
    if (name == "DATA") throw std::runtime_error("$DATA does not support key=value editing");
    // A copy, since the value may be the name of a group, which moves when a group is added.
    const std::string text{editor_trim(value)};
    detail::AddedGroup added(input_, name);
    if (detail::is_structured(name)) {
        detail::visit_structured(input_, name,
                                 [&](auto* record) { set_in_record(*record, keyword, text); });
    } else {
        NamedSection* const group = input_.find_section(name);
        if (group == nullptr) throw std::runtime_error("Failed to create section: " + name);
        set_in_group(*group, keyword, text);
    }
    added.keep();
}

bool InputEditor::add_keyword(std::string_view section, std::string_view key,
                              std::string_view value, bool replace) {
    if (!replace && has_keyword(section, key)) return false;
    set_keyword(section, key, value);
    return true;
}

bool InputEditor::remove_keyword(std::string_view section, std::string_view key) {
    const std::string name = editor_section_name(section);
    const std::string keyword = editor_key_name(key);
    if (name.empty() || keyword.empty() || name == "DATA") return false;
    if (detail::is_structured(name))
        return detail::visit_structured(input_, name, [&keyword](auto* record) {
            return record != nullptr && remove_from_record(*record, keyword);
        });
    NamedSection* const group = input_.find_section(name);
    return group != nullptr && remove_from_group(*group, keyword);
}

std::optional<std::string> InputEditor::get_keyword(std::string_view section,
                                                    std::string_view key) const {
    std::vector<KeyValue> entries = list_keywords(section);
    const std::string_view name = detail::editor_trim(key);
    const auto hit = std::ranges::find_if(entries, [name](const KeyValue& entry) {
        return detail::same_editor_key(entry.key, name);
    });
    if (hit == entries.end()) return std::nullopt;
    return std::move(hit->value);
}

bool InputEditor::has_keyword(std::string_view section, std::string_view key) const {
    return get_keyword(section, key).has_value();
}

}  // namespace nurl::input::gamess
