#include "source_check/found.hpp"

#include <algorithm>
#include <array>

#include <doctest/doctest.h>

#include "model/printing.hpp"
#include "nurl/core/text.hpp"

using namespace nurl::input::gamess;
using source::Deck;
using source::Finding;

namespace nurl::test {

namespace {

std::string shown_place(const Finding& finding) {
    return std::to_string(finding.position.line) + ':' + std::to_string(finding.position.column);
}

std::string shown_severity(validation::Severity severity) {
    constexpr std::array<const char*, 3> names{"info", "warning", "error"};
    return names.at(static_cast<std::size_t>(severity));
}

std::string with_fix(const Deck& deck, const Finding& finding) {
    Deck mended = deck;
    mended.apply(finding.fix);
    return mended.text();
}

}  // namespace

Lines found(std::string_view text, std::string_view rule) {
    Lines lines;
    for (const Finding& finding : source::check(Deck{std::string{text}})) {
        if (finding.rule != rule) continue;
        const std::string hint = finding.hint.empty() ? "" : " | " + finding.hint;
        lines.push_back(shown_place(finding) + ' ' + finding.message + hint);
    }
    return lines;
}

std::string fixed(std::string_view text, std::string_view rule) {
    Deck deck{std::string{text}};
    for (std::size_t round = 0; round <= text.size(); ++round) {
        const std::vector<Finding> findings = source::check(deck);
        const auto hit = std::ranges::find_if(findings, [rule](const Finding& finding) {
            return finding.rule == rule && !finding.fix.empty();
        });
        if (hit == findings.end()) break;
        deck.apply(hit->fix);
    }
    return deck.text();
}

void check_rows(std::string_view rule, const std::vector<FindingRow>& rows) {
    for (const FindingRow& row : rows) {
        CAPTURE(row.name);
        CAPTURE(row.text);
        CHECK(found(row.text, rule) == row.findings);
    }
}

std::string golden_text(const Deck& deck) {
    std::string text;
    for (const Finding& finding : source::check(deck)) {
        text += shown_place(finding) + ": " + shown_severity(finding.severity) + ": " +
                finding.message + " [" + finding.rule + "]\n";
        if (!finding.hint.empty()) text += "    hint: " + finding.hint + '\n';
        if (finding.fix.empty()) continue;
        text += "    fixed:\n";
        for (const std::string& line : core::text::split_lines(with_fix(deck, finding)))
            text += "    |" + line + '\n';
    }
    return text;
}

}  // namespace nurl::test
