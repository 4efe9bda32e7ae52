#include "faults/files/tool_run.hpp"

#include <array>
#include <fcntl.h>
#include <stdexcept>
#include <unistd.h>
#include <utility>

#include "support/child_process.hpp"
#include "support/program.hpp"

namespace nurl::test {

namespace {

constexpr unsigned seconds_to_live = 30;
constexpr int not_started = 127;

/// Leads the streams of this process to where nothing is, but for standard error.
bool lead_streams(int err) {
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-vararg): the system call has no other form
    const int nothing = ::open("/dev/null", O_RDWR | O_CLOEXEC);
    return nothing >= 0 && ::dup2(nothing, STDIN_FILENO) >= 0 &&
           ::dup2(nothing, STDOUT_FILENO) >= 0 && ::dup2(err, STDERR_FILENO) >= 0;
}

/// Becomes the program. Comes back only when that is not possible.
void become_tool(const std::filesystem::path& directory, std::vector<std::string> words, int err,
                 const std::function<void()>& prepare) {
    ::alarm(seconds_to_live);
    if (::chdir(directory.c_str()) != 0 || !lead_streams(err)) return;
    if (prepare) prepare();
    words.insert(words.begin(), NURL_TEST_TOOL_PROGRAM);
    words = started_as(std::move(words));
    ::execv(words.front().c_str(), pointers(words).data());
}

}  // namespace

std::ostream& operator<<(std::ostream& stream, const ToolRun& run) {
    return stream << "status " << run.status << "\nerr:\n" << run.err;
}

ToolRun run_tool(const std::filesystem::path& directory, const std::vector<std::string>& arguments,
                 const std::function<void()>& prepare) {
    std::array<int, 2> err{};
    if (::pipe2(err.data(), O_CLOEXEC) != 0) throw std::runtime_error("cannot make a pipe");
    const pid_t process = ::fork();
    if (process < 0) throw std::runtime_error("cannot make a process");
    if (process == 0) {
        become_tool(directory, arguments, err[1], prepare);
        ::_exit(not_started);
    }
    ::close(err[1]);
    std::string told = read_to_end(err[0]);
    ::close(err[0]);
    return {wait_for(process), std::move(told)};
}

}  // namespace nurl::test
