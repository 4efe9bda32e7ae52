#include <string>

#include "editor/editor_names.hpp"
#include "editor/entry_list.hpp"
#include "model/structured_groups.hpp"
#include "nurl/core/text.hpp"
#include "nurl/input/gamess/editor.hpp"
#include "reader/pair_scanner.hpp"
#include "writer/data_block.hpp"
#include "writer/group_block.hpp"
#include "writer/structured_entries.hpp"

namespace nurl::input::gamess {

namespace {

std::vector<KeyValue> group_keywords(const NamedSection& section) {
    detail::KeywordList keywords;
    for (const KeyValue& entry : section.entries) keywords.upsert(entry.key, entry.value);
    for (const std::string& line : section.raw_lines) {
        detail::PairScanner scanner(line);
        while (const auto pair = scanner.next())
            keywords.upsert(core::text::to_upper_copy(pair->key), pair->value);
    }
    return std::move(keywords).take();
}

std::string data_text(const GamessInput& input) {
    std::string text;
    if (detail::data_is_due(input, detail::is_editor_blank)) detail::append_data_block(input, text);
    return text;
}

}  // namespace

std::vector<KeyValue> InputEditor::list_keywords(std::string_view section) const {
    const std::string name = detail::editor_section_name(section);
    if (name == "DATA") return {};
    if (detail::is_structured(name)) return detail::structured_entries(input_, name);
    const NamedSection* const group = input_.find_section(name);
    return group == nullptr ? std::vector<KeyValue>{} : group_keywords(*group);
}

std::string InputEditor::render_section(std::string_view section) const {
    const std::string name = detail::editor_section_name(section);
    std::string text;
    if (name == "DATA") return data_text(input_);
    if (detail::is_structured(name)) {
        if (detail::structured_present(input_, name))
            detail::append_group_block(detail::editor_dollar_name(name),
                                       detail::structured_entries(input_, name), {}, text);
    } else if (const NamedSection* const group = input_.find_section(name)) {
        detail::append_group_block(detail::editor_dollar_name(group->name), group->entries,
                                   group->raw_lines, text);
    }
    return text;
}

}  // namespace nurl::input::gamess
