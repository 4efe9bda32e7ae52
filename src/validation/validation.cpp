#include "nurl/input/gamess/validation.hpp"

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "model/structured_groups.hpp"
#include "model/text_view.hpp"
#include "nurl/core/text.hpp"
#include "nurl/input/gamess/schema.hpp"
#include "reader/pair_scanner.hpp"
#include "validation/messages.hpp"

namespace nurl::input::gamess::validation {

namespace {

using core::text::to_upper_copy;

/// The most issues that a group can have, each of one of its keywords or raw lines; more only when
/// there are keywords in its raw lines.
std::size_t most_issues(const NamedSection& section) noexcept {
    return 1 + section.entries.size() + section.raw_lines.size();
}

/// Issues found so far. Each is large beside what it is about, so room is made once.
class Issues {
public:
    /// @param most  about how many there can be
    explicit Issues(std::size_t most) noexcept : most_(most) {}

    void add(Issue issue) {
        if (issues_.empty()) issues_.reserve(most_);
        issues_.push_back(std::move(issue));
    }

    [[nodiscard]] std::vector<Issue> take() && { return std::move(issues_); }

private:
    std::size_t most_;
    std::vector<Issue> issues_;
};

/// Adds a warning when the schema lists no such keyword, whatever its permissions say.
void check_keyword(std::string_view section, std::string_view key, Issues& issues) {
    if (schema::find_entry(section, key) != nullptr) return;
    std::string name = schema::normalize_section_name(section);
    std::string keyword = to_upper_copy(detail::trim_view(key));
    std::string message = unknown_keyword_message(name, keyword);
    issues.add({Severity::Warning, std::move(name), std::move(keyword), std::move(message)});
}

void check_keywords(std::string_view section, const std::vector<KeyValue>& entries,
                    Issues& issues) {
    for (const KeyValue& entry : entries) check_keyword(section, entry.key, issues);
}

/// Adds an error for each raw line that is neither blank nor a comment.
void check_raw_text(const std::string& name, const std::vector<std::string>& raw_lines,
                    Issues& issues) {
    for (const std::string& line : raw_lines) {
        const std::string_view text = detail::trim_view(line);
        if (text.empty() || detail::is_comment(text)) continue;
        issues.add({Severity::Error, name, "", raw_text_message(name)});
    }
}

/// Checks the keywords that stand in raw lines.
void check_hidden_keywords(std::string_view section, const std::vector<std::string>& raw_lines,
                           Issues& issues) {
    for (const std::string& line : raw_lines) {
        detail::PairScanner scanner(line);
        while (const auto pair = scanner.next()) check_keyword(section, pair->key, issues);
    }
}

void check_section(const NamedSection& section, const Options& options, Issues& issues) {
    const std::string name = schema::normalize_section_name(section.name);
    const schema::SectionSpec* const spec = schema::find_section(name);
    if (spec == nullptr) {
        if (options.report_unknown_sections)
            issues.add({Severity::Info, name, "", unknown_section_message(name)});
        return;
    }
    if (options.report_unknown_keywords) check_keywords(name, section.entries, issues);
    if (options.report_raw_text_in_structured &&
        spec->parse_mode == schema::SectionParseMode::Structured)
        check_raw_text(name, section.raw_lines, issues);
    if (options.report_unknown_keywords && spec->parse_mode != schema::SectionParseMode::Raw)
        check_hidden_keywords(name, section.raw_lines, issues);
}

/// Checks what the structured records could not take into a member.
void check_structured_extras(const GamessInput& input, Issues& issues) {
    for (const std::string_view name : detail::structured_names) {
        if (!detail::structured_present(input, name)) continue;
        detail::visit_structured(
            input, name, [&](const auto* record) { check_keywords(name, record->extra, issues); });
    }
}

std::size_t most_issues(const GamessInput& input) {
    std::size_t most = 0;
    for (const std::string_view name : detail::structured_names)
        if (detail::structured_present(input, name))
            detail::visit_structured(input, name,
                                     [&most](const auto* record) { most += record->extra.size(); });
    for (const NamedSection& section : input.sections) most += most_issues(section);
    for (const NamedSection& section : input.extra_sections) most += most_issues(section);
    return most;
}

}  // namespace

std::vector<Issue> validate(const GamessInput& input, const Options& options) {
    Issues issues(most_issues(input));
    if (options.report_unknown_keywords) check_structured_extras(input, issues);
    for (const NamedSection& section : input.sections) check_section(section, options, issues);
    for (const NamedSection& section : input.extra_sections)
        check_section(section, options, issues);
    return std::move(issues).take();
}

std::vector<Issue> validate_section(const NamedSection& section, const Options& options) {
    Issues issues(most_issues(section));
    check_section(section, options, issues);
    return std::move(issues).take();
}

}  // namespace nurl::input::gamess::validation
