#include "schema/schema_probe.hpp"

#include <sstream>
#include <stdexcept>
#include <unistd.h>
#include <utility>

#include "support/program.hpp"

namespace nurl::test {

namespace {

constexpr std::string_view variable_name = "NURL_GMS_INP_SCHEMA_YAML";

std::vector<std::string> lines_of(const std::string& text) {
    std::istringstream stream(text);
    std::vector<std::string> lines;
    for (std::string line; std::getline(stream, line);) lines.push_back(line);
    return lines;
}

}  // namespace

SchemaProbe::SchemaProbe(const std::filesystem::path& program_folder)
    : program_(home_.path() / program_folder / "probe"), directory_(place_.path()) {
    std::filesystem::create_directories(program_.parent_path());
    std::filesystem::copy_file(NURL_TEST_SCHEMA_PROBE, program_);
}

std::string SchemaProbe::make_file(const std::filesystem::path& name, std::string_view text) const {
    const std::filesystem::path path = place_.path() / name;
    test::make_file(path, text);
    return path.string();
}

void SchemaProbe::run_in(const std::filesystem::path& directory) {
    directory_ = place_.path() / directory;
    std::filesystem::create_directories(directory_);
}

void SchemaProbe::use_schema(std::string_view text) { variable_ = make_file("own.yaml", text); }

std::vector<std::string> SchemaProbe::environment() const {
    const std::string assignment = std::string{variable_name} + '=';
    std::vector<std::string> result;
    for (char** entry = environ; *entry != nullptr; ++entry)
        if (!std::string_view{*entry}.starts_with(assignment)) result.emplace_back(*entry);
    if (variable_) result.push_back(assignment + *variable_);
    return result;
}

std::vector<std::string> SchemaProbe::ask(const std::vector<std::string>& questions) const {
    const std::string output = home_.file("answers");
    FileActions actions(directory_.string());
    actions.open_for_writing(STDOUT_FILENO, output);
    std::vector<std::string> words = questions;
    words.insert(words.begin(), program_.string());
    if (wait_for(start_program(std::move(words), environment(), actions)) != 0)
        throw std::runtime_error("the probe failed");
    return lines_of(content(output));
}

std::string SchemaProbe::answer(const std::string& question) const {
    const std::vector<std::string> answers = ask({question});
    if (answers.size() != 1) throw std::runtime_error("not one line for " + question);
    return answers.front();
}

}  // namespace nurl::test
