#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include <CLI/CLI.hpp>
#include <nlohmann/json.hpp>

#include "command.hpp"
#include "deck_source.hpp"
#include "diagnostics.hpp"
#include "finding_json.hpp"
#include "findings.hpp"
#include "output.hpp"
#include "progress.hpp"
#include "terminal.hpp"

namespace gms_inp {

namespace {

using Json = nlohmann::ordered_json;

constexpr const char* footer =
    R"(Findings are errors (free text in a structured group), warnings (what reading had
to tolerate, and keywords that the schema does not describe) and info (groups that
the schema does not describe). Info alone does not change the exit status: it is
1 when there is any error or warning, 2 when a file is no readable deck.
A finding is shown once for each deck, with its first line and the number of places.

Examples:
  gms-inp check water.inp
  gms-inp check --quiet decks/*.inp
  gms-inp check --no-unknown-sections --json water.inp
  cat water.inp | gms-inp check -)";

struct Options {
    std::vector<std::string> files;
    nurl::input::gamess::validation::Options validation;
    bool quiet = false;
    bool json = false;
};

/// What has been found in all files so far.
struct Tally {
    std::size_t files = 0;
    std::size_t errors = 0;
    std::size_t warnings = 0;
    std::size_t notes = 0;
    std::size_t unreadable = 0;
};

void count(const std::vector<Finding>& findings, Tally& tally) {
    for (const Finding& finding : findings) {
        if (finding.weight == Weight::Error) ++tally.errors;
        if (finding.weight == Weight::Warning) ++tally.warnings;
        if (finding.weight == Weight::Info) ++tally.notes;
    }
}

std::string counted(std::size_t number, const std::string& word) {
    return std::to_string(number) + ' ' + word + (number == 1 ? "" : "s");
}

std::string summary_line(const Tally& tally) {
    std::string line = counted(tally.files, "file");
    std::string separator = ": ";
    const auto append = [&](const std::string& part) {
        line += std::exchange(separator, ", ") + part;
    };
    if (tally.errors > 0) append(counted(tally.errors, "error"));
    if (tally.warnings > 0) append(counted(tally.warnings, "warning"));
    if (tally.notes > 0) append(counted(tally.notes, "note"));
    if (tally.errors + tally.warnings + tally.notes == 0) append("no findings");
    if (tally.unreadable > 0) append(std::to_string(tally.unreadable) + " unreadable");
    return line + '\n';
}

Json summary_json(const Tally& tally) {
    return {{"files", tally.files},
            {"errors", tally.errors},
            {"warnings", tally.warnings},
            {"notes", tally.notes},
            {"unreadable", tally.unreadable}};
}

void print_findings(const std::string& name, const std::vector<Finding>& findings) {
    const Colour colour = wants_colour(stdout) ? Colour::On : Colour::Off;
    for (const Finding& finding : findings) {
        std::string message = finding.message;
        if (finding.count > 1) message += " (" + std::to_string(finding.count) + " places)";
        print(format(
            {.place = name, .line = finding.line, .weight = finding.weight, .message = message},
            colour));
    }
}

/// One run over all files.
class Check {
public:
    explicit Check(const Options& options) : options_{options}, progress_{options.files.size()} {}

    ExitCode run() {
        for (const std::string& file : options_.files) check_file(file);
        progress_.clear();
        if (options_.json) {
            print_json({{"files", reports_}, {"summary", summary_json(tally_)}});
        } else {
            print(summary_line(tally_));
        }
        if (tally_.unreadable > 0) return ExitCode::Trouble;
        return tally_.errors + tally_.warnings > 0 ? ExitCode::Findings : ExitCode::Fine;
    }

private:
    void check_file(const std::string& file) {
        ++tally_.files;
        progress_.step(shown_name(file));
        const std::optional<Deck> deck = read(file);
        if (!deck) return;
        const std::vector<Finding> findings = collect_findings(*deck, options_.validation);
        count(findings, tally_);
        if (options_.json) {
            reports_.push_back(
                {{"file", deck->name}, {"error", nullptr}, {"findings", json_of(findings)}});
        } else if (!options_.quiet && !findings.empty()) {
            progress_.clear();
            print_findings(deck->name, findings);
        }
    }

    std::optional<Deck> read(const std::string& file) {
        try {
            return read_deck(file);
        } catch (const std::runtime_error& error) {
            ++tally_.unreadable;
            progress_.clear();
            complain({.place = "gms-inp", .weight = Weight::Error, .message = error.what()});
            reports_.push_back(
                {{"file", shown_name(file)}, {"error", error.what()}, {"findings", Json::array()}});
            return std::nullopt;
        }
    }

    const Options& options_;
    Progress progress_;
    Tally tally_;
    Json reports_ = Json::array();
};

/// Adds an option that turns `target` off.
void add_switch_off(CLI::App& app, const std::string& name, bool& target,
                    const std::string& description) {
    app.add_flag_callback(
        name, [&target] { target = false; }, description);
}

}  // namespace

Runner attach_check(CLI::App& app) {
    const auto options = std::make_shared<Options>();
    nurl::input::gamess::validation::Options& validation = options->validation;
    app.add_option("FILE", options->files, "Decks, or - for standard input")->required();
    add_switch_off(app, "--no-unknown-sections", validation.report_unknown_sections,
                   "Do not report groups that the schema does not describe");
    add_switch_off(app, "--no-unknown-keywords", validation.report_unknown_keywords,
                   "Do not report keywords that the schema does not describe");
    add_switch_off(app, "--no-raw-text", validation.report_raw_text_in_structured,
                   "Do not report free text in structured groups");
    CLI::Option* const quiet = app.add_flag("-q,--quiet", options->quiet, "Print the summary only");
    app.add_flag("--json", options->json, "Print JSON")->excludes(quiet);
    app.footer(footer);
    return [options] { return Check{*options}.run(); };
}

}  // namespace gms_inp
