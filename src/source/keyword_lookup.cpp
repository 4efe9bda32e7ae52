#include "source/keyword_lookup.hpp"

#include <algorithm>
#include <utility>

#include "model/text_view.hpp"
#include "nurl/core/text.hpp"
#include "source/keyword_items.hpp"
#include "source/line_ends.hpp"

namespace nurl::input::gamess::source {

namespace {

std::string_view without_first_index(std::string_view key) noexcept {
    constexpr std::string_view first = "(1)";
    if (key.ends_with(first)) key.remove_suffix(first.size());
    return key;
}

}  // namespace

std::string asked_section(std::string_view name) {
    return core::text::to_upper_copy(detail::without_dollar(detail::trim_view(name)));
}

std::string written_key(std::string_view key) {
    std::string written = core::text::to_upper_copy(detail::trim_view(key));
    const auto index = std::ranges::find(written, '(');
    written.erase(std::remove_if(index, written.end(), is_padding), written.end());
    return written;
}

std::string asked_key(std::string_view key) {
    std::string asked = written_key(key);
    asked.resize(without_first_index(asked).size());
    return asked;
}

bool is_key(const Item& item, std::string_view asked) noexcept {
    return item.kind == ItemKind::Keyword && without_first_index(item.key) == asked;
}

std::optional<FoundKeyword> find_last(const Deck& deck, std::string_view section,
                                      std::string_view key) {
    std::optional<FoundKeyword> found;
    for (const Group& group : deck.sections()) {
        if (!group.visible || group.kind != GroupKind::Keywords || group.name != section) continue;
        std::optional<Item> last;
        for_each_keyword_item(deck.text(), group, [&](Item item) {
            if (is_key(item, key)) last = std::move(item);
        });
        if (last) found = {group, *std::move(last)};
    }
    return found;
}

}  // namespace nurl::input::gamess::source
