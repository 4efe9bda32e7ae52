#include "deck_edits.hpp"

#include <algorithm>
#include <stdexcept>
#include <string_view>

#include <CLI/CLI.hpp>

#include "deck_output.hpp"
#include "diagnostics.hpp"
#include "output.hpp"
#include "terminal.hpp"

namespace gms_inp {

namespace {

void complain_of(std::string_view place, const std::runtime_error& error) {
    complain({.place = place, .weight = Weight::Error, .message = error.what()});
}

void require_sense(const EditTarget& target) {
    const bool reads_stdin = std::ranges::find(target.files, "-") != target.files.end();
    if (target.only_look) return;
    if (target.in_place && reads_stdin)
        throw std::runtime_error("standard input cannot be edited in place");
    if (target.in_place) return;
    if (target.files.size() > 1)
        throw std::runtime_error("several decks can only be edited in place: give -i");
    refuse_same_file(target.files.front(), target.output);
}

/// Brings an edited deck to where it belongs.
///
/// @param before  its text before the edit; not looked at when it goes to an output
ExitCode deliver(const std::string& file, const TextDeck& deck, const std::string& before,
                 const EditTarget& target) {
    const std::string& after = deck.content.text();
    if (target.only_look) {
        if (after == before) return ExitCode::Fine;
        print(escape_controls(deck.name, Keep::Nothing) + '\n');
        return ExitCode::Findings;
    }
    if (!target.in_place) {
        write_output(target.output, after);
    } else if (after != before) {
        write_file(file, after);
    }
    return ExitCode::Fine;
}

ExitCode apply(const DeckEdit& edit, TextDeck& deck) {
    try {
        return edit(deck);
    } catch (const std::runtime_error& error) {
        complain_of(deck.name, error);
        return ExitCode::Trouble;
    }
}

ExitCode edit_file(const std::string& file, const EditTarget& target, const DeckEdit& edit) {
    try {
        if (target.in_place) require_editable_in_place(file);
        TextDeck deck = read_deck(file);
        const bool compares = target.in_place || target.only_look;
        const std::string before = compares ? deck.content.text() : std::string{};
        const ExitCode code = apply(edit, deck);
        return code == ExitCode::Fine ? deliver(file, deck, before, target) : code;
    } catch (const std::runtime_error& error) {
        complain_of("gms-inp", error);
        return ExitCode::Trouble;
    }
}

}  // namespace

void set_keywords(nurl::input::gamess::source::Deck& deck,
                  const std::vector<Assignment>& assignments) {
    for (const auto& [path, value] : assignments) {
        try {
            deck.set_keyword(path.group, path.key, value);
        } catch (const std::runtime_error& error) {
            throw std::runtime_error(text_of(path) + ": " + error.what());
        }
    }
}

void add_target_options(CLI::App& app, EditTarget& target) {
    CLI::Option* const output =
        app.add_option("-o,--output", target.output, "File to write, or - for standard output")
            ->option_text("FILE");
    app.add_flag("-i,--in-place", target.in_place, "Write each deck to its own file")
        ->excludes(output);
}

ExitCode edit_decks(const EditTarget& target, const DeckEdit& edit) {
    require_sense(target);
    ExitCode worst = ExitCode::Fine;
    for (const std::string& file : target.files)
        worst = std::max(worst, edit_file(file, target, edit));
    return worst;
}

}  // namespace gms_inp
