// What must hold for every finding in every text.
#include <algorithm>
#include <map>
#include <string>
#include <tuple>
#include <vector>

#include <doctest/doctest.h>
#include <rapidcheck.h>

#include "nurl/input/gamess/source/check.hpp"
#include "source_check/found.hpp"
#include "support/deck_generator.hpp"

namespace nurl::input::gamess::source {

namespace {

/// Pieces of decks in which much is wrong, one behind the other.
rc::Gen<std::string> faulty_text() {
    static const std::vector<std::string> pieces{
        " $SCF CONV=1 $END",
        "$SCF A=1 $END",
        " $CONTRL COORD=ZMT MULT=2 UNITS=BOHR $END\n",
        " $BASIS GBASIS=STO $END\n",
        " $GUESS GUESS=MOREAD $END\n",
        " $SCF CONV=1 ! x $END\n",
        " $SCF CONV=1 CONV=2\n",
        "\t$GUESS\n",
        " $DATA\n",
        " $DATA\nt\nC2v\n\nO 8.0 0 0 0\n",
        " $DATA\nt\nCNV 2\nO 8.0 0 0 0\nO 8.0 0 0 0\n",
        "t\nC1\n\n",
        "O 8.0 0.0 0.0 0.0\n",
        "H 1.0 0.0 x 0.0\nS 1\n1 0.5 1.0\n",
        "\n",
        "\r\n",
        " $vec\n 1  1\n",
        " $FMO NFRAG=1 $END\n",
        " $end\n",
        "$END ",
        " $END\n",
        "!",
        " words = , ",
        std::string(77, ' '),
        " DIRSCF=1 SOSCF=.T.,",
        "\xEF\xBB\xBF",
    };
    return rc::gen::map(rc::gen::container<std::vector<std::string>>(rc::gen::elementOf(pieces)),
                        [](const std::vector<std::string>& chosen) {
                            std::string text;
                            for (const std::string& piece : chosen) text += piece;
                            return text;
                        });
}

rc::Gen<std::string> any_text() { return rc::gen::oneOf(test::deck_text(), faulty_text()); }

/// Where the bytes of a finding stand when its fix is applied.
std::size_t place_when_mended(const Finding& finding) {
    std::size_t place = finding.span.begin;
    for (const Edit& edit : finding.fix)
        if (edit.span.end <= finding.span.begin) place += edit.text.size() - edit.span.size();
    return place;
}

/// Whether a rule finds something that begins at a place.
bool finds_at(const Deck& deck, const std::string& rule, std::size_t place) {
    return std::ranges::any_of(check(deck), [&](const Finding& finding) {
        return finding.rule == rule && finding.span.begin == place;
    });
}

/// Whether the edits are sorted, apart from one another and within the text.
bool can_be_applied(const std::vector<Edit>& edits, std::size_t size) {
    std::size_t end = 0;
    for (const Edit& edit : edits) {
        if (edit.span.begin < end || edit.span.end < edit.span.begin) return false;
        end = edit.span.end;
    }
    return end <= size;
}

/// The keywords of all groups that GAMESS finds, with the words of their values, by the name of
/// their group.
std::map<std::string, std::vector<std::string>> all_keywords(const Deck& deck) {
    std::map<std::string, std::vector<std::string>> keywords;
    for (const Group& group : deck.sections()) {
        if (!group.visible || group.kind != GroupKind::Keywords) continue;
        for (const Item& item : deck.items(group)) {
            if (item.kind != ItemKind::Keyword) continue;
            std::string text = item.key + '=';
            for (const Span word : item.words) text += std::string{deck.text(word)} + ' ';
            keywords[group.name].push_back(text);
        }
    }
    return keywords;
}

}  // namespace

TEST_CASE("Findings are sorted, each once, lie in the text and are told in one line") {
    CHECK(rc::check([] {
        const Deck deck{*any_text()};
        const std::vector<Finding> findings = check(deck);
        const auto place = [](const Finding& finding) {
            return std::tie(finding.span.begin, finding.rule);
        };
        RC_ASSERT(std::ranges::is_sorted(findings, {}, place));
        RC_ASSERT(std::ranges::adjacent_find(findings, {}, place) == findings.end());
        for (const Finding& finding : findings) {
            const Rule* const rule = find_rule(finding.rule);
            RC_ASSERT(rule != nullptr);
            RC_ASSERT(finding.severity == rule->severity);
            RC_ASSERT(finding.span.begin <= finding.span.end);
            RC_ASSERT(finding.span.end <= deck.text().size());
            RC_ASSERT(finding.position == deck.location(finding.span.begin));
            RC_ASSERT(!finding.message.empty());
            RC_ASSERT((finding.message + finding.hint).find_first_of("\r\n") == std::string::npos);
        }
    }));
}

TEST_CASE("A fix can be applied, and its rule finds nothing there any more") {
    CHECK(rc::check([] {
        const Deck deck{*any_text()};
        for (const Finding& finding : check(deck)) {
            if (finding.fix.empty()) continue;
            RC_ASSERT(can_be_applied(finding.fix, deck.text().size()));
            Deck mended = deck;
            mended.apply(finding.fix);
            RC_ASSERT(!finds_at(mended, finding.rule, place_when_mended(finding)));
        }
    }));
}

TEST_CASE("A fix of the layout changes no keyword of the groups that GAMESS found before") {
    CHECK(rc::check([] {
        const Deck deck{*any_text()};
        for (const Finding& finding : check(deck)) {
            // These two are about groups that GAMESS does not find.
            const bool adds = finding.rule == "header-column" || finding.rule == "second-group";
            if (finding.fix.empty() || adds) continue;
            Deck mended = deck;
            mended.apply(finding.fix);
            RC_ASSERT(all_keywords(mended) == all_keywords(deck));
        }
    }));
}

TEST_CASE("A rule finds the same whether it runs alone or with all others") {
    CHECK(rc::check([] {
        const Deck deck{*any_text()};
        const std::vector<Finding> findings = check(deck);
        const Rule& rule = *rc::gen::elementOf(std::vector<Rule>(rules().begin(), rules().end()));
        CheckOptions options;
        for (const Rule& other : rules())
            if (other.name != rule.name) options.disabled.emplace_back(other.name);
        std::vector<Finding> expected;
        std::ranges::copy_if(findings, std::back_inserter(expected),
                             [&rule](const Finding& finding) { return finding.rule == rule.name; });
        RC_ASSERT(check(deck, options) == expected);
    }));
}

}  // namespace nurl::input::gamess::source

