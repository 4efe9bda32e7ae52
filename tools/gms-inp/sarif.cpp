#include "sarif.hpp"

#include <string_view>

#include "finding_text.hpp"

namespace gms_inp {

namespace source = nurl::input::gamess::source;
using Json = nlohmann::ordered_json;
using nurl::input::gamess::validation::Severity;

namespace {

constexpr std::string_view schema_uri =
    "https://docs.oasis-open.org/sarif/sarif/v2.1.0/errata01/os/schemas/sarif-schema-2.1.0.json";

std::string_view level_of(Severity severity) noexcept {
    if (severity == Severity::Error) return "error";
    return severity == Severity::Warning ? "warning" : "note";
}

Json region_of(source::Span span, const LineTable& lines) {
    const source::Position begin = lines.at(span.begin);
    const source::Position end = lines.at(span.end);
    return {{"startLine", begin.line},
            {"startColumn", begin.column},
            {"endLine", end.line},
            {"endColumn", end.column}};
}

Json fix_of(const source::Finding& finding, const Json& artifact, const LineTable& lines) {
    Json replacements = Json::array();
    for (const source::Edit& edit : finding.fix) {
        replacements.push_back({{"deletedRegion", region_of(edit.span, lines)},
                                {"insertedContent", {{"text", edit.text}}}});
    }
    const Json change = {{"artifactLocation", artifact}, {"replacements", replacements}};
    return {{"artifactChanges", Json::array({change})}};
}

Json rule_of(const source::Rule& rule) {
    return {{"id", rule.name},
            {"shortDescription", {{"text", rule.summary}}},
            {"fullDescription", {{"text", rule.explanation}}},
            {"defaultConfiguration", {{"level", level_of(rule.severity)}}}};
}

constexpr bool is_unreserved(char c) noexcept {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') ||
           std::string_view{"/-._~"}.find(c) != std::string_view::npos;
}

}  // namespace

void SarifLog::add(const std::string& path, std::span<const source::Finding> findings,
                   const LineTable& lines) {
    const Json artifact = {{"uri", path == "-" ? "stdin" : uri_of(path)}};
    for (const source::Finding& finding : findings) {
        const Json place = {{"artifactLocation", artifact},
                            {"region", region_of(finding.span, lines)}};
        Json result = {{"ruleId", finding.rule},
                       {"level", level_of(finding.severity)},
                       {"message", {{"text", message_of(finding)}}},
                       {"locations", Json::array({Json{{"physicalLocation", place}}})}};
        if (!finding.fix.empty()) result["fixes"] = Json::array({fix_of(finding, artifact, lines)});
        results_.push_back(std::move(result));
    }
}

void SarifLog::add_failure(const std::string& message) {
    failures_.push_back({{"level", "error"}, {"message", {{"text", message}}}});
}

Json SarifLog::json() const {
    Json rules = Json::array();
    for (const source::Rule& rule : source::rules()) rules.push_back(rule_of(rule));
    const Json driver = {{"name", "gms-inp"}, {"version", GMS_INP_VERSION}, {"rules", rules}};
    Json invocation = {{"executionSuccessful", failures_.empty()}};
    if (!failures_.empty()) invocation["toolExecutionNotifications"] = failures_;
    const Json run = {{"tool", {{"driver", driver}}},
                      {"invocations", Json::array({invocation})},
                      {"results", results_}};
    return {{"$schema", schema_uri}, {"version", "2.1.0"}, {"runs", Json::array({run})}};
}

std::string uri_of(const std::string& path) {
    constexpr std::string_view digits = "0123456789ABCDEF";
    std::string uri = path.starts_with('/') ? "file://" : "";
    for (const char c : path) {
        const auto byte = static_cast<unsigned char>(c);
        if (is_unreserved(c))
            uri += c;
        else
            uri.append({'%', digits[byte >> 4U], digits[byte & 0xFU]});
    }
    return uri;
}

}  // namespace gms_inp
