#include "model/entries.hpp"

#include "model/text_view.hpp"
#include "nurl/core/text.hpp"

namespace nurl::input::gamess::detail {

void append_entry(std::vector<KeyValue>& entries, std::string_view key, std::string_view value) {
    if (!is_blank_text(key) && !is_blank_text(value))
        entries.push_back(normalised_entry(key, value));
}

KeyValue normalised_entry(std::string_view key, std::string_view value) {
    return {core::text::to_upper_copy(trim_view(key)), std::string{trim_view(value)}};
}

}  // namespace nurl::input::gamess::detail
