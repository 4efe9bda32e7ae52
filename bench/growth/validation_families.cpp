// Validating documents.
#include <array>
#include <string>
#include <utility>
#include <vector>

#include "growth/family.hpp"
#include "growth/measure.hpp"
#include "nurl/input/gamess/reader.hpp"
#include "nurl/input/gamess/validation.hpp"

namespace nurl::bench::growth {

namespace {

using nurl::input::gamess::GamessInput;
using nurl::input::gamess::NamedSection;
namespace validation = nurl::input::gamess::validation;

void validate_document(const GamessInput& document) {
    const auto issues = measured([&] { return validation::validate(document, {}); });
    require(!issues.empty());
}

void validate(const Input& input) {
    validate_document(nurl::input::gamess::parse_string(input.text).input);
}

/// Groups known to the schema give no finding.
void validate_in_vain(const Input& input) {
    const GamessInput document = nurl::input::gamess::parse_string(input.text).input;
    const auto issues = measured([&] { return validation::validate(document, {}); });
    require(issues.empty());
}

/// The text as the only raw line of a known group.
void validate_raw_line(const Input& input) {
    GamessInput document;
    document.sections.push_back({"FORCE", {}, {input.text}});
    validate_document(document);
}

/// A document made in code may name a group with any number of blanks around it.
void validate_long_name(const Input& input) {
    const std::string name = std::string(input.n, ' ') + "FORCE";
    const std::vector<nurl::input::gamess::KeyValue> entries(input.n, {"K", "1"});
    const NamedSection section{name, entries, {}};
    const auto issues = measured([&] { return validation::validate_section(section, {}); });
    require(issues.size() == input.n);
}

constexpr auto families = std::to_array<Family>({
    {"validate n groups that are not known", {"", " $G% A=1 $END\n"}, validate, things},
    {"validate n groups that are known", {"", " $SCF DIRSCF=.T. $END\n"}, validate_in_vain, things},
    {"validate n keywords that are not known",
     {" $FORCE\n", " K%=1\n", " $END\n"},
     validate,
     things},
    {"validate n keywords that are known",
     {" $FORCE\n", " METHOD=NUMERIC\n", " $END\n"},
     validate_in_vain,
     things},
    {"validate n keywords of a structured group",
     {" $CONTRL\n", " K%=1\n", " $END\n"},
     validate,
     things},
    {"validate n raw lines of a structured group",
     {" $CONTRL\n", "free text\n", " $END\n"},
     validate,
     things},
    {"validate n pairs of a raw line", {"", "K%=1 "}, validate_raw_line, things},
    {"validate n open parentheses of a raw line", {"LAST=1 ", "b( "}, validate_raw_line, words},
    {"validate n keywords of a group with n blanks in front of its name",
     {},
     validate_long_name,
     things},
});

}  // namespace

std::span<const Family> validation_families() noexcept { return families; }

}  // namespace nurl::bench::growth
