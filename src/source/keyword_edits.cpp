#include <algorithm>
#include <optional>
#include <stdexcept>
#include <utility>

#include "model/text_view.hpp"
#include "nurl/input/gamess/source/deck.hpp"
#include "nurl/input/gamess/source/wrap.hpp"
#include "source/edit_list.hpp"
#include "source/group_kinds.hpp"
#include "source/keyword_addition.hpp"
#include "source/keyword_items.hpp"
#include "source/keyword_lookup.hpp"
#include "source/keyword_removal.hpp"
#include "source/line_ends.hpp"
#include "source/value_edit.hpp"
#include "source/value_text.hpp"

namespace nurl::input::gamess::source {

namespace {

/// The one keyword that a text consists of; nothing when there is more or less in it.
std::optional<Item> read_single(std::string_view text) {
    Group group;
    group.body = {0, text.size()};
    std::vector<Item> items = keyword_items(text, group);
    if (items.size() != 1 || items.front().kind != ItemKind::Keyword) return std::nullopt;
    if (items.front().span != group.body || items.front().words.empty()) return std::nullopt;
    return std::move(items.front());
}

/// Makes sure that a keyword with its value can stand in a deck.
void check_readable(const std::string& key, std::string_view value) {
    const auto plain = read_single(key + "=1");
    if (!plain || plain->key != key)
        throw std::runtime_error("Keyword cannot be read back: " + key);
    const std::string assignment = key + '=' + std::string{value};
    const auto item = read_single(assignment);
    const bool is_plain = value.find_first_of("\r\n$!") == std::string_view::npos;
    if (!is_plain || !item || value_text(assignment, *item) != value)
        throw std::runtime_error("Value cannot be read back: " + std::string{value});
}

/// The last visible group of a name; null when there is none.
const Group* last_copy(const Deck& deck, std::string_view section) noexcept {
    const Group* last = nullptr;
    for (const Group& group : deck.sections())
        if (group.visible && group.name == section) last = &group;
    return last;
}

void check_has_keywords(const Deck& deck, const std::string& section) {
    const Group* const copy = last_copy(deck, section);
    const GroupKind kind = copy == nullptr ? kind_of_group(section) : copy->kind;
    if (kind != GroupKind::Keywords)
        throw std::runtime_error('$' + section + " does not support key=value editing");
}

/// The length in bytes of the longest line that a span touches, up to the end of its group.
std::size_t longest_line(std::string_view text, Span span, std::size_t group_end) noexcept {
    std::size_t longest = 0;
    std::size_t at = line_begin(text, span.begin);
    do {
        longest = std::max(longest, std::min(line_end(text, at), group_end) - at);
        at = next_line(text, at);
    } while (at < span.end);
    return longest;
}

/// A deck with edits of one group applied, and with the lines folded that the edits alone made too
/// long.
Deck edited(const Deck& deck, const Group& group, const std::vector<Edit>& edits) {
    Deck next{edited_text(deck.text(), edits)};
    Span touched{edits.front().span.begin, edits.back().span.end};
    std::size_t group_end = group.terminator.end;
    if (longest_line(deck.text(), touched, group_end) > line_width) return next;
    for (std::size_t* const offset : {&touched.end, &group_end})
        *offset = *offset + next.text().size() - deck.text().size();
    if (longest_line(next.text(), touched, group_end) <= line_width) return next;
    const std::size_t begin = line_begin(next.text(), touched.begin);
    const std::size_t end = line_end(next.text(), touched.end);
    std::vector<Edit> folds = wrap(next);
    std::erase_if(folds, [begin, end](const Edit& edit) {
        return edit.span.begin < begin || edit.span.end > end;
    });
    next.apply(folds);
    return next;
}

/// Whether all keywords of a group but one, by `asked_key`, read the same in two decks.
bool others_are_same(const Deck& a, const Deck& b, const std::string& section,
                     const std::string& key) {
    const auto others_in = [&](const Deck& deck) {
        std::vector<KeyValue> entries = deck.list_keywords(section);
        std::erase_if(entries, [&](const KeyValue& entry) { return asked_key(entry.key) == key; });
        entries.shrink_to_fit();  // there are two such lists at a time
        return entries;
    };
    return std::ranges::equal(others_in(a), others_in(b), [](const KeyValue& x, const KeyValue& y) {
        return x.key == y.key && (x.value == y.value || same_value(x.value, y.value));
    });
}

Deck with_new_keyword(Deck deck, const std::string& section, const std::string& key,
                      std::string_view value) {
    deck.ensure_section('$' + section);  // of which it takes the `$`, not one of the name
    const Group group = *last_copy(deck, section);
    if (group.terminator.empty())
        throw std::runtime_error("Section is not closed by $END: " + section);
    return edited(deck, group, {addition(deck, group, key, value)});
}

}  // namespace

void Deck::set_keyword(std::string_view section, std::string_view key, std::string_view value) {
    const std::string name = asked_section(section);
    const std::string keyword = asked_key(key);
    const std::string_view trimmed = detail::trim_view(value);
    if (name.empty() || keyword.empty())
        throw std::runtime_error("Section name and keyword must be non-empty");
    check_has_keywords(*this, name);
    check_readable(keyword, trimmed);
    const auto found = find_last(*this, name, keyword);
    const std::vector<Edit> edits =
        found ? value_edits(*this, found->item, trimmed) : std::vector<Edit>{};
    if (found && edits.empty()) return;
    Deck next = found ? edited(*this, found->group, edits)
                      : with_new_keyword(*this, name, written_key(key), trimmed);
    const auto read_back = next.get_keyword(name, keyword);
    if (!read_back || !same_value(*read_back, trimmed) ||
        !others_are_same(*this, next, name, keyword))
        throw std::runtime_error("Value cannot be read back: " + std::string{trimmed});
    *this = std::move(next);
}

bool Deck::add_keyword(std::string_view section, std::string_view key, std::string_view value,
                       bool replace) {
    if (!replace && get_keyword(section, key)) return false;
    set_keyword(section, key, value);
    return true;
}

bool Deck::remove_keyword(std::string_view section, std::string_view key) {
    const std::string name = asked_section(section);
    const std::string keyword = asked_key(key);
    std::vector<Edit> edits;
    for (const Group& group : groups_) {
        if (!group.visible || group.kind != GroupKind::Keywords || group.name != name) continue;
        add_removals(*this, group, keyword, edits);
    }
    // Of two neighbours both may claim the blanks between them.
    for (std::size_t i = 1; i < edits.size(); ++i)
        edits[i].span.begin = std::max(edits[i].span.begin, edits[i - 1].span.end);
    if (edits.empty()) return false;
    Deck next{edited_text(text_, edits)};
    if (!others_are_same(*this, next, name, keyword))
        throw std::runtime_error("Keyword cannot be removed by itself: " + keyword);
    *this = std::move(next);
    return true;
}

}  // namespace nurl::input::gamess::source
