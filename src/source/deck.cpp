#include "nurl/input/gamess/source/deck.hpp"

#include <algorithm>
#include <unordered_map>
#include <utility>

#include "source/cards.hpp"
#include "source/group_index.hpp"
#include "source/keyword_items.hpp"
#include "source/keyword_lookup.hpp"
#include "source/line_ends.hpp"
#include "source/place.hpp"
#include "source/value_text.hpp"

namespace nurl::input::gamess::source {

Deck::Deck(std::string text) : text_(std::move(text)), groups_(index_groups(text_)) {}

const std::string& Deck::text() const& noexcept { return text_; }

std::string_view Deck::text(Span span) const& noexcept {
    return std::string_view{text_}.substr(span.begin, span.size());
}

std::span<const Group> Deck::sections() const& noexcept { return groups_; }

std::vector<Group> Deck::find_all(std::string_view name) const {
    const std::string asked = asked_section(name);
    const auto is_copy = [&asked](const Group& group) {
        return group.visible && group.name == asked;
    };
    std::vector<Group> found;
    found.reserve(static_cast<std::size_t>(std::ranges::count_if(groups_, is_copy)));
    std::ranges::copy_if(groups_, std::back_inserter(found), is_copy);
    return found;
}

std::vector<Item> Deck::items(const Group& group) const {
    std::vector<Item> items;
    const auto keep = [&items](Item item) { items.push_back(std::move(item)); };
    if (group.kind == GroupKind::Keywords)
        for_each_keyword_item(text_, group, keep);
    else
        for_each_card_item(text_, group, keep);
    return items;
}

std::string Deck::value_of(const Item& item) const { return value_text(text_, item); }

std::optional<std::string> Deck::get_keyword(std::string_view section, std::string_view key) const {
    const auto found = find_last(*this, asked_section(section), asked_key(key));
    if (!found) return std::nullopt;
    return value_of(found->item);
}

std::vector<KeyValue> Deck::list_keywords(std::string_view section) const {
    const std::string asked = asked_section(section);
    std::vector<KeyValue> entries;
    std::unordered_map<std::string, std::size_t> places;  // among entries, by keyword
    for (const Group& group : groups_) {
        if (!group.visible || group.kind != GroupKind::Keywords || group.name != asked) continue;
        for_each_keyword_item(text_, group, [&](const Item& item) {
            if (item.kind != ItemKind::Keyword) return;
            const auto [place, is_new] = places.try_emplace(asked_key(item.key), entries.size());
            if (is_new) entries.push_back({item.key, {}});
            entries[place->second].value = value_of(item);
        });
    }
    return entries;
}

Position Deck::location(std::size_t offset) const noexcept {
    const auto behind = std::ranges::upper_bound(
        groups_, offset, {}, [](const Group& group) { return group.header.begin; });
    const std::size_t place = std::min(offset, text_.size());
    if (behind == groups_.begin()) return PlaceCounter(text_).at(place);
    return PlaceCounter(text_, *std::prev(behind)).at(place);
}

std::optional<Position> Deck::location(std::string_view section) const {
    const std::string asked = asked_section(section);
    const auto hit = std::ranges::find_if(
        groups_, [&asked](const Group& group) { return group.visible && group.name == asked; });
    if (hit == groups_.end()) return std::nullopt;
    return location(hit->header.begin);
}

std::optional<Position> Deck::location(std::string_view section, std::string_view key) const {
    const auto found = find_last(*this, asked_section(section), asked_key(key));
    if (!found) return std::nullopt;
    return found->item.position;
}

}  // namespace nurl::input::gamess::source
