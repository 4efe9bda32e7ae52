#include <algorithm>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include <CLI/CLI.hpp>

#include "command.hpp"
#include "deck_source.hpp"
#include "edited_deck.hpp"
#include "keyword_path.hpp"
#include "nurl/input/gamess/editor.hpp"

namespace gms_inp {

namespace {

namespace gamess = nurl::input::gamess;

constexpr const char* footer =
    R"(Groups and keywords that are missing are added. The deck is written in canonical
layout; what that leaves out or moves is told on standard error. The deck itself is
never overwritten.

Examples:
  gms-inp set water.inp CONTRL.RUNTYP=OPTIMIZE -o water_opt.inp
  gms-inp set water.inp CONTRL.ICHARG=1 CONTRL.MULT=2 > cation.inp
  gms-inp set - 'dft.method=grid' < water.inp)";

struct Options {
    EditTarget target;
    std::vector<std::string> assignments;
};

/// How often a keyword stands in the first group of its name.
std::size_t count_of(const gamess::InputEditor& editor, const KeywordPath& path) {
    const gamess::NamedSection* const section = editor.input().find_section(path.group);
    const auto has_key = [&](const gamess::KeyValue& entry) { return entry.key == path.key; };
    const auto listed = std::ranges::count_if(editor.list_keywords(path.group), has_key);
    const auto stored = section == nullptr ? 0 : std::ranges::count_if(section->entries, has_key);
    return static_cast<std::size_t>(std::max(listed, stored));
}

/// Sets one keyword. Of a keyword that is given several times GAMESS takes the last value, so all
/// of them have to go.
void apply(const Assignment& assignment, gamess::InputEditor& editor) {
    const auto& [path, value] = assignment;
    if (count_of(editor, path) > 1) {
        while (editor.remove_keyword(path.group, path.key)) continue;
    }
    editor.set_keyword(path.group, path.key, value);
}

ExitCode run(const Options& options) {
    std::vector<Assignment> assignments;
    for (const std::string& text : options.assignments) {
        assignments.push_back(parse_assignment(text));
    }
    refuse_to_overwrite_input(options.target);
    const Deck deck = read_deck(options.target.file);
    gamess::InputEditor editor{deck.result.input};
    std::set<std::string> groups;
    for (const Assignment& assignment : assignments) {
        groups.insert(assignment.path.group);
        apply(assignment, editor);
    }
    for (const std::string& group : groups) warn_of_copies(deck, group);
    check_that_values_read_back(assignments, editor.input());
    write_edited(deck, editor.input(), options.target);
    return ExitCode::Fine;
}

}  // namespace

Runner attach_set(CLI::App& app) {
    const auto options = std::make_shared<Options>();
    app.add_option("FILE", options->target.file, "The deck, or - for standard input")->required();
    app.add_option("ASSIGNMENT", options->assignments, "GROUP.KEY=VALUE, names in any case")
        ->required();
    app.add_option("-o,--output", options->target.output, "File to write, or - for standard output")
        ->type_name("FILE");
    app.footer(footer);
    return [options] { return run(*options); };
}

}  // namespace gms_inp
