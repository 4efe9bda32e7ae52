#include "support/child_process.hpp"

#include <array>
#include <csignal>
#include <exception>
#include <stdexcept>
#include <string_view>
#include <sys/wait.h>
#include <unistd.h>

namespace nurl::test {

namespace {

constexpr unsigned seconds_to_live = 30;

std::string outcome_of(const std::function<std::string()>& action) {
    try {
        return action();
    } catch (const std::exception& error) {
        return std::string{"thrown: "} + error.what();
    }
}

/// Writes all of a text. @return whether that worked
bool send(int to, std::string_view text) {
    while (!text.empty()) {
        const ssize_t sent = ::write(to, text.data(), text.size());
        if (sent <= 0) return false;
        text.remove_prefix(static_cast<std::size_t>(sent));
    }
    return true;
}

}  // namespace

std::string read_to_end(int from) {
    std::string text;
    std::array<char, 4096> buffer{};
    while (true) {
        const ssize_t count = ::read(from, buffer.data(), buffer.size());
        if (count <= 0) return text;
        text.append(buffer.data(), static_cast<std::size_t>(count));
    }
}

std::string in_child(const std::function<std::string()>& action) {
    std::array<int, 2> ends{};
    if (::pipe(ends.data()) != 0) throw std::runtime_error("cannot make a pipe");
    const pid_t child = ::fork();
    if (child < 0) throw std::runtime_error("cannot make a process");
    if (child == 0) {
        ::close(ends[0]);
        ::alarm(seconds_to_live);
        ::_exit(send(ends[1], outcome_of(action)) ? 0 : 1);
    }
    ::close(ends[1]);
    std::string text = read_to_end(ends[0]);
    ::close(ends[0]);
    int status = 0;
    if (::waitpid(child, &status, 0) != child) throw std::runtime_error("a process is lost");
    return WIFSIGNALED(status) ? "signal " + std::to_string(WTERMSIG(status)) : text;
}

void become_ordinary_user() {
    constexpr uid_t nobody = 65534;
    if (::geteuid() == 0 && (::setgid(nobody) != 0 || ::setuid(nobody) != 0))
        throw std::runtime_error("cannot become an ordinary user");
}

void limit_file_size(rlim_t bytes) {
    const rlimit limit{bytes, bytes};
    if (std::signal(SIGXFSZ, SIG_IGN) == SIG_ERR || ::setrlimit(RLIMIT_FSIZE, &limit) != 0)
        throw std::runtime_error("cannot limit the size of files");
}

}  // namespace nurl::test
