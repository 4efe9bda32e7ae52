#include <memory>
#include <string>

#include <CLI/CLI.hpp>

#include "command.hpp"
#include "deck_source.hpp"
#include "edited_deck.hpp"

namespace gms_inp {

namespace {

constexpr const char* footer =
    R"(The canonical layout has one line for a keyword group, its free text behind it, and
$DATA last. What that leaves out or moves is told on standard error. The deck itself
is never overwritten.

Examples:
  gms-inp format water.inp -o tidy.inp
  gms-inp format - < water.inp | diff water.inp -)";

ExitCode run(const EditTarget& target) {
    refuse_to_overwrite_input(target);
    const Deck deck = read_deck(target.file);
    write_edited(deck, deck.result.input, target);
    return ExitCode::Fine;
}

}  // namespace

Runner attach_format(CLI::App& app) {
    const auto target = std::make_shared<EditTarget>();
    app.add_option("FILE", target->file, "The deck, or - for standard input")->required();
    app.add_option("-o,--output", target->output, "File to write, or - for standard output")
        ->type_name("FILE");
    app.footer(footer);
    return [target] { return run(*target); };
}

}  // namespace gms_inp
