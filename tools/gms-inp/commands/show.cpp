#include <memory>
#include <string>

#include <CLI/CLI.hpp>
#include <nlohmann/json.hpp>

#include "command.hpp"
#include "deck_source.hpp"
#include "model_json.hpp"
#include "output.hpp"

namespace gms_inp {

namespace {

constexpr const char* footer =
    R"(Every member of the document is shown, absent ones as null. Without --json, each
value has a line of its own.

Examples:
  gms-inp show water.inp
  gms-inp show --json water.inp
  gms-inp show water.inp | grep '^atoms')";

struct Options {
    std::string file;
    bool json = false;
};

ExitCode run(const Options& options) {
    const nlohmann::ordered_json json = json_of(read_deck(options.file).result.input);
    if (options.json) {
        print_json(json);
    } else {
        print(flatten(json));
    }
    return ExitCode::Fine;
}

}  // namespace

Runner attach_show(CLI::App& app) {
    const auto options = std::make_shared<Options>();
    app.add_option("FILE", options->file, "The deck, or - for standard input")->required();
    app.add_flag("--json", options->json, "Print JSON");
    app.footer(footer);
    return [options] { return run(*options); };
}

}  // namespace gms_inp
