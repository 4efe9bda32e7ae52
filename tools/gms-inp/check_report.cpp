#include "check_report.hpp"

#include <algorithm>
#include <array>
#include <cstdio>
#include <stdexcept>
#include <string_view>

#include "ascii.hpp"
#include "diagnostics.hpp"
#include "excerpt.hpp"
#include "finding_json.hpp"
#include "finding_text.hpp"
#include "line_table.hpp"
#include "output.hpp"
#include "terminal.hpp"

namespace gms_inp {

namespace source = nurl::input::gamess::source;
using Json = nlohmann::ordered_json;

namespace {

constexpr auto format_names = std::to_array<std::string_view>({"TEXT", "JSON", "SARIF"});

std::string excerpt_of(const source::Finding& finding, const LineTable& lines) {
    return excerpt({.line = lines.line(finding.position.line),
                    .number = finding.position.line,
                    .column = finding.position.column,
                    .length = finding.span.size()});
}

void print_text(const DeckReport& report) {
    const Colour colour = wants_colour(stdout) ? Colour::On : Colour::Off;
    const std::string name = shown_name(report.path);
    for (const source::Finding& finding : report.fixed)
        print(line_of(name, Weight::Fixed, finding, colour));
    if (report.remains.empty()) return;
    const bool shows_lines = is_terminal(stdout);
    const LineTable lines{shows_lines ? std::string_view{report.deck.text()} : std::string_view{}};
    for (const source::Finding& finding : report.remains) {
        print(line_of(name, weight_of(finding.severity), finding, colour));
        if (shows_lines) print(excerpt_of(finding, lines));
    }
}

}  // namespace

ReportFormat format_named(const std::string& name) {
    const auto* const hit = std::ranges::find(format_names, to_upper(trim(name)));
    if (hit == format_names.end())
        throw std::runtime_error("expected text, json or sarif, not '" + name + "'");
    return static_cast<ReportFormat>(hit - format_names.begin());
}

void CheckReport::add(const DeckReport& report) {
    if (format_ == ReportFormat::Text) {
        if (!quiet_) print_text(report);
        return;
    }
    const LineTable lines{report.deck.text()};
    if (format_ == ReportFormat::Sarif) {
        log_.add(report.path, report.remains, lines);
        return;
    }
    Json fixed = Json::array();
    for (const source::Finding& finding : report.fixed)
        fixed.push_back({{"rule", finding.rule},
                         {"line", finding.position.line},
                         {"column", finding.position.column},
                         {"message", finding.message}});
    files_.push_back({{"file", shown_name(report.path)},
                      {"error", nullptr},
                      {"findings", json_of(report.remains, lines)},
                      {"fixed", fixed}});
}

void CheckReport::add_failure(const std::string& path, const std::string& message) {
    if (format_ == ReportFormat::Sarif) log_.add_failure(message);
    if (format_ != ReportFormat::Json) return;
    files_.push_back({{"file", shown_name(path)},
                      {"error", message},
                      {"findings", Json::array()},
                      {"fixed", Json::array()}});
}

void CheckReport::finish(const CheckTally& tally) const {
    if (format_ == ReportFormat::Text) print(text_of(tally));
    if (format_ == ReportFormat::Json) print_json({{"files", files_}, {"summary", json_of(tally)}});
    if (format_ == ReportFormat::Sarif) print_json(log_.json());
}

}  // namespace gms_inp
