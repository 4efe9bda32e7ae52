#include "faults/files/read_faults.hpp"

#include <algorithm>
#include <cerrno>
#include <stdexcept>
#include <sys/syscall.h>
#include <unistd.h>
#include <utility>

namespace nurl::test {

namespace {

ReadFault*& active_fault() noexcept {
    // NOLINTNEXTLINE(cppcoreguidelines-avoid-non-const-global-variables): C calls carry no plan
    static ReadFault* fault = nullptr;
    return fault;
}

long read_by_system(int file, void* bytes, std::size_t size) noexcept {
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-vararg): the system call has no other form here
    return ::syscall(SYS_read, file, bytes, size);
}

}  // namespace

ReadFault::ReadFault(const std::string& path, ReadPlan plan) : plan_(std::move(plan)) {
    if (::stat(path.c_str(), &status_) != 0) throw std::runtime_error("no such file: " + path);
    active_fault() = this;
}

ReadFault::~ReadFault() { active_fault() = nullptr; }

long ReadFault::read(int file, void* bytes, std::size_t size) {
    ReadFault* const fault = active_fault();
    if (fault == nullptr || !fault->is_about(file)) return read_by_system(file, bytes, size);
    return fault->read_by_plan(file, bytes, size);
}

bool ReadFault::is_about(int file) const noexcept {
    struct stat status {};
    return ::fstat(file, &status) == 0 && status.st_dev == status_.st_dev &&
           status.st_ino == status_.st_ino;
}

long ReadFault::read_by_plan(int file, void* bytes, std::size_t size) {
    ++reads_;
    const bool is_interrupted = plan_.interrupted && reads_ % 2 == 1;
    if (is_interrupted || reads_ == plan_.failing) {
        errno = is_interrupted ? EINTR : plan_.error;
        return -1;
    }
    const long count = read_by_system(file, bytes, std::min(size, plan_.at_most));
    if (const auto action = std::exchange(plan_.behind_first, {})) action();
    return count;
}

}  // namespace nurl::test

extern "C" {

/// `read` for everything in the program and the libraries under it, in front of the system's. It
/// has another name here: optimised builds define the system's in its header.
__attribute__((visibility("default"))) ssize_t read_in_front(int file, void* bytes,
                                                             std::size_t size) __asm__("read");

ssize_t read_in_front(int file, void* bytes, std::size_t size) {
    return nurl::test::ReadFault::read(file, bytes, size);
}

}  // extern "C"