namespace {

/// A text so many times.
std::string repeated(std::string_view text, std::size_t times) {
    std::string whole;
    whole.reserve(text.size() * times);
    for (std::size_t i = 0; i < times; ++i) whole += text;
    return whole;
}

std::size_t count_found(const std::string& text, std::string_view rule) {
    return nurl::test::found(text, rule).size();
}

}  // namespace

// What is not linear in these takes minutes and more.
TEST_CASE("Odd texts of fifty thousand pieces are checked in a moment") {
    constexpr std::size_t times = 50'000;
    const std::string atoms = " $BASIS $END\n $DATA\nt\nC1\n";
    CHECK(count_found(" $SCF " + repeated("CONW=1 ", times) + "$END\n", "unknown-keyword") ==
          times);
    CHECK(count_found(" $SCF " + repeated("CONV=1 ", times) + "$END\n", "repeated-keyword") ==
          times - 1);
    CHECK(count_found(" $SCF $END" + repeated(" $SCF $END", times), "second-group") == times);
    CHECK(count_found(repeated(" $SCF A=1 ! $END\n", times), "hidden-end") == times);
    CHECK(count_found(atoms + repeated("O 8 1 1 1\n", times) + " $END\n", "close-atoms") ==
          times - 1);
    CHECK(count_found(
              atoms + std::string(times, 'O') + " 8\n" + repeated("O 8 1 1 1\n", times) + " $END\n",
              "close-atoms") == times - 1);
    CHECK(count_found(atoms + repeated("x\n", 3 * times) + " $END\n", "unreadable-number") == 0);
    CHECK(count_found(
              " $ZMAT IZMAT(" + std::string(times, '1') + ")=" + repeated("x ", times) + "$END\n",
              "value-type") == times);
    CHECK(count_found(" $SCF\n" + repeated("! x !", times) + std::string(80, ' ') + "A=1\n $END\n",
                      "beyond-column-80") == 1);
}
