#include "reader/lift.hpp"

#include <utility>
#include <vector>

#include "model/structured_groups.hpp"
#include "model/text_view.hpp"
#include "nurl/core/text.hpp"
#include "reader/pair_scanner.hpp"
#include "reader/structured_values.hpp"

namespace nurl::input::gamess::detail {

namespace {

template <class Record>
void lift_entry(std::string_view key, std::string_view value, Record& into) {
    const auto* const field = find_field<Record>(key);
    if (field != nullptr && store_value(*field, trim_view(value), ZeroText::IsFalse, into)) return;
    into.extra.push_back({std::string{key}, std::string{value}});
}

template <class Record>
void lift(const NamedSection& section, Record& into) {
    for (const KeyValue& entry : section.entries) lift_entry(entry.key, entry.value, into);
    for (const std::string& line : section.raw_lines) {
        PairScanner scanner(line);
        while (const auto pair = scanner.next())
            lift_entry<Record>(core::text::to_upper_copy(pair->key), pair->value, into);
    }
}

}  // namespace

void lift_structured(const NamedSection& section, GamessInput& input) {
    engage_structured(input, section.name);
    visit_structured(input, section.name, [&section](auto* record) { lift(section, *record); });
}

}  // namespace nurl::input::gamess::detail
