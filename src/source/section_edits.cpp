#include <algorithm>
#include <stdexcept>
#include <utility>

#include "model/text_view.hpp"
#include "nurl/core/text.hpp"
#include "nurl/input/gamess/source/deck.hpp"
#include "source/edit_list.hpp"
#include "source/group_kinds.hpp"
#include "source/keyword_lookup.hpp"
#include "source/line_ends.hpp"

namespace nurl::input::gamess::source {

namespace {

[[noreturn]] void throw_unreadable(const std::string& name) {
    throw std::runtime_error("Section cannot be read back: " + name);
}

bool is_visible(const Group& group) noexcept { return group.visible; }

/// The group before which a new one goes, or the last one when it goes behind that; null in a deck
/// without visible groups.
const Group* neighbour_of_new_group(const Deck& deck) noexcept {
    const Group* last = nullptr;
    for (const Group& group : deck.sections()) {
        if (!is_visible(group)) continue;
        last = &group;
        if (group.name == "DATA") break;
    }
    return last;
}

bool has_small_letters(std::string_view text) noexcept {
    return std::ranges::any_of(text, [](char c) { return c >= 'a' && c <= 'z'; });
}

/// Makes sure that no open group stands in front of a place: GAMESS would read a new one there as
/// more of it.
void require_closed(const Deck& deck, std::size_t at) {
    const Group* before = nullptr;
    for (const Group& group : deck.sections())
        if (is_visible(group) && group.header.begin < at) before = &group;
    if (before != nullptr && before->terminator.empty())
        throw std::runtime_error("Section is not closed by $END: " + before->name);
}

/// An empty group on lines of its own.
std::string empty_group(const std::string& name, std::string_view header,
                        std::string_view line_end) {
    const GroupKind kind = kind_of_group(name);
    const bool small = kind != GroupKind::FixedColumns && has_small_letters(header);
    std::string text = " $" + (small ? core::text::to_lower_copy(name) : name);
    if (kind != GroupKind::Keywords) text += line_end;
    text += small ? " $end" : " $END";
    return text += line_end;
}

/// The edit that adds an empty group.
Edit new_group(const Deck& deck, const std::string& name) {
    const std::string& text = deck.text();
    const Group* const neighbour = neighbour_of_new_group(deck);
    if (neighbour == nullptr || neighbour->name != "DATA") {
        const std::size_t end = neighbour == nullptr ? text.size() : neighbour->terminator.end;
        const std::size_t at = next_line(text, end);
        const std::string_view line_end = line_end_near(text, end);
        const std::string_view header = neighbour == nullptr ? "" : deck.text(neighbour->header);
        const bool is_glued = at > 0 && !is_line_end(text[at - 1]);
        std::string group = empty_group(name, header, line_end);
        return {{at, at}, is_glued ? std::string{line_end} + group : group};
    }
    const std::size_t at = line_begin(text, neighbour->header.begin);
    return {{at, at}, empty_group(name, deck.text(neighbour->header), line_end_near(text, at))};
}

/// What goes with a removed group: its whole lines when nothing but blanks follows it, otherwise
/// the group alone.
Span span_to_remove(std::string_view text, const Group& group) noexcept {
    const std::size_t end = line_end(text, group.terminator.end);
    const std::string_view tail = text.substr(group.terminator.end, end - group.terminator.end);
    const bool ended_by_header = group.terminator.empty() && end != text.size();
    if (!ended_by_header && !detail::is_blank_text(tail))
        return {group.header.begin, group.terminator.end};
    const std::size_t begin = line_begin(text, group.header.begin);
    return {begin, ended_by_header ? group.body.end : next_line(text, end)};
}

/// The group that `text` consists of, from its `$` to its end, with the line ends of `line_end`.
std::string whole_group(const std::string& name, std::string_view text, std::string_view line_end) {
    const Deck deck{' ' + std::string{detail::trim_view(text)}};
    const auto groups = deck.sections();
    if (groups.size() != 1 || groups[0].name != name || groups[0].header.begin != 1 ||
        groups[0].terminator.empty() || groups[0].terminator.end != deck.text().size())
        throw_unreadable(name);
    std::string group;
    for (std::size_t at = groups[0].header.begin; at < deck.text().size();) {
        const std::size_t end = source::line_end(deck.text(), at);
        group += deck.text({at, end});
        if (end < deck.text().size()) group += line_end;
        at = next_line(deck.text(), end);
    }
    return group;
}

}  // namespace

void Deck::ensure_section(std::string_view name) {
    const std::string asked = asked_section(name);
    // Not by the queries, which would take one more `$` off the name.
    const auto is_asked = [&asked](const Group& group) {
        return is_visible(group) && group.name == asked;
    };
    if (asked.empty() || asked == "DATA" || std::ranges::any_of(groups_, is_asked)) return;
    const Edit edit = new_group(*this, asked);
    require_closed(*this, edit.span.begin);
    Deck next{edited_text(text_, {&edit, 1})};
    if (next.groups_.size() != groups_.size() + 1 ||
        std::ranges::count_if(next.groups_, is_asked) != 1)
        throw_unreadable(asked);
    *this = std::move(next);
}

bool Deck::remove_section(std::string_view name) {
    const std::string asked = asked_section(name);
    std::vector<Edit> edits;
    for (const Group& group : groups_)
        if (is_visible(group) && group.name == asked)
            edits.push_back({span_to_remove(text_, group), {}});
    apply(edits);
    return !edits.empty();
}

void Deck::replace_section(std::string_view name, std::size_t occurrence, std::string_view text) {
    const std::string asked = asked_section(name);
    const auto hit = std::ranges::find_if(groups_, [&](const Group& group) {
        return is_visible(group) && group.name == asked && group.occurrence == occurrence;
    });
    if (hit == groups_.end()) throw std::runtime_error("No such section: " + asked);
    const std::string_view line_end = line_end_near(text_, hit->header.begin);
    Edit edit{{hit->header.begin, hit->terminator.end}, whole_group(asked, text, line_end)};
    const bool ended_by_header = hit->terminator.empty() && hit->terminator.end < text_.size();
    if (ended_by_header) edit.text += line_end;
    Deck next{edited_text(text_, {&edit, 1})};
    if (next.groups_.size() != groups_.size()) throw_unreadable(asked);
    *this = std::move(next);
}

void Deck::apply(std::span<const Edit> edits) {
    if (!edits.empty()) *this = Deck{edited_text(text_, edits)};
}

}  // namespace nurl::input::gamess::source
