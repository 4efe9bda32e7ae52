#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include <CLI/CLI.hpp>
#include <nlohmann/json.hpp>

#include "command.hpp"
#include "deck_source.hpp"
#include "difference_text.hpp"
#include "nurl/input/gamess/source/compare.hpp"
#include "output.hpp"

namespace gms_inp {

namespace {

namespace source = nurl::input::gamess::source;

constexpr const char* footer =
    R"(Compares two decks as GAMESS reads them: keywords by the value that counts, numbers
by what they stand for, lists wherever their lines break, $DATA atom by atom. The
order of groups and keywords, letter case, blanks and comments do not count. Exit
status 0 means the same calculation, 1 a different one.

The JSON holds the names "a" and "b" and a list "differences" of objects with kind
(group, keyword or line), group, occurrence, key, before, after, before_line,
before_column, after_line and after_column, which are null on a side that lacks it.

Examples:
  gms-inp diff water.inp water_opt.inp
  gms-inp diff --json old.inp new.inp
  gms-inp set water.inp SCF.DIRSCF=.T. | gms-inp diff water.inp -)";

struct Options {
    std::string a;
    std::string b;
    bool json = false;
};

ExitCode run(const Options& options) {
    if (options.a == "-" && options.b == "-")
        throw std::runtime_error("the decks cannot both be standard input");
    const TextDeck a = read_deck(options.a);
    const TextDeck b = read_deck(options.b);
    const std::vector<source::Difference> differences = source::compare(a.content, b.content);
    if (options.json) {
        print_json(json_of(differences, {a.name, b.name}));
    } else {
        for (const source::Difference& difference : differences)
            print(text_of(difference, {a.name, b.name}));
    }
    return differences.empty() ? ExitCode::Fine : ExitCode::Findings;
}

}  // namespace

Runner attach_diff(CLI::App& app) {
    const auto options = std::make_shared<Options>();
    app.add_option("A", options->a, "A deck, or - for standard input")->required();
    app.add_option("B", options->b, "Another deck, or - for standard input")->required();
    app.add_flag("--json", options->json, "Print JSON");
    app.footer(footer);
    return [options] { return run(*options); };
}

}  // namespace gms_inp
