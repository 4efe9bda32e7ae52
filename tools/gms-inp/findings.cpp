#include "findings.hpp"

#include <algorithm>
#include <array>
#include <string_view>
#include <unordered_set>
#include <utility>

#include "finding_places.hpp"
#include "nurl/input/gamess/schema.hpp"

namespace gms_inp {

namespace {

namespace gamess = nurl::input::gamess;
using gamess::validation::Severity;

/// A warning of the reader: what follows the name of the group, and where it belongs.
struct ReaderWarning {
    std::string_view text;
    PlaceKind place;
};

constexpr auto reader_warnings = std::to_array<ReaderWarning>({
    {" reached the next section before $END; treating it as implicitly terminated",
     PlaceKind::Unclosed},
    {" reached end-of-file without $END", PlaceKind::UnclosedAtEnd},
    {" preserved non-keyword text from its header as raw text", PlaceKind::HeaderText},
    {" preserved non-keyword body text as raw text", PlaceKind::BodyText},
});

/// A finding and what to look for in the text.
struct Located {
    Finding finding;
    PlaceKind place = PlaceKind::Group;
};

Located from_warning(const std::string& warning) {
    Located located;
    located.finding.weight = Weight::Warning;
    located.finding.message = warning;
    for (const ReaderWarning& row : reader_warnings) {
        if (!warning.ends_with(row.text)) continue;
        const std::string_view front{warning.data(), warning.size() - row.text.size()};
        const std::string_view name = front.substr(std::min(front.find('$'), front.size()));
        located.finding.section = gamess::schema::normalize_section_name(name);
        located.place = row.place;
    }
    return located;
}

Weight weight_of(Severity severity) noexcept {
    if (severity == Severity::Error) return Weight::Error;
    return severity == Severity::Warning ? Weight::Warning : Weight::Info;
}

Located from_issue(const gamess::validation::Issue& issue) {
    PlaceKind place = PlaceKind::Group;
    if (issue.severity == Severity::Warning) place = PlaceKind::Keyword;
    if (issue.severity == Severity::Error) place = PlaceKind::AnyText;
    return {.finding = {.weight = weight_of(issue.severity),
                        .section = issue.section,
                        .key = issue.key,
                        .message = issue.message},
            .place = place};
}

bool is_wanted(const Located& located, const gamess::validation::Options& options) noexcept {
    const bool text =
        located.place == PlaceKind::HeaderText || located.place == PlaceKind::BodyText;
    return !text || options.report_raw_text_in_structured;
}

/// All findings, each sentence once: it names the group and keyword it is about.
std::vector<Located> distinct_findings(const Deck& deck,
                                       const gamess::validation::Options& options) {
    const auto issues = gamess::validation::validate(deck.result.input, options);
    std::unordered_set<std::string_view> seen;
    std::vector<Located> findings;
    for (const std::string& warning : deck.result.warnings) {
        if (!seen.insert(warning).second) continue;
        Located located = from_warning(warning);
        if (is_wanted(located, options)) findings.push_back(std::move(located));
    }
    for (const auto& issue : issues) {
        if (seen.insert(issue.message).second) findings.push_back(from_issue(issue));
    }
    return findings;
}

}  // namespace

std::vector<Finding> collect_findings(const Deck& deck,
                                      const gamess::validation::Options& options) {
    std::vector<Located> all = distinct_findings(deck, options);
    if (all.empty()) return {};
    const PlaceIndex index{deck.text};
    std::vector<Finding> findings;
    for (auto& [finding, place] : all) {
        const Places places = index.find(place, finding.section, finding.key);
        finding.line = places.first_line;
        finding.count = std::max<std::size_t>(places.count, 1);
        findings.push_back(std::move(finding));
    }
    std::ranges::stable_sort(findings, {}, &Finding::line);
    return findings;
}

}  // namespace gms_inp
