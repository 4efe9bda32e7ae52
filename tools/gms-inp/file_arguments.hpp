/// @file
/// Command lines that name decks and then something else: `FILE... PATH`.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace CLI {  // NOLINT(readability-identifier-naming): not our name
class App;
}  // namespace CLI

namespace gms_inp {

/// An argument as the help text shows it.
struct ArgumentHelp {
    std::string name;         ///< as in the usage line: `FILE...`
    std::string description;  ///< one phrase
};

/// Declares positional arguments that are told apart after parsing, and how the help shows them.
///
/// @param words  where they go, at least one
void add_words(CLI::App& app, std::vector<std::string>& words,
               const std::vector<ArgumentHelp>& help);

/// Positional arguments, told apart.
struct SplitArguments {
    std::vector<std::string> files;  ///< decks; never empty
    std::vector<std::string> rest;   ///< what is asked of them; never empty
};

/// Takes the last word as what is asked for, all others as decks.
///
/// @param words  at least one
/// @throws std::runtime_error when there is only one
[[nodiscard]] SplitArguments split_off_last(std::vector<std::string> words);

/// Takes decks up to the first word that names no existing file or begins with `$`. The first word
/// is a deck and the last one is none in any case.
///
/// @param words  at least one
/// @throws std::runtime_error when there is only one
[[nodiscard]] SplitArguments split_paths(std::vector<std::string> words);

/// Takes words that are `-` or an existing file as decks and words with a `=` as assignments, in
/// any order. The first word is a deck when it is neither.
///
/// @throws std::runtime_error when another word is neither, or decks or assignments are missing
[[nodiscard]] SplitArguments split_assignments(const std::vector<std::string>& words);

}  // namespace gms_inp
