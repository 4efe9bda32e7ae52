#include <algorithm>
#include <array>
#include <stdexcept>
#include <string>

#include "model/names.hpp"
#include "model/structured_groups.hpp"
#include "model/text_view.hpp"
#include "nurl/core/fs.hpp"
#include "nurl/input/gamess/model.hpp"
#include "nurl/input/gamess/writer.hpp"
#include "writer/data_block.hpp"
#include "writer/group_block.hpp"
#include "writer/structured_entries.hpp"

namespace nurl::input::gamess {

namespace {

/// About the size of a document as text. Structured groups count as they were read; what their
/// records hold besides is small.
std::size_t expected_size(const GamessInput& input) {
    std::size_t size = detail::data_block_size(input);
    for (const NamedSection& section : input.sections) size += detail::group_block_size(section);
    for (const NamedSection& section : input.extra_sections)
        size += detail::group_block_size(section);
    return size;
}

/// Writes the groups of a document, each structured one at most once.
class DeckText {
public:
    explicit DeckText(const GamessInput& input) : input_(&input) {
        text_.reserve(expected_size(input));
    }

    /// Writes a group that was read: a structured one from its record, whatever the copy holds.
    void add_read(const NamedSection& section) {
        const std::string name = detail::bare_section_name(section.name);
        if (detail::is_structured(name))
            add_structured(name);
        else
            add_generic(section);
    }

    void add_structured(std::string_view name) {
        bool& is_written = written_.at(place_of(name));
        if (is_written) return;
        is_written = true;
        const std::vector<KeyValue> entries = detail::structured_entries(*input_, name);
        if (!entries.empty()) add_block(name, entries, {});
    }

    void add_generic(const NamedSection& section) {
        add_block(section.name, section.entries, section.raw_lines);
    }

    void add_data() {
        if (detail::data_is_due(*input_, detail::is_blank_text))
            detail::append_data_block(*input_, text_);
    }

    [[nodiscard]] std::string take() && { return std::move(text_); }

private:
    /// The index of a structured group in the order of writing.
    static std::size_t place_of(std::string_view name) {
        const auto* const place = std::ranges::find(detail::structured_names, name);
        return static_cast<std::size_t>(place - detail::structured_names.begin());
    }

    void add_block(std::string_view name, const std::vector<KeyValue>& entries,
                   const std::vector<std::string>& raw_lines) {
        detail::append_group_block(detail::dollar_section_name(name), entries, raw_lines, text_);
        text_ += '\n';
    }

    const GamessInput* input_;
    std::array<bool, detail::structured_names.size()> written_{};
    std::string text_;
};

}  // namespace

std::string format_boolean(bool value) { return value ? ".T." : ".F."; }

std::string GamessInput::to_string() const {
    DeckText deck(*this);
    for (const NamedSection& section : sections) deck.add_read(section);
    for (const std::string_view name : detail::structured_names) deck.add_structured(name);
    for (const NamedSection& section : extra_sections) deck.add_generic(section);
    deck.add_data();
    return std::move(deck).take();
}

void GamessInput::write_file(const std::string& path) const {
    if (!core::fs::write_text_file(path, to_string()))
        throw std::runtime_error("Failed to write GAMESS input file: " + path);
}

}  // namespace nurl::input::gamess
