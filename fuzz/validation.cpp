// A deck of any bytes: validation gives findings about groups of the deck, and only those that are
// asked for.
#include "nurl/input/gamess/validation.hpp"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <set>
#include <string>
#include <vector>

#include "bytes.hpp"
#include "nurl/input/gamess/reader.hpp"
#include "nurl/input/gamess/schema.hpp"
#include "require.hpp"

namespace {

using nurl::fuzz::require;
using nurl::input::gamess::GamessInput;
using nurl::input::gamess::NamedSection;
using namespace nurl::input::gamess::validation;
using Issues = std::vector<Issue>;

bool is_asked_for(const Issue& issue, const Options& options) {
    if (issue.severity == Severity::Info) return options.report_unknown_sections;
    if (issue.severity == Severity::Warning) return options.report_unknown_keywords;
    return options.report_raw_text_in_structured;
}

Issues asked_for(Issues issues, const Options& options) {
    std::erase_if(issues, [&](const Issue& issue) { return !is_asked_for(issue, options); });
    return issues;
}

std::set<std::string> names_of(const GamessInput& deck) {
    std::set<std::string> names;
    for (const NamedSection& section : deck.sections)
        names.insert(nurl::input::gamess::schema::normalize_section_name(section.name));
    return names;
}

void check_finding(const Issue& issue, const std::set<std::string>& names) {
    require(names.contains(issue.section), "a finding names a group of the deck");
    require(!issue.message.empty(), "a finding says what it is about");
    require(issue.key.empty() == (issue.severity != Severity::Warning),
            "keywords are named where the schema does not know them");
}

/// The findings about the groups that were read are the last ones, in the order of the groups.
void check_sections(const GamessInput& deck, const Issues& issues) {
    Issues of_sections;
    for (const NamedSection& section : deck.sections) {
        const Issues more = validate_section(section, {});
        of_sections.insert(of_sections.end(), more.begin(), more.end());
    }
    require(of_sections.size() <= issues.size() &&
                std::equal(of_sections.rbegin(), of_sections.rend(), issues.rbegin()),
            "a deck has the findings of its groups");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const GamessInput deck =
        nurl::input::gamess::parse_string(nurl::fuzz::text_of(data, size)).input;
    const Issues all = validate(deck, {});
    const std::set<std::string> names = names_of(deck);
    for (const Issue& issue : all) check_finding(issue, names);
    check_sections(deck, all);
    for (const bool sections : {false, true})
        for (const bool keywords : {false, true})
            for (const bool text : {false, true}) {
                const Options options{sections, keywords, text};
                require(validate(deck, options) == asked_for(all, options),
                        "findings are those that are asked for");
            }
    return 0;
}
