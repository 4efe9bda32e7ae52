#include "check_tally.hpp"

#include <utility>

#include <nlohmann/json.hpp>

namespace gms_inp {

namespace {

using nurl::input::gamess::validation::Severity;

std::string counted(std::size_t number, const std::string& word) {
    return std::to_string(number) + ' ' + word + (number == 1 ? "" : "s");
}

}  // namespace

void CheckTally::add(std::span<const nurl::input::gamess::source::Finding> findings) noexcept {
    for (const auto& finding : findings) {
        if (finding.severity == Severity::Error) ++errors;
        if (finding.severity == Severity::Warning) ++warnings;
        if (finding.severity == Severity::Info) ++notes;
    }
}

ExitCode CheckTally::exit_code() const noexcept {
    if (unreadable + unwritten > 0) return ExitCode::Trouble;
    return errors + warnings > 0 ? ExitCode::Findings : ExitCode::Fine;
}

std::string text_of(const CheckTally& tally) {
    std::string line = counted(tally.files, "file");
    std::string separator = ": ";
    const auto append = [&](const std::string& part) {
        line += std::exchange(separator, ", ") + part;
    };
    if (tally.errors > 0) append(counted(tally.errors, "error"));
    if (tally.warnings > 0) append(counted(tally.warnings, "warning"));
    if (tally.notes > 0) append(counted(tally.notes, "note"));
    const bool checked_some = tally.files > tally.unreadable;
    if (checked_some && tally.errors + tally.warnings + tally.notes == 0) append("no findings");
    if (tally.fixed > 0) append(std::to_string(tally.fixed) + " fixed");
    if (tally.unreadable > 0) append(std::to_string(tally.unreadable) + " unreadable");
    if (tally.unwritten > 0) append(std::to_string(tally.unwritten) + " not written");
    return line + '\n';
}

nlohmann::ordered_json json_of(const CheckTally& tally) {
    return {{"files", tally.files},        {"errors", tally.errors},
            {"warnings", tally.warnings},  {"notes", tally.notes},
            {"fixed", tally.fixed},        {"unreadable", tally.unreadable},
            {"unwritten", tally.unwritten}};
}

}  // namespace gms_inp
