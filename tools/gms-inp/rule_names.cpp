#include "rule_names.hpp"

#include <algorithm>
#include <cstddef>
#include <numeric>
#include <stdexcept>
#include <vector>

#include "ascii.hpp"

namespace gms_inp {

namespace source = nurl::input::gamess::source;

namespace {

/// Longer words are no names, and comparing them is dear.
constexpr std::size_t max_length = 64;

std::size_t distance(std::string_view a, std::string_view b) {
    std::vector<std::size_t> row(b.size() + 1);
    std::iota(row.begin(), row.end(), std::size_t{0});
    for (const char letter : a) {
        std::size_t diagonal = row[0]++;
        for (std::size_t j = 0; j < b.size(); ++j) {
            const std::size_t same = to_upper(letter) == to_upper(b[j]) ? 0 : 1;
            const std::size_t best = std::min({diagonal + same, row[j] + 1, row[j + 1] + 1});
            diagonal = row[j + 1];
            row[j + 1] = best;
        }
    }
    return row.back();
}

}  // namespace

std::string_view nearest(std::string_view word, std::span<const std::string_view> candidates) {
    if (word.size() > max_length) return {};
    std::string_view best;
    std::size_t limit = word.size() / 3 + 1;
    for (const std::string_view candidate : candidates) {
        const std::size_t changes = distance(word, candidate);
        if (changes >= limit) continue;
        limit = changes;
        best = candidate;
    }
    return best;
}

const source::Rule& rule_named(std::string_view name) {
    const std::string_view word = trim(name);
    if (const source::Rule* const rule = source::find_rule(word)) return *rule;
    std::vector<std::string_view> names;
    for (const source::Rule& rule : source::rules()) names.push_back(rule.name);
    std::string message = "there is no rule '" + std::string{word} + "'";
    const std::string_view hint = nearest(word, names);
    message += hint.empty() ? "; 'gms-inp explain' lists them"
                            : "; did you mean '" + std::string{hint} + "'?";
    throw std::runtime_error(message);
}

}  // namespace gms_inp
