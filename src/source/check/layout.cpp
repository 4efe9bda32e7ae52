#include "source/check/layout.hpp"

#include <algorithm>
#include <string>
#include <utility>

#include "model/text_view.hpp"
#include "nurl/core/text.hpp"
#include "source/check/line_room.hpp"
#include "source/line_ends.hpp"

namespace nurl::input::gamess::source::checks {

namespace {

constexpr std::string_view end_marker = "$END";

bool is_known(const Group& group) {
    return group.kind != GroupKind::Keywords || schema::find_section(group.name) != nullptr;
}

/// Whether nothing but blanks of one line stands in a span.
bool is_gap(std::string_view text, Span span) noexcept {
    return std::ranges::all_of(text.substr(span.begin, span.size()), is_padding);
}

/// Whether a group begins on the line on which the one before it ended.
bool follows_on_line(const Deck& deck, const Group& before, const Group& group) noexcept {
    return !before.terminator.empty() &&
           is_gap(deck.text(), {before.terminator.end, group.header.begin});
}

/// Prose between groups can begin with a `$` too, but it is not closed.
bool is_prose(const Deck& deck, const Group& group) noexcept {
    if (!group.terminator.empty()) return false;
    const std::size_t end = std::min(line_end(deck.text(), group.header.end), group.body.end);
    const std::string_view rest = deck.text({group.header.end, end});
    return !detail::is_blank_text(rest) && rest.find('=') == std::string_view::npos;
}

/// Moves the `$` to column 2, unless that pushes text out of the columns that GAMESS reads.
std::vector<Edit> move_to_column_two(const Deck& deck, const Group& group) {
    const Span before{line_begin(deck.text(), group.header.begin), group.header.begin};
    const Span line{before.end, line_end(deck.text(), before.end)};
    if (before.empty() && !fits(deck, line, 1)) return {};
    return {{before, " "}};
}

/// Where a `$END` stands that a comment hides; nothing for a group that is closed.
std::optional<std::size_t> hidden_end(const Deck& deck, const Group& group) noexcept {
    if (!group.visible || !group.terminator.empty()) return std::nullopt;
    const std::string_view body = deck.text(group.body);
    for (std::size_t at = body.find('$'); at != std::string_view::npos; at = body.find('$', at + 1))
        if (detail::starts_with_ignoring_case(body.substr(at), end_marker))
            return group.body.begin + at;
    return std::nullopt;
}

/// Whether a keyword or a stray word of a group begins behind a place.
bool goes_on_behind(const KeywordGroup& group, std::size_t place) noexcept {
    return std::ranges::any_of(group.items, [place](const Item& item) {
        const bool counts = item.kind == ItemKind::Keyword || item.kind == ItemKind::Text;
        return counts && item.span.end > place;
    });
}

/// Closes the comment in front of a hidden `$END` that is the last thing in its group.
std::vector<Edit> close_comment(const Context& context, const Group& group, std::size_t end) {
    const KeywordGroup* const keywords = context.keywords_of(group);
    if (keywords == nullptr || goes_on_behind(*keywords, end)) return {};
    if (!fits(context.deck(), line_around(context.deck(), end), 2)) return {};
    return {{{end, end}, "! "}};
}

/// Whether no word of a group may be text that follows a forgotten `$END`.
bool is_certain(const KeywordGroup& group) noexcept {
    if (group.spec == nullptr) return false;
    for (std::size_t i = 0; i < group.items.size(); ++i) {
        const Item& item = group.items[i];
        const schema::EntrySpec* const entry = group.entries[i];
        if (item.kind == ItemKind::Text) return false;
        if (item.kind != ItemKind::Keyword) continue;
        if (entry == nullptr || (item.words.size() > 1 && !entry->indexed)) return false;
    }
    return true;
}

/// Puts a `$END` behind the last keyword, where nothing else can be meant.
std::vector<Edit> add_end(const Context& context, const Group& group) {
    const KeywordGroup* const keywords = context.keywords_of(group);
    if (keywords == nullptr || !is_certain(*keywords)) return {};
    std::size_t place = group.header.end;
    for (const Item& item : keywords->items)
        if (item.kind == ItemKind::Keyword) place = item.span.end;
    const Deck& deck = context.deck();
    const Span line{line_begin(deck.text(), place), place};
    std::string end = " " + std::string{end_marker};
    if (!fits(deck, line, end.size())) end.insert(0, context.line_end());
    return {{{place, place}, std::move(end)}};
}

/// "before the header in line 4" or "before the end of the text".
std::string where_open_group_ends(const Deck& deck, const Group& group) {
    const auto groups = deck.sections();
    const auto next = std::ranges::upper_bound(
        groups, group.header.begin, {}, [](const Group& other) { return other.header.begin; });
    if (next == groups.end()) return "before the end of the text";
    return "before $" + next->name + " in line " + std::to_string(next->line);
}

std::string not_closed(const Deck& deck, const Group& group) {
    return "$" + group.name + " is not closed by $END " + where_open_group_ends(deck, group);
}

/// Whether a group must be in capital letters.
bool is_formatted(std::string_view name) noexcept {
    constexpr auto formatted =
        std::to_array<std::string_view>({"VEC", "HESS", "GRAD", "DIPDR", "VIB"});
    while (!name.empty() && name.back() >= '0' && name.back() <= '9') name.remove_suffix(1);
    return std::ranges::find(formatted, name) != formatted.end();
}

void check_capitals(const Deck& deck, Span span, const std::string& name, Findings& findings) {
    const std::string_view written = deck.text(span);
    std::string capitals = core::text::to_upper_copy(written);
    if (written == capitals) return;
    findings.add(span,
                 "'" + std::string{written} + "' must be in capital letters, $" + name +
                     " is a formatted group",
                 {}, {{span, std::move(capitals)}});
}

}  // namespace

void find_header_column(const Context& context, Findings& findings) {
    const Deck& deck = context.deck();
    for (const Group& group : deck.sections()) {
        if (group.visible || !is_first_on_line(deck, group.header.begin)) continue;
        if (!is_known(group) || is_prose(deck, group)) continue;
        findings.add(group.header,
                     "GAMESS does not find $" + group.name +
                         ": its $ must stand in column 2, behind one space",
                     {}, move_to_column_two(deck, group));
    }
}

void find_second_group(const Context& context, Findings& findings) {
    const Deck& deck = context.deck();
    const Group* before = nullptr;
    for (const Group& group : deck.sections()) {
        const Group* const previous = std::exchange(before, &group);
        if (previous == nullptr || !follows_on_line(deck, *previous, group)) continue;
        const Span gap{previous->terminator.end, group.header.begin};
        findings.add(group.header,
                     "GAMESS does not find $" + group.name + " behind the $END of $" +
                         previous->name + " on the same line",
                     {}, {{gap, std::string{context.line_end()} + " "}});
    }
}

void find_missing_end(const Context& context, Findings& findings) {
    for (const Group& group : context.deck().sections()) {
        if (!group.visible || !group.terminator.empty()) continue;
        if (group.kind == GroupKind::FixedColumns || hidden_end(context.deck(), group)) continue;
        findings.add(group.header, not_closed(context.deck(), group), {}, add_end(context, group));
    }
}

void find_open_punched_group(const Context& context, Findings& findings) {
    for (const Group& group : context.deck().sections())
        if (group.visible && group.terminator.empty() && group.kind == GroupKind::FixedColumns)
            findings.add(group.header, not_closed(context.deck(), group));
}

void find_hidden_end(const Context& context, Findings& findings) {
    for (const Group& group : context.deck().sections()) {
        const auto end = hidden_end(context.deck(), group);
        if (!end) continue;
        findings.add({*end, *end + end_marker.size()},
                     "$" + group.name + " goes on, its $END stands behind a ! and does not count",
                     {}, close_comment(context, group, *end));
    }
}

void find_lower_case_group(const Context& context, Findings& findings) {
    for (const Group& group : context.deck().sections())
        if (group.visible && is_formatted(group.name))
            check_capitals(context.deck(), group.header, group.name, findings);
}

void find_lower_case_end(const Context& context, Findings& findings) {
    for (const Group& group : context.deck().sections())
        if (group.visible && is_formatted(group.name))
            check_capitals(context.deck(), group.terminator, group.name, findings);
}

}  // namespace nurl::input::gamess::source::checks
