#include "deck_source.hpp"

#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string_view>
#include <system_error>
#include <vector>

#include "diagnostics.hpp"
#include "nurl/input/gamess/reader.hpp"
#include "nurl/input/gamess/schema.hpp"

namespace gms_inp {

namespace {

namespace source = nurl::input::gamess::source;

/// What `parse_string` says of such a text.
constexpr std::string_view no_groups = "The input does not contain any GAMESS sections";

constexpr std::size_t block_size = 65536;

[[noreturn]] void throw_read_error(const std::string& name, int error) {
    const std::string reason = std::generic_category().message(error);
    throw std::runtime_error("cannot read " + name + ": " + reason);
}

[[noreturn]] void throw_no_deck(const std::string& name, std::string_view reason) {
    throw std::runtime_error(name + ": " + std::string{reason});
}

/// Whether a text is a deck: GAMESS sees a group, or would see one that is known if it stood in the
/// right column. A script with a `$PATH` is none.
bool is_deck(const source::Deck& deck) {
    return std::ranges::any_of(deck.sections(), [](const source::Group& group) {
        return group.visible || nurl::input::gamess::schema::find_section(group.name) != nullptr;
    });
}

std::string read_stdin() {
    std::string text;
    std::vector<char> block(block_size);  // the stack may be small
    while (const std::size_t count = std::fread(block.data(), 1, block.size(), stdin)) {
        text.append(block.data(), count);
    }
    if (std::ferror(stdin) != 0) throw_read_error(shown_name("-"), errno);
    return text;
}

std::string read_file(const std::string& path) {
    errno = 0;
    std::ifstream file{path, std::ios::binary};
    if (!file) throw_read_error(path, errno);
    std::string text;
    std::error_code no_size;
    const std::uintmax_t size = std::filesystem::file_size(path, no_size);
    if (!no_size) text.reserve(static_cast<std::size_t>(size));
    std::vector<char> block(block_size);  // the stack may be small
    while (file) {
        file.read(block.data(), block_size);
        text.append(block.data(), static_cast<std::size_t>(file.gcount()));
    }
    if (file.bad()) throw_read_error(path, errno);
    return text;
}

}  // namespace

std::string read_text(const std::string& path) {
    return path == "-" ? read_stdin() : read_file(path);
}

TextDeck read_deck(const std::string& path) {
    TextDeck deck{.name = shown_name(path), .content = source::Deck{read_text(path)}};
    if (!is_deck(deck.content)) throw_no_deck(deck.name, no_groups);
    return deck;
}

ModelDeck read_model(const std::string& path) {
    ModelDeck deck;
    deck.name = shown_name(path);
    deck.text = read_text(path);
    deck.result = nurl::input::gamess::parse_string(deck.text);
    if (!deck.result.ok) throw_no_deck(deck.name, deck.result.error);
    return deck;
}

}  // namespace gms_inp
