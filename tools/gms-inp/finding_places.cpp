#include "finding_places.hpp"

#include "ascii.hpp"
#include "group_text.hpp"

namespace gms_inp {

namespace {

/// One text for kind, group and keyword. A group name holds no blank, so nothing is ambiguous.
std::string place_key(PlaceKind kind, std::string_view group, std::string_view keyword) {
    std::string key(1, static_cast<char>('0' + static_cast<int>(kind)));
    key += to_upper(group);
    key += ' ';
    key += keyword;
    return key;
}

bool is_free_text(std::string_view text) noexcept {
    return !text.empty() && text[0] != '!' && text[0] != '#';
}

}  // namespace

PlaceIndex::PlaceIndex(std::string_view text) {
    std::string open_group;
    std::size_t open_line = 0;
    GroupKind kind = GroupKind::Keywords;
    DeckWalk walk{text};
    while (const auto line = walk.next()) {
        if (line->role == LineRole::Outside) continue;
        if (line->role == LineRole::Header) {
            if (open_line > 0) add(PlaceKind::Unclosed, open_group, open_line);
            add(PlaceKind::Group, line->group, line->number);
            open_group = line->group;
            open_line = line->number;
            kind = kind_of_group(line->group);
        }
        if (kind != GroupKind::Data && kind != GroupKind::Raw) add_group_text(*line);
        if (line->closes) open_line = 0;
    }
    if (open_line > 0) add(PlaceKind::UnclosedAtEnd, open_group, open_line);
}

Places PlaceIndex::find(PlaceKind kind, std::string_view group, std::string_view keyword) const {
    const auto hit = places_.find(place_key(kind, group, keyword));
    return hit == places_.end() ? Places{} : hit->second;
}

void PlaceIndex::add(PlaceKind kind, std::string_view group, std::size_t line,
                     std::string_view keyword) {
    Places& places = places_[place_key(kind, group, keyword)];
    if (places.count++ == 0) places.first_line = line;
}

void PlaceIndex::add_group_text(const DeckLine& line) {
    const GroupText text = split_group_text(line.text);
    for (const auto& pair : text.pairs) {
        add(PlaceKind::Keyword, line.group, line.number, pair.key);
    }
    if (!is_free_text(text.rest)) return;
    const bool header = line.role == LineRole::Header;
    add(header ? PlaceKind::HeaderText : PlaceKind::BodyText, line.group, line.number);
    add(PlaceKind::AnyText, line.group, line.number);
}

}  // namespace gms_inp
