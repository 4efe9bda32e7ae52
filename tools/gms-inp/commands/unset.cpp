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

namespace source = nurl::input::gamess::source;

constexpr const char* footer =
    R"(A group goes with all its copies, a keyword with all its values; every other byte
stays. Existing files behind the first are decks, too; the first word that names none
begins the paths. A path may begin with $, which a file of that name then does not
hide. When anything named is not in a deck, that deck is not written and the exit
status is 1. One deck goes to standard output or to the file that -o names; with -i
each deck is replaced by its new text, as a whole or not at all.

Examples:
  gms-inp unset water.inp CONTRL.MAXIT -o shorter.inp
  gms-inp unset water.inp GUESS VEC > fresh.inp
  gms-inp unset -i *.inp '$VEC' GUESS.NORB)";

struct Options {
    EditTarget target;
    std::vector<std::string> words;
};

bool is_present(const source::Deck& deck, const KeywordPath& path) {
    return path.key.empty() ? deck.location(path.group).has_value()
                            : deck.location(path.group, path.key).has_value();
}

/// Names everything that is not there. @return whether all is there
bool complain_of_missing(const TextDeck& deck, const std::vector<KeywordPath>& paths) {
    bool complete = true;
    for (const KeywordPath& path : paths) {
        if (is_present(deck.content, path)) continue;
        const std::string message = absence_of(deck.content, path);
        complain({.place = deck.name, .weight = Weight::Error, .message = message});
        complete = false;
    }
    return complete;
}

ExitCode remove_all(TextDeck& deck, const std::vector<KeywordPath>& paths) {
    if (!complain_of_missing(deck, paths)) return ExitCode::Findings;
    for (const KeywordPath& path : paths) {
        if (path.key.empty())
            deck.content.remove_section(path.group);
        else
            deck.content.remove_keyword(path.group, path.key);
    }
    return ExitCode::Fine;
}

ExitCode run(const Options& options) {
    const SplitArguments arguments = split_paths(options.words);
    std::vector<KeywordPath> paths;
    for (const std::string& text : arguments.rest) paths.push_back(parse_path(text));
    EditTarget target = options.target;
    target.files = arguments.files;
    return edit_decks(target, [&paths](TextDeck& deck) { return remove_all(deck, paths); });
}

}  // namespace

Runner attach_unset(CLI::App& app) {
    const auto options = std::make_shared<Options>();
    add_words(app, options->words,
              {{"FILE...", "Decks, or - for standard input"},
               {"PATH...", "GROUP or GROUP.KEY, in any case"}});
    add_target_options(app, options->target);
    app.footer(footer);
    return [options] { return run(*options); };
}

}  // namespace gms_inp
