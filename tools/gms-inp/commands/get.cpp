#include <algorithm>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include <CLI/CLI.hpp>

#include "command.hpp"
#include "deck_source.hpp"
#include "diagnostics.hpp"
#include "file_arguments.hpp"
#include "group_copies.hpp"
#include "keyword_path.hpp"
#include "output.hpp"
#include "terminal.hpp"

namespace gms_inp {

namespace {

namespace source = nurl::input::gamess::source;

constexpr const char* footer =
    R"(PATH is the last argument: GROUP.KEY prints the value that counts, which is the last
one over all copies of the group; GROUP prints the group as it is written, with all
its copies; GROUP#2 and GROUP#last print one copy. Of several decks, each value stands
behind the name of its deck, and each group below a line with that name. Only groups
that GAMESS sees are looked at. What is not there gives exit status 1.

Examples:
  gms-inp get water.inp CONTRL.SCFTYP
  gms-inp get *.inp CONTRL.SCFTYP
  gms-inp get water.inp '$basis'
  gms-inp get job.dat 'VEC#last'
  gms-inp get - DATA < water.inp)";

/// What is asked of each deck: a keyword or a group.
struct Question {
    std::optional<KeywordPath> keyword;
    GroupPath group;
    bool names_decks = false;  ///< answers carry the name of their deck
};

Question read_question(const std::string& path) {
    Question question;
    if (path.find('.') == std::string::npos) {
        question.group = parse_group_path(path);
    } else {
        question.keyword = parse_path(path);
    }
    return question;
}

ExitCode tell_absence(const TextDeck& deck, const std::string& sentence) {
    complain({.place = deck.name, .weight = Weight::Error, .message = sentence});
    return ExitCode::Findings;
}

ExitCode print_value(const TextDeck& deck, const Question& question) {
    const KeywordPath& path = *question.keyword;
    const std::optional<std::string> value = deck.content.get_keyword(path.group, path.key);
    if (!value) return tell_absence(deck, absence_of(deck.content, path));
    if (question.names_decks) print(escape_controls(deck.name, Keep::Nothing) + ": ");
    print_deck_text(*value + '\n');
    return ExitCode::Fine;
}

ExitCode print_group(const TextDeck& deck, const Question& question) {
    const std::vector<source::Group> copies = find_copies(deck.content, question.group);
    if (copies.empty()) return tell_absence(deck, absence_of(deck.content, question.group));
    if (question.names_decks) print("==> " + escape_controls(deck.name, Keep::Nothing) + " <==\n");
    for (const source::Group& group : copies) {
        print_deck_text(written_text(deck.content, group));
        print_deck_text(line_end_behind(deck.content, group));
    }
    return ExitCode::Fine;
}

ExitCode answer(const std::string& file, const Question& question) {
    try {
        const TextDeck deck = read_deck(file);
        return question.keyword ? print_value(deck, question) : print_group(deck, question);
    } catch (const std::runtime_error& error) {
        complain({.place = "gms-inp", .weight = Weight::Error, .message = error.what()});
        return ExitCode::Trouble;
    }
}

ExitCode run(const std::vector<std::string>& words) {
    const SplitArguments arguments = split_off_last(words);
    Question question = read_question(arguments.rest.front());
    question.names_decks = arguments.files.size() > 1;
    ExitCode worst = ExitCode::Fine;
    for (const std::string& file : arguments.files) worst = std::max(worst, answer(file, question));
    return worst;
}

}  // namespace

Runner attach_get(CLI::App& app) {
    const auto words = std::make_shared<std::vector<std::string>>();
    add_words(app, *words,
              {{"FILE...", "Decks, or - for standard input"},
               {"PATH", "GROUP, GROUP#n, GROUP#last or GROUP.KEY, in any case"}});
    app.footer(footer);
    return [words] { return run(*words); };
}

}  // namespace gms_inp
