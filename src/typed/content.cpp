#include <algorithm>
#include <iterator>
#include <utility>

#include "model/entries.hpp"
#include "model/text_view.hpp"
#include "nurl/core/text.hpp"
#include "nurl/input/gamess/typed/detail.hpp"
#include "reader/pair_split.hpp"

namespace nurl::input::gamess::typed::detail {

namespace {

using core::text::to_upper_copy;
using gamess::detail::is_blank_text;
using gamess::detail::normalised_entry;
using gamess::detail::trim_view;

void collect_line(const std::string& line, SectionContent& content) {
    std::vector<gamess::detail::PairText> pairs;
    std::string leftover;
    gamess::detail::split_pairs(line, pairs, leftover);
    std::ranges::move(gamess::detail::to_entries(pairs), std::back_inserter(content.entries));
    if (is_blank_text(leftover)) return;
    content.raw_lines.emplace_back(pairs.empty() ? line : trim_view(leftover));
}

}  // namespace

SectionContent collect_section_content(const NamedSection& section) {
    SectionContent content;
    for (const KeyValue& entry : section.entries)
        content.entries.push_back(normalised_entry(entry.key, entry.value));
    for (const std::string& line : section.raw_lines) collect_line(line, content);
    return content;
}

// NOLINTBEGIN(performance-unnecessary-value-param): taking lists by value is part of the contract
NamedSection make_named_section(std::string name, std::vector<KeyValue> entries,
                                std::vector<KeyValue> extra_entries,
                                std::vector<std::string> raw_lines) {
    for (const KeyValue& entry : extra_entries)
        entries.push_back(normalised_entry(entry.key, entry.value));
    return {to_upper_copy(trim_view(name)), std::move(entries), std::move(raw_lines)};
}

// NOLINTEND(performance-unnecessary-value-param)

void set_named_section(GamessInput& input, std::string_view name, NamedSection section) {
    section.name = to_upper_copy(trim_view(name));
    input.upsert_section(std::string{name}) = std::move(section);
}

}  // namespace nurl::input::gamess::typed::detail
