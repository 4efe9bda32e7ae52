#include "editor/added_group.hpp"

#include <algorithm>
#include <vector>

#include "editor/editor_names.hpp"
#include "model/structured_groups.hpp"

namespace nurl::input::gamess::detail {

namespace {

/// Fixes the place of a structured group in the written deck.
void ensure_placeholder(std::vector<NamedSection>& sections, const std::string& name) {
    const bool is_there = std::ranges::any_of(sections, [&name](const NamedSection& section) {
        return is_editor_section(section.name, name);
    });
    if (!is_there) sections.push_back({name, {}, {}});
}

/// Drops what was appended to a list since it had `size` groups.
void truncate(std::vector<NamedSection>& list, std::size_t size) noexcept {
    while (list.size() > size) list.pop_back();
}

}  // namespace

void ensure_group(GamessInput& input, const std::string& name) {
    if (is_structured(name)) {
        ensure_placeholder(input.sections, name);
        engage_structured(input, name);
    } else if (input.find_section(name) == nullptr) {
        (input.sections.empty() ? input.extra_sections : input.sections).push_back({name, {}, {}});
    }
}

AddedGroup::AddedGroup(GamessInput& input, const std::string& name)
    : input_(input),
      name_(name),
      sections_(input.sections.size()),
      extra_sections_(input.extra_sections.size()),
      was_present_(structured_present(input, name)) {
    ensure_group(input, name);
}

AddedGroup::~AddedGroup() {
    if (is_kept_) return;
    truncate(input_.sections, sections_);
    truncate(input_.extra_sections, extra_sections_);
    if (!was_present_) disengage_structured(input_, name_);
}

}  // namespace nurl::input::gamess::detail
