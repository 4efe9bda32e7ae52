#include "schema/schema_probe.hpp"

#include <fcntl.h>
#include <spawn.h>
#include <sstream>
#include <stdexcept>
#include <sys/wait.h>
#include <unistd.h>
#include <utility>

#include "support/program_words.hpp"

namespace nurl::test {

namespace {

constexpr std::string_view variable_name = "NURL_GMS_INP_SCHEMA_YAML";

void require_success(int error, const char* what) {
    if (error != 0) throw std::runtime_error(std::string{"cannot prepare the probe: "} + what);
}

/// Directory and output of a program to be started.
class FileActions {
public:
    FileActions(const std::string& directory, const std::string& output) {
        require_success(::posix_spawn_file_actions_init(&actions_), "actions");
        require_success(::posix_spawn_file_actions_addchdir_np(&actions_, directory.c_str()),
                        "directory");
        require_success(::posix_spawn_file_actions_addopen(&actions_, STDOUT_FILENO, output.c_str(),
                                                           O_WRONLY | O_CREAT | O_TRUNC, 0600),
                        "output");
    }
    FileActions(const FileActions&) = delete;
    FileActions& operator=(const FileActions&) = delete;
    FileActions(FileActions&&) = delete;
    FileActions& operator=(FileActions&&) = delete;
    ~FileActions() { ::posix_spawn_file_actions_destroy(&actions_); }

    [[nodiscard]] const posix_spawn_file_actions_t* get() const { return &actions_; }

private:
    posix_spawn_file_actions_t actions_{};
};

std::vector<std::string> lines_of(const std::string& text) {
    std::istringstream stream(text);
    std::vector<std::string> lines;
    for (std::string line; std::getline(stream, line);) lines.push_back(line);
    return lines;
}

void wait_for_success(pid_t process) {
    int status = 0;
    if (::waitpid(process, &status, 0) != process || !WIFEXITED(status) || WEXITSTATUS(status) != 0)
        throw std::runtime_error("the probe failed");
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
    const FileActions actions(directory_.string(), output);
    std::vector<std::string> words = questions;
    words.insert(words.begin(), program_.string());
    words = started_as(std::move(words));
    std::vector<std::string> variables = environment();
    pid_t process = 0;
    require_success(::posix_spawn(&process, words.front().c_str(), actions.get(), nullptr,
                                  pointers(words).data(), pointers(variables).data()),
                    "start");
    wait_for_success(process);
    return lines_of(content(output));
}

std::string SchemaProbe::answer(const std::string& question) const {
    const std::vector<std::string> answers = ask({question});
    if (answers.size() != 1) throw std::runtime_error("not one line for " + question);
    return answers.front();
}

}  // namespace nurl::test
