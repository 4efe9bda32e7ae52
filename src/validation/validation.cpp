#include "nurl/input/gamess/validation.hpp"

#include <string>
#include <string_view>

#include "model/structured_groups.hpp"
#include "model/text_view.hpp"
#include "nurl/core/text.hpp"
#include "nurl/input/gamess/schema.hpp"
#include "reader/pair_scanner.hpp"
#include "validation/messages.hpp"

namespace nurl::input::gamess::validation {

namespace {

using core::text::to_upper_copy;

/// Adds a warning when the schema lists no such keyword, whatever its permissions say.
void check_keyword(std::string_view section, std::string_view key, std::vector<Issue>& issues) {
    if (schema::find_entry(section, key) != nullptr) return;
    std::string name = schema::normalize_section_name(section);
    std::string keyword = to_upper_copy(detail::trim_view(key));
    std::string message = unknown_keyword_message(name, keyword);
    issues.push_back({Severity::Warning, std::move(name), std::move(keyword), std::move(message)});
}

void check_keywords(std::string_view section, const std::vector<KeyValue>& entries,
                    std::vector<Issue>& issues) {
    for (const KeyValue& entry : entries) check_keyword(section, entry.key, issues);
}

/// Adds an error for each raw line that is neither blank nor a comment.
void check_raw_text(const NamedSection& section, std::vector<Issue>& issues) {
    const std::string name = schema::normalize_section_name(section.name);
    for (const std::string& line : section.raw_lines) {
        const std::string_view text = detail::trim_view(line);
        if (text.empty() || detail::is_comment(text)) continue;
        issues.push_back({Severity::Error, name, "", raw_text_message(name)});
    }
}

/// Checks the keywords that stand in raw lines.
void check_hidden_keywords(std::string_view section, const std::vector<std::string>& raw_lines,
                           std::vector<Issue>& issues) {
    for (const std::string& line : raw_lines) {
        detail::PairScanner scanner(line);
        while (const auto pair = scanner.next()) check_keyword(section, pair->key, issues);
    }
}

void check_section(const NamedSection& section, const Options& options,
                   std::vector<Issue>& issues) {
    const schema::SectionSpec* const spec = schema::find_section(section.name);
    if (spec == nullptr) {
        if (!options.report_unknown_sections) return;
        std::string name = schema::normalize_section_name(section.name);
        std::string message = unknown_section_message(name);
        issues.push_back({Severity::Info, std::move(name), "", std::move(message)});
        return;
    }
    const std::string_view name = detail::trim_view(section.name);  // once, not for every keyword
    if (options.report_unknown_keywords) check_keywords(name, section.entries, issues);
    if (options.report_raw_text_in_structured &&
        spec->parse_mode == schema::SectionParseMode::Structured)
        check_raw_text(section, issues);
    if (options.report_unknown_keywords && spec->parse_mode != schema::SectionParseMode::Raw)
        check_hidden_keywords(name, section.raw_lines, issues);
}

/// Checks what the structured records could not take into a member.
void check_structured_extras(const GamessInput& input, std::vector<Issue>& issues) {
    for (const std::string_view name : detail::structured_names) {
        if (!detail::structured_present(input, name)) continue;
        detail::visit_structured(
            input, name, [&](const auto* record) { check_keywords(name, record->extra, issues); });
    }
}

}  // namespace

std::vector<Issue> validate(const GamessInput& input, const Options& options) {
    std::vector<Issue> issues;
    if (options.report_unknown_keywords) check_structured_extras(input, issues);
    for (const NamedSection& section : input.sections) check_section(section, options, issues);
    for (const NamedSection& section : input.extra_sections)
        check_section(section, options, issues);
    return issues;
}

std::vector<Issue> validate_section(const NamedSection& section, const Options& options) {
    std::vector<Issue> issues;
    check_section(section, options, issues);
    return issues;
}

}  // namespace nurl::input::gamess::validation
