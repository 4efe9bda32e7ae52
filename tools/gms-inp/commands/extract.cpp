#include <memory>
#include <optional>
#include <string>
#include <vector>

#include <CLI/CLI.hpp>

#include "chosen_group.hpp"
#include "command.hpp"
#include "deck_output.hpp"
#include "deck_source.hpp"
#include "diagnostics.hpp"
#include "group_copies.hpp"
#include "keyword_path.hpp"

namespace gms_inp {

namespace {

namespace source = nurl::input::gamess::source;

constexpr const char* footer =
    R"(Writes groups as they stand in a deck or a punched file, from header to $END. Of a
group that is there several times the last copy is taken, which in a punched file
is the newest, and standard error says so; GROUP#n and GROUP#last choose without a
word. When a group is not there, nothing is written and the exit status is 1.

Examples:
  gms-inp extract job.dat VEC -o orbitals.txt
  gms-inp extract job.dat 'VEC#1' HESS > restart.txt)";

struct Options {
    std::string file;
    std::vector<std::string> groups;
    std::string output = "-";
};

ExitCode run(const Options& options) {
    std::vector<GroupPath> paths;
    for (const std::string& text : options.groups) paths.push_back(parse_group_path(text));
    refuse_same_file(options.file, options.output);
    const TextDeck deck = read_deck(options.file);
    std::string text;
    for (const GroupPath& path : paths) {
        const std::optional<source::Group> group = choose_group(deck, path);
        if (!group) return ExitCode::Findings;
        text += written_text(deck.content, *group);
        text += line_end_behind(deck.content, *group);
    }
    write_output(options.output, text);
    return ExitCode::Fine;
}

}  // namespace

Runner attach_extract(CLI::App& app) {
    const auto options = std::make_shared<Options>();
    app.add_option("FILE", options->file, "A deck or punched file, or - for standard input")
        ->required();
    app.add_option("GROUP", options->groups, "GROUP, GROUP#n or GROUP#last, in any case")
        ->required();
    app.add_option("-o,--output", options->output, "File to write, or - for standard output")
        ->type_name("FILE");
    app.footer(footer);
    return [options] { return run(*options); };
}

}  // namespace gms_inp
