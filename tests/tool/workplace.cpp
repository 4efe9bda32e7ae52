#include "tool/workplace.hpp"

#include <array>
#include <cstdlib>
#include <fcntl.h>
#include <spawn.h>
#include <stdexcept>
#include <sys/wait.h>
#include <unistd.h>
#include <utility>

#include "support/child_process.hpp"
#include "support/program_words.hpp"

namespace nurl::test {

namespace {

void require_success(int error, const char* what) {
    if (error != 0) throw std::runtime_error(std::string{"cannot prepare the program: "} + what);
}

/// Directory and streams of the program.
class FileActions {
public:
    explicit FileActions(const std::string& directory) {
        require_success(::posix_spawn_file_actions_init(&actions_), "actions");
        require_success(::posix_spawn_file_actions_addchdir_np(&actions_, directory.c_str()),
                        "directory");
    }
    FileActions(const FileActions&) = delete;
    FileActions& operator=(const FileActions&) = delete;
    FileActions(FileActions&&) = delete;
    FileActions& operator=(FileActions&&) = delete;
    ~FileActions() { ::posix_spawn_file_actions_destroy(&actions_); }

    void open_for_reading(int stream, const std::string& path) { open(stream, path, O_RDONLY); }
    void open_for_writing(int stream, const std::string& path) {
        open(stream, path, O_WRONLY | O_CREAT | O_TRUNC | O_NOCTTY);
    }
    void close(int stream) {
        require_success(::posix_spawn_file_actions_addclose(&actions_, stream), "close");
    }

    [[nodiscard]] const posix_spawn_file_actions_t* get() const { return &actions_; }

private:
    void open(int stream, const std::string& path, int flags) {
        require_success(::posix_spawn_file_actions_addopen(&actions_, stream, path.c_str(), flags,
                                                           S_IRUSR | S_IWUSR),
                        "stream");
    }

    posix_spawn_file_actions_t actions_{};
};

/// The environment of the tests without what the program looks at, and with what is wanted.
std::vector<std::string> environment_with(const std::vector<std::string>& wanted) {
    std::vector<std::string> result{"NURL_GMS_INP_SCHEMA_YAML=" NURL_TEST_TOOL_SCHEMA};
    for (char** entry = environ; *entry != nullptr; ++entry) {
        const std::string_view variable{*entry};
        if (variable.starts_with("NO_COLOR=") || variable.starts_with("NURL_")) continue;
        result.emplace_back(variable);
    }
    result.insert(result.end(), wanted.begin(), wanted.end());
    return result;
}

pid_t start(const std::vector<std::string>& arguments, const Surroundings& surroundings,
            const FileActions& actions) {
    std::vector<std::string> words = arguments;
    words.insert(words.begin(), NURL_TEST_TOOL_PROGRAM);
    words = started_as(std::move(words));
    std::vector<std::string> variables = environment_with(surroundings.environment);
    pid_t process = 0;
    require_success(::posix_spawn(&process, words.front().c_str(), actions.get(), nullptr,
                                  pointers(words).data(), pointers(variables).data()),
                    "start");
    return process;
}

int wait_for(pid_t process) {
    int status = 0;
    if (::waitpid(process, &status, 0) != process) throw std::runtime_error("the program is lost");
    return WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
}

/// The end of a terminal that a person would sit at.
class Terminal {
public:
    Terminal() : descriptor_{::posix_openpt(O_RDWR | O_NOCTTY)} {
        if (descriptor_ < 0 || ::grantpt(descriptor_) != 0 || ::unlockpt(descriptor_) != 0) {
            throw std::runtime_error("cannot open a terminal");
        }
    }
    Terminal(const Terminal&) = delete;
    Terminal& operator=(const Terminal&) = delete;
    Terminal(Terminal&&) = delete;
    Terminal& operator=(Terminal&&) = delete;
    ~Terminal() { ::close(descriptor_); }

    /// The path of the other end.
    [[nodiscard]] std::string path() const {
        std::array<char, 256> name{};
        require_success(::ptsname_r(descriptor_, name.data(), name.size()), "terminal");
        return name.data();
    }

    /// Reads until nobody has the other end open.
    [[nodiscard]] std::string read_all() const { return read_to_end(descriptor_); }

private:
    int descriptor_;
};

}  // namespace

std::ostream& operator<<(std::ostream& stream, const Outcome& outcome) {
    return stream << "status " << outcome.status << "\nout:\n"
                  << outcome.out << "err:\n"
                  << outcome.err;
}

std::string Workplace::make(const std::string& name, std::string_view text) const {
    make_file(files_.path() / name, text);
    return name;
}

std::string Workplace::content_of(const std::string& name) const {
    return content(files_.path() / name);
}

Outcome Workplace::run(const std::vector<std::string>& arguments,
                       const Surroundings& surroundings) const {
    const std::string input = streams_.file("in");
    const std::string output = surroundings.output_path.value_or(streams_.file("out"));
    make_file(input, surroundings.input);
    FileActions actions{files_.path()};
    actions.open_for_reading(STDIN_FILENO, surroundings.input_path.value_or(input));
    actions.open_for_writing(STDERR_FILENO, streams_.file("err"));
    if (surroundings.output_closed) {
        actions.close(STDOUT_FILENO);
    } else {
        actions.open_for_writing(STDOUT_FILENO, output);
    }
    Outcome outcome;
    outcome.status = wait_for(start(arguments, surroundings, actions));
    outcome.err = content(streams_.file("err"));
    const bool readable = !surroundings.output_closed && !surroundings.output_path;
    if (readable) outcome.out = content(output);
    return outcome;
}

Outcome Workplace::run_on_terminal(const std::vector<std::string>& arguments,
                                   const Surroundings& surroundings) const {
    const std::string input = streams_.file("in");
    make_file(input, surroundings.input);
    const Terminal terminal;
    FileActions actions{files_.path()};
    actions.open_for_reading(STDIN_FILENO, surroundings.input_path.value_or(input));
    actions.open_for_writing(STDOUT_FILENO, terminal.path());
    actions.open_for_writing(STDERR_FILENO, terminal.path());
    const pid_t process = start(arguments, surroundings, actions);
    Outcome outcome;
    outcome.out = terminal.read_all();
    outcome.status = wait_for(process);
    return outcome;
}

std::string as_written(std::string_view deck) {
    constexpr std::string_view last_line = " $END\n";
    std::string text{deck};
    text.insert(text.size() - last_line.size(), " \n");
    return text;
}

}  // namespace nurl::test
