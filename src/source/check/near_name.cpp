// The distance counts single letters added, dropped or replaced, and two neighbours exchanged. A
// single change alters at most two of the letters that occur in a name, which rules most names out
// without a comparison.
#include "source/check/near_name.hpp"

#include <algorithm>
#include <array>
#include <bit>

#include "model/text_view.hpp"
#include "nurl/core/text.hpp"

namespace nurl::input::gamess::source::checks {

namespace {

constexpr std::size_t longest_name = 24;

std::uint64_t letters_of(std::string_view word) noexcept {
    std::uint64_t letters = 0;
    for (const char c : word) letters |= std::uint64_t{1} << (static_cast<unsigned char>(c) % 64U);
    return letters;
}

std::size_t changes_allowed(std::size_t length) noexcept {
    if (length < 2) return 0;
    return length < 5 ? 1 : 2;
}

std::size_t length_difference(std::string_view a, std::string_view b) noexcept {
    return a.size() < b.size() ? b.size() - a.size() : a.size() - b.size();
}

/// How many changes make `b` of `a`; neither is longer than `longest_name`.
std::size_t distance(std::string_view a, std::string_view b) {
    using Row = std::array<std::size_t, longest_name + 1>;
    Row before{};
    Row above{};
    Row row{};
    for (std::size_t j = 0; j <= b.size(); ++j) row.at(j) = j;
    for (std::size_t i = 1; i <= a.size(); ++i) {
        before = above;
        above = row;
        row[0] = i;
        for (std::size_t j = 1; j <= b.size(); ++j) {
            const bool same = a[i - 1] == b[j - 1];
            row.at(j) =
                std::min({above.at(j) + 1, row.at(j - 1) + 1, above.at(j - 1) + (same ? 0U : 1U)});
            if (i > 1 && j > 1 && a[i - 1] == b[j - 2] && a[i - 2] == b[j - 1])
                row.at(j) = std::min(row.at(j), before.at(j - 2) + 1);
        }
    }
    return row.at(b.size());
}

}  // namespace

NearNames::NearNames(const std::vector<std::string>& names) {
    for (const std::string& name : names) {
        if (name.size() > longest_name) continue;
        std::string text = core::text::to_upper_copy(name);
        const std::uint64_t letters = letters_of(text);
        names_.push_back({std::move(text), letters});
    }
    std::ranges::sort(names_, {}, &Name::text);
}

std::vector<std::string_view> NearNames::nearest(std::string_view word) const {
    std::vector<std::string_view> hits;
    if (word.size() > longest_name) return hits;
    const std::string asked = core::text::to_upper_copy(word);
    const std::uint64_t letters = letters_of(asked);
    std::size_t allowed = changes_allowed(asked.size());
    for (const Name& name : names_) {
        if (length_difference(name.text, asked) > allowed) continue;
        if (static_cast<std::size_t>(std::popcount(name.letters ^ letters)) > 2 * allowed) continue;
        const std::size_t changes = distance(asked, name.text);
        if (changes == 0 || changes > allowed) continue;
        if (changes < allowed) hits.clear();
        allowed = changes;
        hits.emplace_back(name.text);
    }
    if (hits.size() > 2) hits.resize(2);
    return hits;
}

std::string NearNames::question(std::string_view word) const {
    const std::vector<std::string_view> names = nearest(word);
    if (names.empty()) return {};
    std::string text = "did you mean " + std::string{names.front()};
    if (names.size() > 1) text += " or " + std::string{names.back()};
    return text + '?';
}

}  // namespace nurl::input::gamess::source::checks
