#include <memory>
#include <set>
#include <string>
#include <vector>

#include <CLI/CLI.hpp>

#include "command.hpp"
#include "deck_source.hpp"
#include "diagnostics.hpp"
#include "edited_deck.hpp"
#include "keyword_path.hpp"
#include "nurl/input/gamess/editor.hpp"

namespace gms_inp {

namespace {

namespace gamess = nurl::input::gamess;

constexpr const char* footer =
    R"(A group goes with all its copies, a keyword with all its values. When anything named
is not in the deck, nothing is written and the exit status is 1. The deck is written
in canonical layout; what that leaves out or moves is told on standard error. The
deck itself is never overwritten.

Examples:
  gms-inp unset water.inp CONTRL.MAXIT -o shorter.inp
  gms-inp unset water.inp GUESS VEC > fresh.inp)";

struct Options {
    EditTarget target;
    std::vector<std::string> paths;
};

bool is_present(const gamess::InputEditor& editor, const KeywordPath& path) {
    return path.key.empty() ? editor.has_section(path.group)
                            : editor.has_keyword(path.group, path.key);
}

/// Names everything that is not there. @return whether all is there
bool complain_of_missing(const Deck& deck, const gamess::InputEditor& editor,
                         const std::vector<KeywordPath>& paths) {
    bool complete = true;
    for (const KeywordPath& path : paths) {
        if (is_present(editor, path)) continue;
        const std::string message = text_of(path) + " is not in the deck";
        complain({.place = deck.name, .weight = Weight::Error, .message = message});
        complete = false;
    }
    return complete;
}

void remove(const KeywordPath& path, gamess::InputEditor& editor) {
    if (path.key.empty()) {
        editor.remove_section(path.group);
    } else {
        // Values that the record could not hold survive the first removal.
        while (editor.remove_keyword(path.group, path.key)) continue;
    }
}

ExitCode run(const Options& options) {
    std::vector<KeywordPath> paths;
    for (const std::string& text : options.paths) paths.push_back(parse_path(text));
    refuse_to_overwrite_input(options.target);
    const Deck deck = read_deck(options.target.file);
    gamess::InputEditor editor{deck.result.input};
    if (!complain_of_missing(deck, editor, paths)) return ExitCode::Findings;
    std::set<std::string> groups;
    for (const KeywordPath& path : paths) {
        if (!path.key.empty()) groups.insert(path.group);
        remove(path, editor);
    }
    for (const std::string& group : groups) warn_of_copies(deck, group);
    write_edited(deck, editor.input(), options.target);
    return ExitCode::Fine;
}

}  // namespace

Runner attach_unset(CLI::App& app) {
    const auto options = std::make_shared<Options>();
    app.add_option("FILE", options->target.file, "The deck, or - for standard input")->required();
    app.add_option("PATH", options->paths, "GROUP or GROUP.KEY, in any case")->required();
    app.add_option("-o,--output", options->target.output, "File to write, or - for standard output")
        ->type_name("FILE");
    app.footer(footer);
    return [options] { return run(*options); };
}

}  // namespace gms_inp
