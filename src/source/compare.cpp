#include "nurl/input/gamess/source/compare.hpp"

#include <algorithm>
#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <unordered_map>
#include <utility>

#include "nurl/core/text.hpp"
#include "source/compare_cards.hpp"
#include "source/compare_keywords.hpp"
#include "source/compare_words.hpp"

namespace nurl::input::gamess::source {

namespace {

using Groups = std::vector<Group>;

/// A line that begins or ends a group, as far as it counts.
struct Mark {
    std::string text;
    std::optional<Position> position;
};

/// The groups that GAMESS sees in a deck.
class VisibleGroups {
public:
    explicit VisibleGroups(const Deck& deck) : deck_(deck), rules_(data_rules(deck)) {
        for (const Group& group : deck.sections()) {
            if (!group.visible) continue;
            const auto [place, is_new] = copies_.try_emplace(group.name);
            if (is_new) names_.push_back(group.name);
            place->second.push_back(group);
            begins_.push_back(group.header);
        }
    }

    [[nodiscard]] const Deck& deck() const noexcept { return deck_; }

    [[nodiscard]] const DataRules& rules() const noexcept { return rules_; }

    /// The names in the order of the text, each once.
    [[nodiscard]] const std::vector<std::string>& names() const noexcept { return names_; }

    /// All copies of a group; empty when there is none.
    [[nodiscard]] const Groups& copies(const std::string& name) const {
        static const Groups none;
        const auto hit = copies_.find(name);
        return hit == copies_.end() ? none : hit->second;
    }

    [[nodiscard]] Mark header(Span span) const {
        return {std::string{deck_.text(span)}, deck_.location(span.begin)};
    }

    /// The `$END` of a group, or the header that ends it; an empty text when the deck ends. The
    /// letter case counts where columns do.
    [[nodiscard]] Mark end(const Group& group) const {
        Span span = group.terminator;
        if (span.empty()) {
            const auto next =
                std::ranges::upper_bound(begins_, group.header.begin, {}, &Span::begin);
            if (next == begins_.end()) return {};
            span = *next;
        }
        Mark mark = header(span);
        if (group.kind != GroupKind::FixedColumns) mark.text = core::text::to_upper_copy(mark.text);
        return mark;
    }

private:
    const Deck& deck_;
    DataRules rules_;
    std::vector<std::string> names_;
    std::unordered_map<std::string, Groups> copies_;
    std::vector<Span> begins_;  // the headers
};

/// The ends of the copies that no `$END` closes, and of the last copy that one does.
struct OpenEnds {
    std::vector<Mark> open;
    Mark closed;
};

OpenEnds open_ends(const VisibleGroups& deck, const Groups& copies) {
    OpenEnds ends;
    for (const Group& copy : copies) {
        if (copy.terminator.empty())
            ends.open.push_back(deck.end(copy));
        else
            ends.closed = deck.end(copy);
    }
    return ends;
}

class DeckComparison {
public:
    DeckComparison(const Deck& a, const Deck& b) : a_(a), b_(b) {}

    std::vector<Difference> run() {
        for (const std::string& name : a_.names()) compare(a_.copies(name), b_.copies(name));
        for (const std::string& name : b_.names())
            if (a_.copies(name).empty()) compare({}, b_.copies(name));
        return std::move(differences_);
    }

private:
    void compare(Groups a, Groups b) {
        read_alike(a, b);
        const bool has_keywords = (a.empty() ? b : a).front().kind == GroupKind::Keywords;
        if (has_keywords && !a.empty() && !b.empty()) {
            compare_keywords({a_.deck(), a}, {b_.deck(), b}, differences_);
            compare_open_ends(a, b);
            return;
        }
        if (has_keywords) {  // all copies together are the group
            a.resize(std::min<std::size_t>(a.size(), 1));
            b.resize(std::min<std::size_t>(b.size(), 1));
        }
        const std::size_t common = std::min(a.size(), b.size());
        for (std::size_t i = 0; i < common; ++i) compare_copy(a[i], b[i]);
        report_missing(std::span<const Group>{a}.subspan(common),
                       std::span<const Group>{b}.subspan(common));
    }

    /// Reports copies that the other deck does not have.
    void report_missing(std::span<const Group> a, std::span<const Group> b) {
        for (const Group& copy : a) report(DifferenceKind::Group, copy, a_.header(copy.header), {});
        for (const Group& copy : b) report(DifferenceKind::Group, copy, {}, b_.header(copy.header));
    }

    /// A group that one of the decks names as one of cards is compared as such.
    static void read_alike(Groups& a, Groups& b) {
        if (a.empty() || b.empty() || a.front().kind == b.front().kind) return;
        for (Group& group : a) group.kind = GroupKind::FreeFormat;
        for (Group& group : b) group.kind = GroupKind::FreeFormat;
    }

    /// Compares a copy of a group without keywords.
    void compare_copy(const Group& a, const Group& b) {
        // GAMESS finds a group of fixed columns in capital letters only.
        if (a.kind == GroupKind::FixedColumns)
            report_line(a, a_.header(a.header), b_.header(b.header));
        compare_cards({a_.deck(), a, a_.rules()}, {b_.deck(), b, b_.rules()}, differences_);
        report_line(a, a_.end(a), b_.end(b));
    }

    /// A keyword group that is not closed goes on where another one begins.
    void compare_open_ends(const Groups& a, const Groups& b) {
        const OpenEnds in_a = open_ends(a_, a);
        const OpenEnds in_b = open_ends(b_, b);
        const std::size_t count = std::max(in_a.open.size(), in_b.open.size());
        for (std::size_t i = 0; i < count; ++i)
            report_line(a.front(), i < in_a.open.size() ? in_a.open[i] : in_a.closed,
                        i < in_b.open.size() ? in_b.open[i] : in_b.closed);
    }

    void report_line(const Group& group, const Mark& a, const Mark& b) {
        if (a.text != b.text) report(DifferenceKind::Line, group, a, b);
    }

    void report(DifferenceKind kind, const Group& group, const Mark& a, const Mark& b) {
        differences_.push_back({kind, shown_name(group.name), group.occurrence, "", a.text, b.text,
                                a.position, b.position});
    }

    VisibleGroups a_;
    VisibleGroups b_;
    std::vector<Difference> differences_;
};

}  // namespace

std::vector<Difference> compare(const Deck& a, const Deck& b) { return DeckComparison(a, b).run(); }

}  // namespace nurl::input::gamess::source
