/// @file
/// One edit of a document, as a function.
#pragma once

#include <string_view>
#include <utility>

#include "nurl/input/gamess/editor.hpp"
#include "nurl/input/gamess/model.hpp"

namespace nurl::test {

/// A document after `set_keyword`.
[[nodiscard]] inline input::gamess::GamessInput after_set(const input::gamess::GamessInput& deck,
                                                          std::string_view section,
                                                          std::string_view key,
                                                          std::string_view value) {
    input::gamess::InputEditor editor{deck};
    editor.set_keyword(section, key, value);
    return std::move(editor).take();
}

/// What an operation that tells whether it did something leaves behind.
struct EditResult {
    bool result;
    input::gamess::GamessInput deck;

    bool operator==(const EditResult&) const = default;
};

/// The outcome of `remove_keyword`.
[[nodiscard]] inline EditResult after_remove(const input::gamess::GamessInput& deck,
                                             std::string_view section, std::string_view key) {
    input::gamess::InputEditor editor{deck};
    const bool result = editor.remove_keyword(section, key);
    return {result, std::move(editor).take()};
}

/// The outcome of `remove_section`.
[[nodiscard]] inline EditResult after_remove(const input::gamess::GamessInput& deck,
                                             std::string_view section) {
    input::gamess::InputEditor editor{deck};
    const bool result = editor.remove_section(section);
    return {result, std::move(editor).take()};
}

}  // namespace nurl::test
