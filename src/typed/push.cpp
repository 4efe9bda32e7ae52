#include <algorithm>
#include <array>
#include <charconv>

#include "model/entries.hpp"
#include "model/text_view.hpp"
#include "nurl/core/text.hpp"
#include "nurl/input/gamess/typed/detail.hpp"
#include "nurl/input/gamess/writer.hpp"

namespace nurl::input::gamess::typed::detail {

namespace {

using gamess::detail::append_entry;

std::string number_text(std::int32_t value) { return std::to_string(value); }

/// General notation with 15 significant digits and upper-case letters.
std::string number_text(double value) {
    constexpr int significant_digits = 15;
    std::array<char, 32> digits{};
    const auto written = std::to_chars(digits.data(), digits.data() + digits.size(), value,
                                       std::chars_format::general, significant_digits);
    return core::text::to_upper_copy({digits.data(), written.ptr});
}

template <class Value>
void push_list(std::vector<KeyValue>& entries, std::string_view key,
               const std::vector<Value>& list) {
    std::string joined;
    for (const Value& value : list) {
        if (!joined.empty()) joined += ',';
        joined += number_text(value);
    }
    append_entry(entries, key, joined);
}

}  // namespace

void push_optional_int(std::vector<KeyValue>& entries, std::string_view key,
                       std::optional<std::int32_t> value) {
    if (value) append_entry(entries, key, number_text(*value));
}

void push_optional_double(std::vector<KeyValue>& entries, std::string_view key,
                          std::optional<double> value) {
    if (value) append_entry(entries, key, number_text(*value));
}

void push_optional_bool(std::vector<KeyValue>& entries, std::string_view key,
                        std::optional<bool> value) {
    if (value) append_entry(entries, key, format_boolean(*value));
}

void push_optional_token(std::vector<KeyValue>& entries, std::string_view key,
                         const std::optional<std::string>& value) {
    if (value) append_entry(entries, key, core::text::to_upper_copy(*value));
}

void push_int_list(std::vector<KeyValue>& entries, std::string_view key,
                   const std::vector<std::int32_t>& list) {
    push_list(entries, key, list);
}

void push_double_list(std::vector<KeyValue>& entries, std::string_view key,
                      const std::vector<double>& list) {
    push_list(entries, key, list);
}

}  // namespace nurl::input::gamess::typed::detail
