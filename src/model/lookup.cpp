#include <algorithm>
#include <utility>

#include "model/names.hpp"
#include "model/text_view.hpp"
#include "nurl/input/gamess/model.hpp"

namespace nurl::input::gamess {

namespace {

const NamedSection* find_in(const std::vector<NamedSection>& list, std::string_view name) noexcept {
    const auto hit = std::ranges::find_if(list, [name](const NamedSection& section) {
        return detail::same_section_name(section.name, name);
    });
    return hit == list.end() ? nullptr : &*hit;
}

}  // namespace

const NamedSection* GamessInput::find_section(std::string_view name) const noexcept {
    const std::string_view wanted = detail::trim_view(name);  // once, not for every group
    if (const NamedSection* const read = find_in(sections, wanted)) return read;
    return find_in(extra_sections, wanted);
}

NamedSection* GamessInput::find_section(std::string_view name) noexcept {
    // The group belongs to this document, which is not const here.
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-const-cast): one search serves both overloads
    return const_cast<NamedSection*>(std::as_const(*this).find_section(name));
}

// NOLINTNEXTLINE(performance-unnecessary-value-param): the signature is part of the contract
NamedSection& GamessInput::upsert_section(std::string name) {
    if (NamedSection* const found = find_section(name)) return *found;
    std::vector<NamedSection>& list = sections.empty() ? extra_sections : sections;
    return list.emplace_back(NamedSection{detail::bare_section_name(name), {}, {}});
}

}  // namespace nurl::input::gamess
