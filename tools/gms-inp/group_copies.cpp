#include "group_copies.hpp"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <utility>

#include "ascii.hpp"

namespace gms_inp {

namespace source = nurl::input::gamess::source;

namespace {

/// A sentence, and behind it where GAMESS does not see a group of the name.
std::string with_unseen_group(std::string sentence, const source::Deck& deck,
                              const std::string& name) {
    const std::string unseen = unseen_group(deck, name);
    if (!unseen.empty()) sentence += "; " + unseen;
    return sentence;
}

std::size_t end_of(const source::Deck& deck, const source::Group& group) {
    if (!group.terminator.empty()) return group.terminator.end;
    std::size_t end = group.body.end;
    while (end > group.header.end && is_blank(deck.text()[end - 1])) --end;
    return end;
}

}  // namespace

std::string unseen_group(const source::Deck& deck, const std::string& name) {
    const auto groups = deck.sections();
    const auto hit = std::ranges::find_if(groups, [&name](const source::Group& group) {
        return !group.visible && group.name == name;
    });
    if (hit == groups.end()) return {};
    return "GAMESS does not see the one in line " + std::to_string(hit->line) +
           ", whose $ is not in column 2 behind a blank";
}

std::vector<source::Group> find_copies(const source::Deck& deck, const GroupPath& path) {
    std::vector<source::Group> copies = deck.find_all(path.group);
    if (path.copies == Copies::All || copies.empty()) return copies;
    const std::uint64_t number = path.copies == Copies::Last ? copies.size() : path.number;
    if (number > copies.size()) return {};
    return {copies[static_cast<std::size_t>(number) - 1]};
}

std::string absence_of(const source::Deck& deck, const GroupPath& path) {
    std::string sentence = text_of(path) + " is not in the deck";
    const std::size_t count = deck.find_all(path.group).size();
    if (count == 0) return with_unseen_group(std::move(sentence), deck, path.group);
    return sentence + ", which has $" + path.group + (count == 1 ? " once" : "") +
           (count == 1 ? "" : " " + std::to_string(count) + " times");
}

std::string absence_of(const source::Deck& deck, const KeywordPath& path) {
    std::string sentence = text_of(path) + " is not in the deck";
    if (!deck.find_all(path.group).empty()) return sentence;
    return with_unseen_group(std::move(sentence), deck, path.group);
}

std::string_view written_text(const source::Deck& deck, const source::Group& group) {
    std::size_t begin = group.header.begin;
    const auto is_indent = [&deck](std::size_t at) {
        return deck.text()[at] == ' ' || deck.text()[at] == '\t';
    };
    while (begin > 0 && is_indent(begin - 1)) --begin;
    return deck.text({begin, end_of(deck, group)});
}

std::string_view line_end_behind(const source::Deck& deck, const source::Group& group) {
    const std::string_view text = deck.text();
    const std::size_t end = text.find_first_of("\r\n", end_of(deck, group));
    if (end == std::string_view::npos) return "\n";
    return text.substr(end, text.substr(end).starts_with("\r\n") ? 2 : 1);
}

}  // namespace gms_inp
