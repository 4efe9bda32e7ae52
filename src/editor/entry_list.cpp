#include "editor/entry_list.hpp"

#include <algorithm>
#include <utility>

#include "editor/editor_names.hpp"

namespace nurl::input::gamess::detail {

void upsert_entry(std::vector<KeyValue>& entries, std::string_view key, std::string_view value) {
    const std::string_view name = editor_trim(key);
    const auto hit = std::ranges::find_if(
        entries, [name](const KeyValue& entry) { return same_editor_key(entry.key, name); });
    if (hit == entries.end())
        entries.push_back({std::string{key}, std::string{value}});
    else
        hit->value = std::string{value};
}

bool erase_entries(std::vector<KeyValue>& entries, std::string_view key) noexcept {
    const std::string_view name = editor_trim(key);
    const auto removed = std::erase_if(
        entries, [name](const KeyValue& entry) { return same_editor_key(entry.key, name); });
    return removed > 0;
}

void KeywordList::upsert(std::string_view key, std::string_view value) {
    const auto [place, is_new] = place_of_.try_emplace(editor_key_name(key), entries_.size());
    if (is_new)
        entries_.push_back({std::string{key}, std::string{value}});
    else
        entries_[place->second].value = std::string{value};
}

std::vector<KeyValue> KeywordList::take() && noexcept { return std::move(entries_); }

}  // namespace nurl::input::gamess::detail
