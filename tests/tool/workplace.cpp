#include "tool/workplace.hpp"

#include <array>
#include <cstdlib>
#include <fcntl.h>
#include <stdexcept>
#include <unistd.h>
#include <utility>

#include "support/child_process.hpp"
#include "support/program.hpp"

namespace nurl::test {

namespace {

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
    return start_program(std::move(words), environment_with(surroundings.environment), actions);
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
        if (::ptsname_r(descriptor_, name.data(), name.size()) != 0)
            throw std::runtime_error("a terminal without a name");
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

}  // namespace nurl::test
