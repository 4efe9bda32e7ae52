#include "support/program.hpp"

#include <fcntl.h>
#include <iterator>
#include <sstream>
#include <stdexcept>
#include <sys/stat.h>
#include <sys/wait.h>
#include <utility>

namespace nurl::test {

namespace {

void require_success(int error, const char* what) {
    if (error != 0) throw std::runtime_error(std::string{"cannot prepare the program: "} + what);
}

}  // namespace

std::vector<std::string> started_as(std::vector<std::string> words) {
    std::istringstream emulator(NURL_TEST_EMULATOR);
    words.insert(words.begin(), std::istream_iterator<std::string>(emulator), {});
    return words;
}

std::vector<char*> pointers(std::vector<std::string>& texts) {
    std::vector<char*> result;
    result.reserve(texts.size() + 1);
    for (std::string& text : texts) result.push_back(text.data());
    result.push_back(nullptr);
    return result;
}

FileActions::FileActions(const std::string& directory) {
    require_success(::posix_spawn_file_actions_init(&actions_), "actions");
    require_success(::posix_spawn_file_actions_addchdir_np(&actions_, directory.c_str()),
                    "directory");
}

FileActions::~FileActions() { ::posix_spawn_file_actions_destroy(&actions_); }

void FileActions::open_for_reading(int stream, const std::string& path) {
    open(stream, path, O_RDONLY);
}

void FileActions::open_for_writing(int stream, const std::string& path) {
    open(stream, path, O_WRONLY | O_CREAT | O_TRUNC | O_NOCTTY);
}

void FileActions::close(int stream) {
    require_success(::posix_spawn_file_actions_addclose(&actions_, stream), "close");
}

void FileActions::open(int stream, const std::string& path, int flags) {
    require_success(::posix_spawn_file_actions_addopen(&actions_, stream, path.c_str(), flags,
                                                       S_IRUSR | S_IWUSR),
                    "stream");
}

pid_t start_program(std::vector<std::string> words, std::vector<std::string> environment,
                    const FileActions& actions) {
    words = started_as(std::move(words));
    pid_t process = 0;
    require_success(::posix_spawn(&process, words.front().c_str(), actions.get(), nullptr,
                                  pointers(words).data(), pointers(environment).data()),
                    "start");
    return process;
}

int wait_for(pid_t process) {
    int status = 0;
    if (::waitpid(process, &status, 0) != process) throw std::runtime_error("a program is lost");
    return WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
}

}  // namespace nurl::test
