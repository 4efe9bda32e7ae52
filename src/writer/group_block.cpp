#include "writer/group_block.hpp"

#include <algorithm>

#include "model/text_view.hpp"

namespace nurl::input::gamess::detail {

namespace {

void append_entry_text(const KeyValue& entry, std::string& text) {
    const std::string_view key = trim_view(entry.key);
    const std::string_view value = trim_view(entry.value);
    if (key.empty() || value.empty()) return;
    text += ' ';
    std::ranges::transform(key, std::back_inserter(text), to_upper);
    text += '=';
    text += value;
}

}  // namespace

std::size_t group_block_size(const NamedSection& section) noexcept {
    constexpr std::size_t frame = 10;  // ` $` before the name, line ends, ` $END`
    std::size_t size = frame + section.name.size();
    for (const KeyValue& entry : section.entries) size += entry.key.size() + entry.value.size() + 2;
    for (const std::string& line : section.raw_lines) size += line.size() + 1;
    return size;
}

void append_group_block(std::string_view header, std::span<const KeyValue> entries,
                        std::span<const std::string> raw_lines, std::string& text) {
    text += ' ';
    text += header;
    for (const KeyValue& entry : entries) append_entry_text(entry, text);
    if (!std::ranges::all_of(raw_lines, is_blank_text)) {
        text += '\n';
        for (const std::string& line : raw_lines) {
            text += line;
            text += '\n';
        }
    }
    text += " $END";
}

}  // namespace nurl::input::gamess::detail
