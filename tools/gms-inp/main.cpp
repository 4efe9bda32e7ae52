// Only dispatches: each subcommand is a row of the table and a file under commands/.
#include <array>
#include <cstdio>
#include <exception>
#include <sstream>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include <CLI/CLI.hpp>

#include "command.hpp"
#include "diagnostics.hpp"
#include "environment.hpp"
#include "exit_code.hpp"
#include "output.hpp"
#include "rule_names.hpp"
#include "terminal.hpp"

namespace gms_inp {

namespace {

constexpr auto commands = std::to_array<Command>({
    {"check", "Check decks, report findings and fix them", attach_check},
    {"explain", "Explain the rules of check", attach_explain},
    {"list", "List the groups of a deck", attach_list},
    {"get", "Print groups or values of keywords", attach_get},
    {"set", "Set keywords", attach_set},
    {"unset", "Remove keywords or groups", attach_unset},
    {"diff", "Compare what two decks ask for", attach_diff},
    {"extract", "Take groups out of a deck or punched file", attach_extract},
    {"splice", "Put groups of another file into a deck", attach_splice},
    {"format", "Fold long lines, or lay decks out anew", attach_format},
    {"new", "Build a deck from an XYZ file", attach_new},
    {"show", "Print everything that was read from a deck", attach_show},
    {"schema", "Print what is known about groups and keywords", attach_schema},
});

constexpr const char* examples = R"(Examples:
  gms-inp check *.inp
  gms-inp set water.inp CONTRL.RUNTYP=OPTIMIZE -o water_opt.inp
  gms-inp set -i *.inp SYSTEM.MWORDS=500
  gms-inp set water.inp SCF.DIRSCF=.T. | gms-inp check -

FILE may be - for standard input.

)";

/// Refuses a command line whose first word is no command.
void require_command(const CLI::App& app) {
    const std::vector<std::string> words = app.remaining();
    if (!app.get_subcommands().empty() || words.empty() || words[0].starts_with('-')) return;
    std::vector<std::string_view> names;
    for (const Command& command : commands) names.emplace_back(command.name);
    const std::string_view hint = nearest(words[0], names);
    throw std::runtime_error("there is no command '" + words[0] +
                             (hint.empty() ? "'; 'gms-inp --help' lists them"
                                           : "'; did you mean '" + std::string{hint} + "'?"));
}

/// Tells the outcome of parsing that ended the program: help, version or wrong usage.
ExitCode report(const CLI::App& app, const CLI::ParseError& outcome) {
    require_command(app);
    std::ostringstream out;
    std::ostringstream err;
    const int status = app.exit(outcome, out, err);
    print(out.str());
    const std::string message = escape_controls(err.str(), Keep::LineEnds);
    static_cast<void>(std::fwrite(message.data(), 1, message.size(), stderr));
    return status == 0 ? ExitCode::Fine : ExitCode::Trouble;
}

ExitCode run(int argc, const char* const* argv) {
    CLI::App app{"Reads, checks, edits and writes input decks of the GAMESS program", "gms-inp"};
    std::string schema;
    Runner chosen;
    app.set_version_flag("--version", std::string{"gms-inp "} + GMS_INP_VERSION);
    const CLI::Option* const schema_option =
        app.add_option("--schema", schema, "Schema file to use")->type_name("PATH");
    app.require_subcommand(1);
    app.footer(examples + exit_code_help());
    for (const Command& command : commands) {
        CLI::App* const subcommand = app.add_subcommand(command.name, command.summary);
        subcommand->fallthrough();
        subcommand->final_callback(
            [&chosen, runner = command.attach(*subcommand)] { chosen = runner; });
    }
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& outcome) {
        return report(app, outcome);
    }
    if (schema_option->count() > 0) use_schema_file(schema);
    return chosen();
}

/// Runs the program and makes sure that all of its output arrived.
ExitCode run_to_the_end(int argc, const char* const* argv) {
    const ExitCode code = run(argc, argv);
    finish_output();
    return code;
}

}  // namespace

}  // namespace gms_inp

int main(int argc, char** argv) {
    using gms_inp::ExitCode;
    try {
        return gms_inp::status_of(gms_inp::run_to_the_end(argc, argv));
    } catch (const std::exception& error) {
        gms_inp::complain(
            {.place = "gms-inp", .weight = gms_inp::Weight::Error, .message = error.what()});
    }
    return gms_inp::status_of(ExitCode::Trouble);
}
