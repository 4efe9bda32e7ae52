#include "fixes.hpp"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <map>
#include <utility>

namespace gms_inp {

namespace source = nurl::input::gamess::source;

namespace {

constexpr int max_rounds = 8;

/// Edits by the place they begin at.
using EditMap = std::map<std::size_t, source::Edit>;

bool fits(const EditMap& taken, const source::Edit& edit) {
    const auto next = taken.lower_bound(edit.span.begin);
    if (next != taken.end() && (next->first == edit.span.begin || next->first < edit.span.end))
        return false;
    return next == taken.begin() || std::prev(next)->second.span.end <= edit.span.begin;
}

/// Moves findings whose fixes get in nobody's way to `fixed`. @return their edits
EditMap take_fixes(std::vector<source::Finding>& findings, std::vector<source::Finding>& fixed) {
    EditMap taken;
    for (source::Finding& finding : findings) {
        const auto has_place = [&taken](const source::Edit& edit) { return fits(taken, edit); };
        if (finding.fix.empty() || !std::ranges::all_of(finding.fix, has_place)) continue;
        for (const source::Edit& edit : finding.fix) taken.emplace(edit.span.begin, edit);
        fixed.push_back(std::move(finding));
    }
    return taken;
}

}  // namespace

FixedDeck fix_deck(const source::Deck& deck, const source::CheckOptions& options) {
    FixedDeck result{.deck = deck, .fixed = {}, .remains = source::check(deck, options)};
    for (int round = 0; round < max_rounds; ++round) {
        std::vector<source::Edit> edits;
        for (auto& [begin, edit] : take_fixes(result.remains, result.fixed))
            edits.push_back(std::move(edit));
        if (edits.empty()) break;
        result.deck.apply(edits);
        result.remains = source::check(result.deck, options);
    }
    return result;
}

}  // namespace gms_inp
