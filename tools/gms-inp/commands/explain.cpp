#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include <CLI/CLI.hpp>

#include "ascii.hpp"
#include "command.hpp"
#include "diagnostics.hpp"
#include "finding_text.hpp"
#include "output.hpp"
#include "rule_names.hpp"
#include "text_table.hpp"

namespace gms_inp {

namespace {

namespace source = nurl::input::gamess::source;

constexpr const char* footer =
    R"(Without an argument, all rules of 'gms-inp check' are listed.

Examples:
  gms-inp explain
  gms-inp explain missing-end)";

constexpr std::size_t page_width = 80;

/// Fills lines of a page with the words of `text`.
std::string filled(std::string_view text) {
    std::string page;
    std::size_t column = 0;
    for (const std::string_view word : words_of(text)) {
        const bool fits = column + 1 + word.size() <= page_width;
        if (column > 0) page += fits ? ' ' : '\n';
        column = fits && column > 0 ? column + 1 + word.size() : word.size();
        page += word;
    }
    return page + '\n';
}

std::string table_of_rules() {
    std::vector<Row> rows;
    for (const source::Rule& rule : source::rules())
        rows.push_back({std::string{rule.name}, std::string{text_of(weight_of(rule.severity))},
                        std::string{rule.summary}});
    return format_table(std::vector<Column>{{"rule"}, {"severity"}, {"finds"}}, rows);
}

std::string page_of(const source::Rule& rule) {
    std::string page{rule.name};
    page += " (";
    page += text_of(weight_of(rule.severity));
    page += "): ";
    page += rule.summary;
    return page + "\n\n" + filled(rule.explanation);
}

ExitCode run(const std::string& name) {
    print(name.empty() ? table_of_rules() : page_of(rule_named(name)));
    return ExitCode::Fine;
}

}  // namespace

Runner attach_explain(CLI::App& app) {
    const auto name = std::make_shared<std::string>();
    app.add_option("RULE", *name, "Name of a rule, as in brackets behind a finding");
    app.footer(footer);
    return [name] { return run(*name); };
}

}  // namespace gms_inp
