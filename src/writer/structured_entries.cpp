#include "writer/structured_entries.hpp"

#include <charconv>
#include <optional>
#include <string>
#include <variant>

#include "model/entries.hpp"
#include "model/structured_fields.hpp"
#include "model/structured_groups.hpp"
#include "nurl/core/text.hpp"
#include "nurl/input/gamess/writer.hpp"

namespace nurl::input::gamess::detail {

namespace {

std::string text_of(const std::string& value) { return core::text::to_upper_copy(value); }
std::string text_of(std::int32_t value) { return std::to_string(value); }
std::string text_of(Units value) { return units_keyword(value); }

/// The text of a flagged member, when the deck gives it.
template <class Record, class Value>
std::optional<std::string> member_text(const Flagged<Record, Value>& member, const Record& record) {
    if (!(record.*member.given)) return std::nullopt;
    return text_of(record.*member.value);
}

/// A flagged logical value is written as a number.
template <class Record>
std::optional<std::string> member_text(const Flagged<Record, bool>& member, const Record& record) {
    if (!(record.*member.given)) return std::nullopt;
    return record.*member.value ? "1" : "0";
}

template <class Record, class Value>
std::optional<std::string> member_text(Optional<Record, Value> member, const Record& record) {
    if (!(record.*member)) return std::nullopt;
    return text_of(*(record.*member));
}

template <class Record>
std::optional<std::string> member_text(Optional<Record, bool> member, const Record& record) {
    if (!(record.*member)) return std::nullopt;
    return format_boolean(*(record.*member));
}

template <class Record>
std::vector<KeyValue> entries_of(const Record& record) {
    std::vector<KeyValue> entries;
    for (const auto& field : structured_fields<Record>) {
        const auto text = std::visit(
            [&record](const auto& member) { return member_text(member, record); }, field.member);
        if (text) append_entry(entries, field.keyword, *text);
    }
    for (const KeyValue& entry : record.extra) append_entry(entries, entry.key, entry.value);
    return entries;
}

}  // namespace

std::vector<KeyValue> structured_entries(const GamessInput& input, std::string_view name) {
    if (!structured_present(input, name)) return {};
    return visit_structured(input, name, [](const auto* record) { return entries_of(*record); });
}

}  // namespace nurl::input::gamess::detail
