// Answers questions about the schema in a process of its own, since a process has one schema.
//
// Each argument is a question `verb=text`, answered on standard output in the order given. Besides
// questions there are verbs that change what a later look at the schema would find.
#include <algorithm>
#include <array>
#include <cstdlib>
#include <exception>
#include <filesystem>
#include <functional>
#include <iostream>
#include <latch>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <thread>
#include <vector>

#include "nurl/input/gamess/reader.hpp"
#include "nurl/input/gamess/schema.hpp"
#include "nurl/input/gamess/validation.hpp"

namespace {

namespace schema = nurl::input::gamess::schema;
namespace validation = nurl::input::gamess::validation;

std::string joined(const std::vector<std::string>& words) {
    std::string text;
    for (const std::string& word : words) text += word + ',';
    if (!text.empty()) text.pop_back();
    return text;
}

std::string yes_or_no(bool flag) { return flag ? "yes" : "no"; }

std::string mode_text(schema::SectionParseMode mode) {
    if (mode == schema::SectionParseMode::Structured) return "structured";
    return mode == schema::SectionParseMode::Raw ? "raw" : "keywords";
}

std::string names(const std::string& /*text*/) { return joined(schema::section_names()); }

/// Mode and keywords of a group.
std::string section(const std::string& name) {
    const schema::SectionSpec* const spec = schema::find_section(name);
    if (spec == nullptr) return "none";
    std::vector<std::string> keywords;
    for (const auto& [keyword, entry] : spec->entries) keywords.push_back(keyword);
    std::ranges::sort(keywords);
    return mode_text(spec->parse_mode) + ':' + joined(keywords);
}

/// Type of a keyword, given as `GROUP/KEYWORD`.
std::string entry(const std::string& path) {
    const std::size_t slash = path.find('/');
    const schema::EntrySpec* const spec =
        schema::find_entry(path.substr(0, slash), path.substr(slash + 1));
    return spec == nullptr ? "none" : spec->value_type;
}

std::string mode(const std::string& name) { return mode_text(schema::section_parse_mode(name)); }

std::string raw_lines(const std::string& name) {
    return yes_or_no(schema::section_allows_raw_lines(name));
}

std::string unknown_entries(const std::string& name) {
    return yes_or_no(schema::section_allows_unknown_entries(name));
}

/// Reads a deck and answers the number of generic groups in it.
std::string read(const std::string& deck) {
    return std::to_string(nurl::input::gamess::parse_string(deck).input.sections.size());
}

/// Reads and validates a deck; one line a finding.
std::string validate(const std::string& deck) {
    constexpr std::array<const char*, 3> severities{"Info", "Warning", "Error"};
    std::string text;
    const auto input = nurl::input::gamess::parse_string(deck).input;
    for (const validation::Issue& issue : validation::validate(input, {})) {
        text += text.empty() ? "" : "\n";
        text += severities.at(static_cast<std::size_t>(issue.severity));
        text += '|' + issue.section + '|' + issue.key + '|' + issue.message;
    }
    return text;
}

std::string set_variable(const std::string& value) {
    // NOLINTNEXTLINE(concurrency-mt-unsafe): no other thread runs between two questions
    if (::setenv("NURL_GMS_INP_SCHEMA_YAML", value.c_str(), 1) != 0)
        throw std::runtime_error("cannot set the variable");
    return "set";
}

std::string empty_file(const std::string& path) {
    std::filesystem::resize_file(path, 0);
    return "emptied";
}

/// What one thread sees of the schema.
struct View {
    std::vector<std::string> names;
    const schema::SectionSpec* section = nullptr;
    const schema::EntrySpec* entry = nullptr;
    schema::SectionParseMode mode{};
    bool raw_lines = false;
    bool unknown_entries = false;

    bool operator==(const View&) const = default;
};

/// Asks everything about a group, beginning with another question in each thread.
View look(const std::string& name, std::size_t first) {
    View view;
    const std::array<std::function<void()>, 6> questions{
        [&] { view.section = schema::find_section(name); },
        [&] { view.entry = schema::find_entry(name, "X(1)"); },
        [&] { view.mode = schema::section_parse_mode(name); },
        [&] { view.raw_lines = schema::section_allows_raw_lines(name); },
        [&] { view.unknown_entries = schema::section_allows_unknown_entries(name); },
        [&] { view.names = schema::section_names(); },
    };
    for (std::size_t step = 0; step < questions.size(); ++step)
        questions.at((first + step) % questions.size())();
    return view;
}

/// Looks at a group from eight threads at once. @return how many see what this thread sees later
std::string threads(const std::string& name) {
    constexpr std::size_t thread_count = 8;
    std::array<View, thread_count> views;
    std::latch start(thread_count);
    std::vector<std::thread> running;
    for (std::size_t i = 0; i < thread_count; ++i)
        running.emplace_back([&, i] {
            start.arrive_and_wait();
            views.at(i) = look(name, i);
        });
    for (std::thread& thread : running) thread.join();
    return std::to_string(std::ranges::count(views, look(name, 0))) + " alike";
}

struct Verb {
    std::string_view name;
    std::string (*answer)(const std::string& text);
};

constexpr std::array<Verb, 12> verbs{{
    {"names", names},
    {"section", section},
    {"entry", entry},
    {"mode", mode},
    {"raw_lines", raw_lines},
    {"unknown_entries", unknown_entries},
    {"resolve", schema::resolve_schema_path},
    {"read", read},
    {"validate", validate},
    {"variable", set_variable},
    {"empty", empty_file},
    {"threads", threads},
}};

std::string answer(const std::string& question) {
    const std::size_t equals = question.find('=');
    const auto* const verb = std::ranges::find(verbs, question.substr(0, equals), &Verb::name);
    if (equals == std::string::npos || verb == verbs.end())
        throw std::runtime_error("no such question: " + question);
    return verb->answer(question.substr(equals + 1));
}

}  // namespace

int main(int count, char** arguments) try {
    for (const char* question : std::span(arguments, static_cast<std::size_t>(count)).subspan(1))
        std::cout << answer(question) << '\n';
    return std::cout.flush() ? 0 : 1;
} catch (const std::exception& error) {
    std::cerr << error.what() << '\n';
    return 2;
}
