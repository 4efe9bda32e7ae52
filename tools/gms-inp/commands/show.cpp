#include <memory>
#include <optional>
#include <string>

#include <CLI/CLI.hpp>
#include <nlohmann/json.hpp>

#include "command.hpp"
#include "deck_source.hpp"
#include "diagnostics.hpp"
#include "keyword_path.hpp"
#include "model_json.hpp"
#include "output.hpp"
#include "typed_json.hpp"

namespace gms_inp {

namespace {

namespace gamess = nurl::input::gamess;
using Json = nlohmann::ordered_json;

constexpr const char* footer =
    R"(Every member of the document is shown, absent ones as null. Without --json, each
value has a line of its own.

With --typed, one of the groups CCINP, DFTB, EOMINP, FMO, FORCE, MD, PCM, STATPT,
SURF and TDDFT is shown as the record that the library makes of it.

Examples:
  gms-inp show water.inp
  gms-inp show --json water.inp
  gms-inp show water.inp | grep '^atoms'
  gms-inp show water.inp --typed STATPT --json)";

struct Options {
    std::string file;
    std::string typed;
    bool json = false;
};

ExitCode run(const Options& options) {
    const gamess::GamessInput input = read_model(options.file).result.input;
    std::optional<Json> shown;
    if (options.typed.empty())
        shown = json_of(input);
    else
        shown = typed_json(input, parse_path(options.typed).group);
    if (!shown) {
        complain({.place = shown_name(options.file),
                  .weight = Weight::Error,
                  .message = "no group $" + parse_path(options.typed).group});
        return ExitCode::Findings;
    }
    if (options.json) {
        print_json(*shown);
    } else {
        print(flatten(*shown));
    }
    return ExitCode::Fine;
}

}  // namespace

Runner attach_show(CLI::App& app) {
    const auto options = std::make_shared<Options>();
    app.add_option("FILE", options->file, "The deck, or - for standard input")->required();
    app.add_option("--typed", options->typed, "Show one group as a typed record")
        ->type_name("GROUP");
    app.add_flag("--json", options->json, "Print JSON");
    app.footer(footer);
    return [options] { return run(*options); };
}

}  // namespace gms_inp
