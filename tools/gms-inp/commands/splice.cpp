#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include <CLI/CLI.hpp>

#include "chosen_group.hpp"
#include "command.hpp"
#include "deck_edits.hpp"
#include "deck_output.hpp"
#include "deck_source.hpp"
#include "group_copies.hpp"
#include "keyword_path.hpp"

namespace gms_inp {

namespace {

namespace source = nurl::input::gamess::source;

constexpr const char* footer =
    R"(Puts groups of another deck or of a punched file into a deck, such as orbitals or a
Hessian. A group that the deck has is replaced where it stands, another one is added
behind the last group; every other byte stays. Of a group that FILE holds several
times the last copy is taken, which in a punched file is the newest, and standard
error says so; GROUP#n and GROUP#last choose without a word. A deck that has a group
several times is left alone, since only its author knows which copy is meant; 'unset'
removes them. One deck goes to standard output or to the file that -o names; with -i
it is replaced by its new text.

Examples:
  gms-inp splice -i restart.inp --from job.dat VEC
  gms-inp splice opt.inp --from job.dat 'VEC#1' HESS -o next.inp
  gms-inp set next.inp GUESS.GUESS=MOREAD -i)";

struct Options {
    EditTarget target;
    std::string deck;
    std::string from;
    std::vector<std::string> groups;
};

/// A group to be put in; the text points into the file it comes from.
struct Piece {
    std::string group;
    std::string_view text;
};

/// Adds an empty group behind the last one.
void add_group(source::Deck& deck, const std::string& name) {
    const source::Group& last = deck.sections().back();
    if (last.terminator.empty())
        throw std::runtime_error("$" + last.name + " in line " + std::to_string(last.line) +
                                 " is not closed by $END, so no group can follow it");
    const std::string line_end{line_end_behind(deck, last)};
    const std::size_t place = deck.text().find(line_end, last.terminator.end);
    const bool glued = place == std::string::npos;
    const std::size_t at = glued ? deck.text().size() : place + line_end.size();
    std::string group = glued ? line_end : std::string{};
    group += " $" + name + line_end + " $END" + line_end;
    const source::Edit edit{.span = {at, at}, .text = std::move(group)};
    deck.apply({&edit, 1});
}

void put_in(const Piece& piece, source::Deck& deck) {
    const std::size_t copies = deck.find_all(piece.group).size();
    if (copies > 1)
        throw std::runtime_error("$" + piece.group + " occurs " + std::to_string(copies) +
                                 " times, so it is not clear which one to replace; "
                                 "remove them first");
    if (copies == 0) add_group(deck, piece.group);
    deck.replace_section(piece.group, 1, piece.text);
}

ExitCode run(const Options& options) {
    std::vector<GroupPath> paths;
    for (const std::string& text : options.groups) paths.push_back(parse_group_path(text));
    if (options.deck == "-" && options.from == "-")
        throw std::runtime_error("deck and source cannot both be standard input");
    refuse_same_file(options.from, options.target.in_place ? "-" : options.target.output);
    const TextDeck from = read_deck(options.from);
    std::vector<Piece> pieces;
    for (const GroupPath& path : paths) {
        const std::optional<source::Group> group = choose_group(from, path);
        if (!group) return ExitCode::Findings;
        pieces.push_back({path.group, written_text(from.content, *group)});
    }
    EditTarget target = options.target;
    target.files = {options.deck};
    return edit_decks(target, [&pieces](TextDeck& deck) {
        for (const Piece& piece : pieces) put_in(piece, deck.content);
        return ExitCode::Fine;
    });
}

}  // namespace

Runner attach_splice(CLI::App& app) {
    const auto options = std::make_shared<Options>();
    app.add_option("DECK", options->deck, "The deck, or - for standard input")->required();
    app.add_option("GROUP", options->groups, "GROUP, GROUP#n or GROUP#last, in any case")
        ->required();
    app.add_option("--from", options->from, "A deck or punched file, or - for standard input")
        ->type_name("FILE")
        ->required();
    add_target_options(app, options->target);
    app.footer(footer);
    return [options] { return run(*options); };
}

}  // namespace gms_inp
