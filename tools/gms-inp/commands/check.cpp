#include <algorithm>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <CLI/CLI.hpp>

#include "check_report.hpp"
#include "check_tally.hpp"
#include "command.hpp"
#include "deck_output.hpp"
#include "deck_source.hpp"
#include "diagnostics.hpp"
#include "fixes.hpp"
#include "progress.hpp"
#include "rule_names.hpp"
#include "schema_view.hpp"

namespace gms_inp {

namespace {

namespace source = nurl::input::gamess::source;

constexpr const char* footer =
    R"(Findings are errors (GAMESS would stop, or compute something else than what is
written), warnings, and info (worth a look). Info alone does not change the exit
status: it is 1 when there is any error or warning, 2 when a file is no readable
deck. 'gms-inp explain' lists the rules that find them. --fix mends what has one safe
remedy, in the file itself, and reports what remains.

The JSON holds a list "files" of objects with file, error, findings and fixed, and an
object "summary" of counts. A finding has rule, severity, line, column, end_line,
end_column (behind its last byte), offset, length, message, hint and fixable; what
--fix mended has rule, line, column and message. Lines and columns count from 1,
columns and lengths in bytes.

Examples:
  gms-inp check water.inp
  gms-inp check --quiet decks/*.inp
  gms-inp check --fix *.inp
  gms-inp check --disable unknown-group,unknown-keyword --json water.inp
  gms-inp check --format sarif *.inp > findings.sarif
  cat water.inp | gms-inp check -)";

struct Options {
    std::vector<std::string> files;
    std::vector<std::string> disabled;
    std::string format = "text";
    bool json = false;
    bool quiet = false;
    bool fix = false;
};

/// One run over all decks.
class Check {
public:
    Check(const Options& options, ReportFormat format)
        : options_{options}, report_{format, options.quiet}, progress_{options.files.size()} {
        for (const std::string& name : options.disabled)
            rules_.disabled.emplace_back(rule_named(name).name);
    }

    ExitCode run() {
        for (const std::string& file : options_.files) check_file(file);
        progress_.clear();
        report_.finish(tally_);
        return tally_.exit_code();
    }

private:
    void check_file(const std::string& file) {
        ++tally_.files;
        progress_.step(shown_name(file));
        std::optional<source::Deck> deck = read(file);
        if (!deck) return;
        std::vector<source::Finding> fixed;
        std::vector<source::Finding> remains = source::check(*deck, rules_);
        if (options_.fix && has_fix(remains)) {
            FixedDeck mended = fix_deck(*deck, rules_);
            if (write(file, mended.deck)) {
                deck = std::move(mended.deck);
                fixed = std::move(mended.fixed);
                remains = std::move(mended.remains);
            }
        }
        tally_.fixed += fixed.size();
        tally_.add(remains);
        if (!fixed.empty() || !remains.empty()) progress_.clear();
        report_.add({.path = file, .deck = *deck, .fixed = fixed, .remains = remains});
    }

    static bool has_fix(const std::vector<source::Finding>& findings) {
        return std::ranges::any_of(
            findings, [](const source::Finding& finding) { return !finding.fix.empty(); });
    }

    std::optional<source::Deck> read(const std::string& file) {
        try {
            if (options_.fix) require_editable_in_place(file);
            return read_deck(file).content;
        } catch (const std::runtime_error& error) {
            ++tally_.unreadable;
            tell(error.what());
            report_.add_failure(file, error.what());
            return std::nullopt;
        }
    }

    bool write(const std::string& file, const source::Deck& deck) {
        try {
            write_file(file, deck.text());
            return true;
        } catch (const std::runtime_error& error) {
            ++tally_.unwritten;
            tell(error.what());
            return false;
        }
    }

    void tell(std::string_view message) {
        progress_.clear();
        complain({.place = "gms-inp", .weight = Weight::Error, .message = message});
    }

    const Options& options_;
    CheckReport report_;
    Progress progress_;
    CheckTally tally_;
    source::CheckOptions rules_;
};

ExitCode run(const Options& options) {
    const ReportFormat format = options.json ? ReportFormat::Json : format_named(options.format);
    if (options.quiet && format != ReportFormat::Text)
        throw std::runtime_error("--quiet goes with the format text only");
    const bool reads_stdin = std::ranges::find(options.files, "-") != options.files.end();
    if (options.fix && reads_stdin)
        throw std::runtime_error("standard input cannot be fixed in place");
    warn_of_empty_schema();
    return Check{options, format}.run();
}

/// Adds an option that stands for `--disable` and the name of a rule.
void add_switch_off(CLI::App& app, const std::string& name, std::vector<std::string>& disabled,
                    const std::string& rule) {
    app.add_flag_callback(
        name, [&disabled, rule] { disabled.push_back(rule); }, "The same as --disable " + rule);
}

}  // namespace

Runner attach_check(CLI::App& app) {
    const auto options = std::make_shared<Options>();
    app.add_option("FILE", options->files, "Decks, or - for standard input")->required();
    app.add_option("--disable", options->disabled, "Rules that do not run, may be repeated")
        ->type_name("RULE[,RULE]")
        ->delimiter(',')
        ->allow_extra_args(false);
    add_switch_off(app, "--no-unknown-sections", options->disabled, "unknown-group");
    add_switch_off(app, "--no-unknown-keywords", options->disabled, "unknown-keyword");
    add_switch_off(app, "--no-raw-text", options->disabled, "stray-text");
    app.add_flag("--fix", options->fix, "Mend what has one safe remedy, in the file itself");
    app.add_flag("-q,--quiet", options->quiet, "Print the summary only");
    CLI::Option* const format =
        app.add_option("--format", options->format, "How to print: text, json or sarif")
            ->type_name("FORMAT");
    app.add_flag("--json", options->json, "The same as --format json")->excludes(format);
    app.footer(footer);
    return [options] { return run(*options); };
}

}  // namespace gms_inp
