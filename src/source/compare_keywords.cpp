// A keyword that stands once in each deck, or whose copies set nothing but its first element, is
// shown as it is written. The pieces of an array can be cut differently in the two decks, so there
// the range of elements that differ is shown instead.
#include "source/compare_keywords.hpp"

#include <algorithm>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>

#include "nurl/input/gamess/schema.hpp"
#include "source/compare_keyword_table.hpp"
#include "source/compare_sequence.hpp"
#include "source/compare_words.hpp"
#include "source/keyword_lookup.hpp"

namespace nurl::input::gamess::source {

namespace {

/// A value as it is shown, and where it stands.
struct Shown {
    std::string text;
    std::optional<Position> position;
};

/// The elements from the first to the last that differ.
struct Part {
    std::size_t first = 1;
    Shown a;
    Shown b;
};

/// One element of an array in both decks; null where a deck does not set it.
struct ElementPair {
    const ArrayElement* a = nullptr;
    const ArrayElement* b = nullptr;
};

std::vector<ElementPair> paired(const std::vector<ArrayElement>& a,
                                const std::vector<ArrayElement>& b) {
    const auto index_at = [](const std::vector<ArrayElement>& elements, std::size_t place) {
        return place < elements.size() ? elements[place].index : std::string_view::npos;
    };
    std::vector<ElementPair> pairs;
    for (std::size_t i = 0, j = 0; i < a.size() || j < b.size();) {
        const std::size_t index_a = index_at(a, i);
        const std::size_t index_b = index_at(b, j);
        ElementPair pair;
        if (index_a <= index_b) pair.a = &a[i++];
        if (index_b <= index_a) pair.b = &b[j++];
        pairs.push_back(pair);
    }
    return pairs;
}

bool is_same(const ElementPair& pair, WordRule rule) {
    if (pair.a == nullptr || pair.b == nullptr) return false;
    return same_words({pair.a->word}, {pair.b->word}, rule);
}

bool is_scalar(const MergedKeyword& keyword) noexcept {
    return keyword.elements.empty() ||
           (keyword.elements.size() == 1 && keyword.elements.front().index == 1);
}

class KeywordComparison {
public:
    KeywordComparison(const Copies& a, const Copies& b, std::vector<Difference>& differences)
        : a_(a.deck),
          b_(b.deck),
          name_(a.groups.front().name),
          spec_(schema::find_section(name_)),
          merged_a_(merge_copies(a.deck, a.groups)),
          merged_b_(merge_copies(b.deck, b.groups)),
          differences_(differences) {}

    void run() {
        std::unordered_map<std::string_view, const MergedKeyword*> only_in_b;
        for (const MergedKeyword& keyword : merged_b_.keywords)
            only_in_b.emplace(keyword.name, &keyword);
        for (const MergedKeyword& keyword : merged_a_.keywords) {
            const auto other = only_in_b.find(keyword.name);
            compare(&keyword, other == only_in_b.end() ? nullptr : other->second);
            if (other != only_in_b.end()) only_in_b.erase(other);
        }
        for (const MergedKeyword& keyword : merged_b_.keywords)
            if (only_in_b.contains(keyword.name)) compare(nullptr, &keyword);
        compare_texts();
    }

private:
    /// Compares a keyword; null where a deck has none.
    void compare(const MergedKeyword* a, const MergedKeyword* b) {
        const std::string& name = a == nullptr ? b->name : a->name;
        const std::optional<Part> part = differing_part(a, b, rule_of(name));
        const bool same_presence = a != nullptr && b != nullptr && ends_empty(*a) == ends_empty(*b);
        if (!part && same_presence) return;
        if (part && !shows_whole(a, b)) {
            report(name + '(' + std::to_string(part->first) + ')', part->a, part->b);
        } else {
            const Item& shown = (a == nullptr ? b : a)->pieces.back();
            report(shown.key, last_piece(a_, a), last_piece(b_, b));
        }
    }

