/// @file
/// The subcommands of the program.
#pragma once

#include <functional>

#include "exit_code.hpp"

namespace CLI {
class App;
}  // namespace CLI

namespace gms_inp {

/// Runs a subcommand with the arguments that were parsed. Throws `std::runtime_error` on trouble.
using Runner = std::function<ExitCode()>;

/// One subcommand.
struct Command {
    const char* name;             ///< the word on the command line
    const char* summary;          ///< one line of help
    Runner (*attach)(CLI::App&);  ///< declares its arguments, examples included, and returns how
                                  ///< to run it
};

/// Checks decks by rules, and mends what has one safe remedy.
[[nodiscard]] Runner attach_check(CLI::App& app);

/// Says what a rule of `check` looks for and why.
[[nodiscard]] Runner attach_explain(CLI::App& app);

/// Lists the groups of a deck.
[[nodiscard]] Runner attach_list(CLI::App& app);

/// Prints groups or the values of a keyword.
[[nodiscard]] Runner attach_get(CLI::App& app);

/// Sets keywords.
[[nodiscard]] Runner attach_set(CLI::App& app);

/// Removes keywords and groups.
[[nodiscard]] Runner attach_unset(CLI::App& app);

/// Compares two decks as GAMESS reads them.
[[nodiscard]] Runner attach_diff(CLI::App& app);

/// Takes groups out of a deck or punched file.
[[nodiscard]] Runner attach_extract(CLI::App& app);

/// Puts groups of one file into a deck.
[[nodiscard]] Runner attach_splice(CLI::App& app);

/// Folds long lines, or writes decks in canonical layout.
[[nodiscard]] Runner attach_format(CLI::App& app);

/// Builds a deck from a molecule.
[[nodiscard]] Runner attach_new(CLI::App& app);

/// Prints the document model, or one typed record.
[[nodiscard]] Runner attach_show(CLI::App& app);

/// Prints what is known of groups and keywords.
[[nodiscard]] Runner attach_schema(CLI::App& app);

}  // namespace gms_inp
