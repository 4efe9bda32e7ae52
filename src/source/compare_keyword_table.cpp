#include "source/compare_keyword_table.hpp"

#include <algorithm>
#include <optional>
#include <unordered_map>
#include <utility>

#include "model/text_view.hpp"
#include "source/compare_words.hpp"
#include "source/keyword_items.hpp"
#include "source/word_value.hpp"

namespace nurl::input::gamess::source {

namespace {

/// What a keyword names, and the element its value begins with.
struct Target {
    std::string_view name;
    std::size_t index = 1;
};

/// Nine digits, so that no element beyond the index overflows.
std::optional<std::size_t> index_of(std::string_view text) noexcept {
    constexpr std::size_t most_digits = 9;
    const bool has_sign = text.starts_with('-') || text.starts_with('+');
    if (has_sign || text.size() > most_digits) return std::nullopt;
    const auto value = integer_of(text);
    if (!value) return std::nullopt;
    return static_cast<std::size_t>(*value);
}

/// A keyword whose index is not one number is a name of its own.
Target target_of(std::string_view key) noexcept {
    const std::string_view name = detail::without_index(key);
    if (name.size() == key.size()) return {key, 1};
    const auto index = index_of(key.substr(name.size() + 1, key.size() - name.size() - 2));
    return index ? Target{name, *index} : Target{key, 1};
}

class Merger {
public:
    explicit Merger(const Deck& deck) noexcept : deck_(deck) {}

    MergedGroup run(std::span<const Group> copies) {
        for (const Group& copy : copies) add(copy);
        for (MergedKeyword& keyword : merged_.keywords) keep_last(keyword.elements);
        return std::move(merged_);
    }

private:
    void add(const Group& copy) {
        std::string behind;
        bool goes_on = false;  // the item before was text as well
        for_each_keyword_item(deck_.text(), copy, [&](Item item) {
            if (item.kind == ItemKind::Text) {
                if (!goes_on) merged_.texts.push_back({behind, {}, item.position});
                merged_.texts.back().words.push_back(deck_.text(item.span));
                goes_on = true;
            }
            if (item.kind != ItemKind::Keyword) return;
            goes_on = false;
            behind = item.key;
            add(std::move(item), copy.name == "QUANPO");
        });
    }

    void add(Item item, bool glues_lines) {
        const Target target = target_of(item.key);
        const auto [place, is_new] =
            places_.try_emplace(std::string{target.name}, merged_.keywords.size());
        if (is_new) merged_.keywords.push_back({place->first, {}, {}});
        MergedKeyword& keyword = merged_.keywords[place->second];
        std::size_t index = target.index;
        for (const std::string_view word : value_words(deck_.text(), item, glues_lines)) {
            if (!word.empty()) keyword.elements.push_back({index, word, keyword.pieces.size()});
            ++index;
        }
        keyword.pieces.push_back(std::move(item));
    }

    static void keep_last(std::vector<ArrayElement>& elements) {
        std::ranges::stable_sort(elements, {}, &ArrayElement::index);
        std::size_t kept = 0;
        for (std::size_t i = 0; i < elements.size(); ++i) {
            const bool is_last =
                i + 1 == elements.size() || elements[i + 1].index != elements[i].index;
            if (is_last) elements[kept++] = elements[i];
        }
        elements.resize(kept);
    }

    const Deck& deck_;
    MergedGroup merged_;
    std::unordered_map<std::string, std::size_t> places_;  // among the keywords, by name
};

}  // namespace

MergedGroup merge_copies(const Deck& deck, std::span<const Group> copies) {
    return Merger(deck).run(copies);
}

bool ends_empty(const MergedKeyword& keyword) noexcept {
    return keyword.pieces.back().words.empty();
}

}  // namespace nurl::input::gamess::source