    /// Nothing when all elements are the same.
    static std::optional<Part> differing_part(const MergedKeyword* a, const MergedKeyword* b,
                                              WordRule rule) {
        static const std::vector<ArrayElement> none;
        const std::vector<ElementPair> pairs =
            paired(a == nullptr ? none : a->elements, b == nullptr ? none : b->elements);
        const auto differs = [rule](const ElementPair& pair) { return !is_same(pair, rule); };
        const auto first = std::ranges::find_if(pairs, differs);
        if (first == pairs.end()) return std::nullopt;
        const auto last = std::ranges::find_if(pairs.rbegin(), pairs.rend(), differs).base();
        Part part{(first->a == nullptr ? first->b : first->a)->index, {}, {}};
        for (auto pair = first; pair != last; ++pair) {
            append(a, pair->a, pair == first, part.a);
            append(b, pair->b, pair == first, part.b);
        }
        if (!part.a.position) part.a.text.clear();
        if (!part.b.position) part.b.text.clear();
        return part;
    }

    static void append(const MergedKeyword* keyword, const ArrayElement* element, bool is_first,
                       Shown& shown) {
        if (!is_first) shown.text += ',';
        if (element == nullptr) return;
        shown.text += element->word;
        if (!shown.position) shown.position = keyword->pieces[element->piece].position;
    }

    /// File names and the like may be read with their letter case.
    [[nodiscard]] WordRule rule_of(const std::string& key) const {
        if (spec_ == nullptr) return WordRule::ByValue;
        const auto entry = spec_->entries.find(schema::normalize_entry_name(key));
        const bool is_text = entry != spec_->entries.end() && entry->second.value_type == "text";
        return is_text ? WordRule::Exact : WordRule::ByValue;
    }

    static bool shows_whole(const MergedKeyword* a, const MergedKeyword* b) {
        if ((a == nullptr || is_scalar(*a)) && (b == nullptr || is_scalar(*b))) return true;
        if (a != nullptr && a->pieces.size() > 1) return false;
        if (b != nullptr && b->pieces.size() > 1) return false;
        return a == nullptr || b == nullptr ||
               asked_key(a->pieces.front().key) == asked_key(b->pieces.front().key);
    }

    static Shown last_piece(const Deck& deck, const MergedKeyword* keyword) {
        if (keyword == nullptr) return {};
        const Item& piece = keyword->pieces.back();
        return {deck.value_of(piece), piece.position};
    }

    void report(std::string key, const Shown& a, const Shown& b) {
        differences_.push_back({DifferenceKind::Keyword, shown_name(name_), 1, std::move(key),
                                a.text, b.text, a.position, b.position});
    }

    void compare_texts() {
        const std::vector<StrayText>& a = merged_a_.texts;
        const std::vector<StrayText>& b = merged_b_.texts;
        const auto same = [&a, &b](std::size_t i, std::size_t j) {
            return a[i].behind == b[j].behind &&
                   same_words(a[i].words, b[j].words, WordRule::ByValue);
        };
        for (const UnequalRow& row : unequal_rows(a.size(), b.size(), same)) {
            const Shown in_a = row.a ? shown_text(a[*row.a]) : Shown{};
            const Shown in_b = row.b ? shown_text(b[*row.b]) : Shown{};
            differences_.push_back({DifferenceKind::Line, shown_name(name_), 1, "", in_a.text,
                                    in_b.text, in_a.position, in_b.position});
        }
    }

    static Shown shown_text(const StrayText& text) { return {joined(text.words), text.position}; }

    const Deck& a_;
    const Deck& b_;
    std::string name_;
    const schema::SectionSpec* spec_;  // null for a group that the schema does not know
    MergedGroup merged_a_;
    MergedGroup merged_b_;
    std::vector<Difference>& differences_;
};

}  // namespace

void compare_keywords(const Copies& a, const Copies& b, std::vector<Difference>& differences) {
    KeywordComparison(a, b, differences).run();
}

}  // namespace nurl::input::gamess::source
