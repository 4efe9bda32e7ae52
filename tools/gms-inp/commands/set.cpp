#include <memory>
#include <string>
#include <vector>

#include <CLI/CLI.hpp>

#include "command.hpp"
#include "deck_edits.hpp"
#include "deck_source.hpp"
#include "diagnostics.hpp"
#include "file_arguments.hpp"
#include "group_copies.hpp"
#include "keyword_path.hpp"

namespace gms_inp {

namespace {

constexpr const char* footer =
    R"(Existing files are decks, words with a = assignments, in any order. A keyword is
set where its value counts, one that is missing is added to its group, and a group
that is missing is added in front of $DATA. Nothing else changes: comments, the order
of things and every other byte stay. One deck goes to standard output or to the file
that -o names; with -i each deck is replaced by its new text, as a whole or not at
all, and only when a value differs. When one deck cannot be edited, the others are
edited all the same and the exit status is 2.

Examples:
  gms-inp set water.inp CONTRL.RUNTYP=OPTIMIZE -o water_opt.inp
  gms-inp set water.inp CONTRL.ICHARG=1 CONTRL.MULT=2 > cation.inp
  gms-inp set -i *.inp SYSTEM.MWORDS=500 SCF.DIRSCF=.T.
  gms-inp set - 'dft.method=grid' < water.inp)";

struct Options {
    EditTarget target;
    std::vector<std::string> words;
};

/// Says which groups are added although the deck has them, where GAMESS does not see them.
void tell_unseen_groups(const TextDeck& deck, const std::vector<Assignment>& assignments) {
    for (const Assignment& assignment : assignments) {
        const std::string& group = assignment.path.group;
        const std::string unseen = unseen_group(deck.content, group);
        if (unseen.empty() || !deck.content.find_all(group).empty()) continue;
        const std::string message = "$" + group + " is added; " + unseen;
        complain({.place = deck.name, .weight = Weight::Note, .message = message});
    }
}

ExitCode run(const Options& options) {
    const SplitArguments arguments = split_assignments(options.words);
    std::vector<Assignment> assignments;
    for (const std::string& text : arguments.rest) assignments.push_back(parse_assignment(text));
    EditTarget target = options.target;
    target.files = arguments.files;
    return edit_decks(target, [&assignments](TextDeck& deck) {
        tell_unseen_groups(deck, assignments);
        set_keywords(deck.content, assignments);
        return ExitCode::Fine;
    });
}

}  // namespace

Runner attach_set(CLI::App& app) {
    const auto options = std::make_shared<Options>();
    add_words(app, options->words,
              {{"FILE...", "Decks, or - for standard input"},
               {"ASSIGNMENT...", "GROUP.KEY=VALUE, names in any case"}});
    add_target_options(app, options->target);
    app.footer(footer);
    return [options] { return run(*options); };
}

}  // namespace gms_inp
