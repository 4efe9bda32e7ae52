#include "source/check/values.hpp"

#include <algorithm>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

#include "model/text_view.hpp"
#include "schema/table.hpp"
#include "source/check/near_name.hpp"
#include "source/check/quote.hpp"
#include "source/word_value.hpp"

namespace nurl::input::gamess::source::checks {

namespace {

using detail::equal_ignoring_case;

/// A type of the schema whose words can be told from others.
struct ValueType {
    std::string_view name;   ///< as the schema has it
    std::string_view shown;  ///< as messages have it
    bool is_number = false;
    bool (*reads)(std::string_view word) = nullptr;
};

constexpr auto value_types = std::to_array<ValueType>({
    {"int", "an integer", true, [](std::string_view word) { return integer_of(word).has_value(); }},
    {"real", "a number", true, [](std::string_view word) { return real_of(word).has_value(); }},
    {"logical", "a logical value", false,
     [](std::string_view word) { return logical_of(word).has_value(); }},
});

const ValueType* type_of(const KeywordUse& use) noexcept {
    if (use.entry == nullptr) return nullptr;
    const auto* const hit =
        std::ranges::find(value_types, std::string_view{use.entry->value_type}, &ValueType::name);
    return hit == value_types.end() ? nullptr : hit;
}

/// The word without a repeat count: `0.0` of `3*0.0`.
std::string_view without_count(std::string_view word) {
    const std::size_t star = word.find('*');
    if (star == std::string_view::npos || !integer_of(word.substr(0, star))) return word;
    return word.substr(star + 1);
}

/// Logical values that only one group knows.
bool is_word_of_group(const KeywordUse& use, std::string_view word) noexcept {
    return use.group->group->name == "REKS" &&
           (equal_ignoring_case(word, "YES") || equal_ignoring_case(word, "NO"));
}

bool is_readable(const KeywordUse& use, const ValueType& type, std::string_view word) {
    return type.reads(without_count(word)) || is_word_of_group(use, word);
}

/// Whether a word begins as a number does.
bool looks_like_number(std::string_view word) noexcept {
    if (word.starts_with('+') || word.starts_with('-')) word.remove_prefix(1);
    if (word.starts_with('.')) word.remove_prefix(1);
    return !word.empty() && word.front() >= '0' && word.front() <= '9';
}

/// Whether a word is two numbers with a `/` between them, as a coordinate of a test deck of GAMESS
/// is written. What GAMESS makes of it is not documented.
bool is_fraction(std::string_view word) {
    const std::size_t slash = word.find('/');
    return slash != std::string_view::npos && real_of(word.substr(0, slash)) &&
           real_of(word.substr(slash + 1));
}

/// Whether a word was meant to be a number and is none, whatever its keyword takes.
bool is_broken_number(std::string_view word) {
    return looks_like_number(word) && !real_of(without_count(word));
}

/// The words of a value that its keyword takes: the further ones of a single value are another
/// rule's.
std::span<const Span> taken_words(const KeywordUse& use) noexcept {
    const std::span<const Span> words = use.item->words;
    return use.entry->indexed ? words : words.first(std::min<std::size_t>(words.size(), 1));
}

std::string shown_keyword(const KeywordUse& use) {
    return shortened(use.item->key) + " of $" + use.group->group->name;
}

std::string logical_hint(const ValueType& type, std::string_view word) {
    if (type.name != "logical") return {};
    const auto is_one_of = [word](std::span<const std::string_view> words) {
        return std::ranges::any_of(
            words, [word](std::string_view other) { return equal_ignoring_case(word, other); });
    };
    constexpr auto on = std::to_array<std::string_view>(
        {"TRUE", "T", ".TRUE", "TRUE.", ".T", "T.", "YES", "ON", "1"});
    constexpr auto off = std::to_array<std::string_view>(
        {"FALSE", "F", ".FALSE", "FALSE.", ".F", "F.", "NO", "OFF", "0"});
    if (is_one_of(on)) return "did you mean .TRUE.?";
    return is_one_of(off) ? "did you mean .FALSE.?" : "";
}

/// Whether more than one word may follow a keyword. All of `$QUANPO` and `VIBSIZ` of `$FORCE` take
/// lists without an index.
bool takes_several(const KeywordUse& use) noexcept {
    return use.entry->indexed || use.entry->value_type == "text" ||
           use.group->group->name == "QUANPO" || use.item->key == "VIBSIZ";
}

/// Values that decks in use give to keywords beside those that the manual names.
bool is_taken_besides(const KeywordUse& use, std::string_view word) noexcept {
    return use.group->group->name == "CONTRL" && use.item->key == "UNITS" &&
           equal_ignoring_case(word, "ANGSTROM");
}

/// The words that a keyword takes, with what is near to them.
class KnownChoices {
public:
    explicit KnownChoices(std::vector<std::string_view> words)
        : words_(std::move(words)), near_({words_.begin(), words_.end()}) {}

