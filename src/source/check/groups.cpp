#include "source/check/groups.hpp"

#include <optional>
#include <string>
#include <unordered_map>

#include "source/check/near_name.hpp"
#include "validation/messages.hpp"

namespace nurl::input::gamess::source::checks {

namespace {

/// Groups that are meant to stand several times.
bool is_repeatable(const Group& group) noexcept { return group.name == "FCM"; }

std::string repeated_message(const Group& group, std::size_t first_line) {
    const std::string name = "$" + group.name;
    if (group.kind == GroupKind::Keywords)
        return name + " stands in line " + std::to_string(first_line) +
               " already: all copies are read, the last value of a keyword counts";
    return name + " stands in line " + std::to_string(first_line) +
           " already: that one is read, this one is not";
}

}  // namespace

void find_unknown_group(const Context& context, Findings& findings) {
    std::optional<NearNames> known;
    for (const KeywordGroup& taken : context.keyword_groups()) {
        if (taken.spec != nullptr) continue;
        if (!known) known.emplace(schema::section_names());
        const std::string& name = taken.group->name;
        findings.add(taken.group->header, validation::unknown_section_message(name),
                     known->question(name));
    }
}

void find_repeated_group(const Context& context, Findings& findings) {
    std::unordered_map<std::string_view, std::size_t> first_lines;
    for (const Group& group : context.deck().sections()) {
        if (!group.visible || is_repeatable(group)) continue;
        const auto [first, is_new] = first_lines.try_emplace(group.name, group.line);
        if (is_new) continue;
        if (group.kind == GroupKind::Keywords && schema::find_section(group.name) == nullptr)
            continue;
        findings.add(group.header, repeated_message(group, first->second));
    }
}

}  // namespace nurl::input::gamess::source::checks
