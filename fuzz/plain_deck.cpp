#include "plain_deck.hpp"

#include <algorithm>

namespace nurl::fuzz {

namespace {

using input::gamess::KeyValue;

void set_first(PlainDeck::Entries& entries, const std::string& key, const std::string& value) {
    for (KeyValue& entry : entries) {
        if (entry.key != key) continue;
        entry.value = value;
        return;
    }
    entries.push_back({key, value});
}

}  // namespace

PlainDeck::PlainDeck(const input::gamess::GamessInput& deck) {
    for (const auto& section : deck.sections)
        groups_.push_back({section.name, section.entries, !section.raw_lines.empty()});
}

PlainDeck::Group* PlainDeck::find(const std::string& name) {
    for (Group& group : groups_)
        if (group.name == name) return &group;
    return nullptr;
}

bool PlainDeck::has(const std::string& name) const {
    return std::ranges::any_of(groups_, [&name](const Group& one) { return one.name == name; });
}

std::optional<PlainDeck::Entries> PlainDeck::keywords(const std::string& name) const {
    Entries listed;
    for (const Group& group : groups_) {
        if (group.name != name) continue;
        if (group.has_free_text) return std::nullopt;
        for (const KeyValue& entry : group.entries) set_first(listed, entry.key, entry.value);
        break;
    }
    return listed;
}

void PlainDeck::ensure(const std::string& name) {
    if (!has(name)) groups_.push_back({name, {}, false});
}

void PlainDeck::remove(const std::string& name) {
    std::erase_if(groups_, [&name](const Group& group) { return group.name == name; });
}

void PlainDeck::set(const std::string& name, const std::string& key, const std::string& value) {
    ensure(name);
    set_first(find(name)->entries, key, value);
}

void PlainDeck::remove_keyword(const std::string& name, const std::string& key) {
    Group* const group = find(name);
    if (group == nullptr) return;
    std::erase_if(group->entries, [&key](const KeyValue& entry) { return entry.key == key; });
}

}  // namespace nurl::fuzz