    [[nodiscard]] bool empty() const noexcept { return words_.empty(); }

    [[nodiscard]] bool contains(std::string_view word) const {
        return std::ranges::any_of(
            words_, [word](std::string_view choice) { return same_word(choice, word); });
    }

    /// The nearest choices; without any, all choices when they are few.
    [[nodiscard]] std::string hint(std::string_view word) const {
        constexpr std::size_t few = 6;
        std::string question = near_.question(word);
        return question.empty() && words_.size() <= few ? listed() : question;
    }

private:
    [[nodiscard]] std::string listed() const {
        std::string text = "known values are ";
        for (const std::string_view word : words_) text += std::string{word} + ", ";
        text.resize(text.size() - 2);
        return text;
    }

    std::vector<std::string_view> words_;
    NearNames near_;
};

/// The choices of keywords, each gathered when first asked for.
class ChoiceTable {
public:
    const KnownChoices& of(const schema::EntrySpec* entry) {
        const auto hit = choices_.find(entry);
        if (hit != choices_.end()) return hit->second;
        return choices_.try_emplace(entry, schema::choices_of(entry)).first->second;
    }

private:
    std::unordered_map<const schema::EntrySpec*, KnownChoices> choices_;
};

void check_numbers(const Deck& deck, const KeywordUse& use, Findings& findings) {
    const ValueType* const type = type_of(use);
    if (type == nullptr || !type->is_number) return;
    for (const Span span : taken_words(use)) {
        const std::string_view word = deck.text(span);
        if (!is_broken_number(word)) continue;
        findings.add(span,
                     quoted(word) + " for " + shown_keyword(use) + " cannot be read as a number");
    }
}

void check_numbers(const Deck& deck, const Atom& atom, Findings& findings) {
    constexpr std::size_t behind_numbers = 5;  // a charge and three coordinates behind the name
    const std::vector<Span>& words = atom.card->words;
    for (std::size_t i = 1; i < std::min(words.size(), behind_numbers); ++i) {
        const std::string_view word = deck.text(words[i]);
        if (real_of(word) || is_fraction(word)) continue;
        findings.add(words[i], quoted(word) + " for atom " + quoted(atom.name) +
                                   " cannot be read as a number");
    }
}

}  // namespace

void find_value_type(const Context& context, Findings& findings) {
    const Deck& deck = context.deck();
    for_each_keyword(context, [&](const KeywordUse& use) {
        if (use.entry == nullptr) return;
        if (use.item->words.empty())
            findings.add(use.item->span, shown_keyword(use) + " has no value");
        const ValueType* const type = type_of(use);
        if (type == nullptr) return;
        for (const Span span : taken_words(use)) {
            const std::string_view word = deck.text(span);
            if (is_readable(use, *type, word)) continue;
            if (type->is_number && is_broken_number(word)) continue;
            findings.add(
                span,
                shown_keyword(use) + " takes " + std::string{type->shown} + ", not " + quoted(word),
                logical_hint(*type, word));
        }
    });
}

void find_unreadable_number(const Context& context, Findings& findings) {
    for_each_keyword(context,
                     [&](const KeywordUse& use) { check_numbers(context.deck(), use, findings); });
    if (context.style() != CoordinateStyle::Cartesian) return;
    for (const Atom& atom : context.atoms()) check_numbers(context.deck(), atom, findings);
}

void find_value_choice(const Context& context, Findings& findings) {
    ChoiceTable table;
    for_each_keyword(context, [&](const KeywordUse& use) {
        if (use.entry == nullptr) return;
        const KnownChoices& choices = table.of(use.entry);
        if (choices.empty()) return;
        const ValueType* const type = type_of(use);
        for (const Span span : taken_words(use)) {
            const std::string_view word = context.deck().text(span);
            if (type != nullptr && !is_readable(use, *type, word)) continue;
            if (choices.contains(word) || is_taken_besides(use, word)) continue;
            findings.add(span,
                         quoted(word) + " is not among the values known for " + shown_keyword(use),
                         choices.hint(word));
        }
    });
}

void find_extra_value(const Context& context, Findings& findings) {
    for_each_keyword(context, [&](const KeywordUse& use) {
        if (use.entry == nullptr || takes_several(use)) return;
        const std::vector<Span>& words = use.item->words;
        if (words.size() < 2) return;
        findings.add({words[1].begin, words.back().end},
                     shown_keyword(use) + " takes one value, " + std::to_string(words.size() - 1) +
                         (words.size() == 2 ? " more word follows" : " more words follow"));
    });
}

}  // namespace nurl::input::gamess::source::checks
