#include "platform/system_faults.hpp"

#include <algorithm>
#include <cerrno>
#include <cstdarg>
#include <cstddef>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace nurl::test {

namespace {

FaultPlan*& active_plan() noexcept {
    // NOLINTNEXTLINE(cppcoreguidelines-avoid-non-const-global-variables): C calls carry no plan
    static FaultPlan* plan = nullptr;
    return plan;
}

bool fails(SystemCall call) noexcept {
    FaultPlan* const plan = active_plan();
    if (plan == nullptr || plan->call != call || plan->occurrence == 0) return false;
    if (plan->occurrence > 1) {
        --plan->occurrence;
        return false;
    }
    if (!plan->lasting) plan->occurrence = 0;
    plan->met = true;
    errno = plan->error;
    return true;
}

}  // namespace

SystemFault::SystemFault(const FaultPlan& plan) noexcept : plan_(plan) { active_plan() = &plan_; }

SystemFault::~SystemFault() { active_plan() = nullptr; }

}  // namespace nurl::test

using nurl::test::SystemCall;

// NOLINTBEGIN(bugprone-reserved-identifier,cert-dcl37-c,cert-dcl51-cpp): option --wrap fixes them
// NOLINTBEGIN(readability-identifier-naming): option --wrap fixes the names
extern "C" {

int __real_openat(int directory, const char* name, int flags, ...);
int __real_fstatat(int directory, const char* name, struct stat* status, int flags);
int __real_faccessat(int directory, const char* name, int mode, int flags);
ssize_t __real_write(int file, const void* bytes, std::size_t size);
int __real_fchown(int file, uid_t user, gid_t group);
int __real_fchmod(int file, mode_t mode);
int __real_fsync(int file);
int __real_close(int file);
int __real_renameat(int from, const char* old_name, int to, const char* new_name);

// NOLINTBEGIN(cert-dcl50-cpp,cppcoreguidelines-pro-type-vararg): the shape of the call it replaces
int __wrap_openat(int directory, const char* name, int flags, ...) {
    if (nurl::test::fails(SystemCall::OpenAt)) return -1;
    std::va_list rest;
    va_start(rest, flags);
    // NOLINTNEXTLINE(clang-analyzer-valist.Uninitialized): va_start is not understood in C++ code
    const mode_t mode = va_arg(rest, mode_t);
    va_end(rest);
    return __real_openat(directory, name, flags, mode);
}
// NOLINTEND(cert-dcl50-cpp,cppcoreguidelines-pro-type-vararg)

int __wrap_fstatat(int directory, const char* name, struct stat* status, int flags) {
    if (nurl::test::fails(SystemCall::StatAt)) return -1;
    return __real_fstatat(directory, name, status, flags);
}

int __wrap_faccessat(int directory, const char* name, int mode, int flags) {
    if (nurl::test::fails(SystemCall::AccessAt)) return -1;
    return __real_faccessat(directory, name, mode, flags);
}

ssize_t __wrap_write(int file, const void* bytes, std::size_t size) {
    nurl::test::FaultPlan* const plan = nurl::test::active_plan();
    if (nurl::test::fails(SystemCall::Write)) {
        if (plan->error != 0) return -1;
        errno = EINTR;  // left over from another call
        return 0;
    }
    if (plan == nullptr || !plan->faltering) return __real_write(file, bytes, size);
    if (++plan->writes % 2 == 0) {
        errno = EINTR;
        return -1;
    }
    return __real_write(file, bytes, std::min<std::size_t>(size, 3));
}

int __wrap_fchown(int file, uid_t user, gid_t group) {
    return nurl::test::fails(SystemCall::ChangeOwner) ? -1 : __real_fchown(file, user, group);
}

int __wrap_fchmod(int file, mode_t mode) {
    return nurl::test::fails(SystemCall::ChangeMode) ? -1 : __real_fchmod(file, mode);
}

int __wrap_fsync(int file) { return nurl::test::fails(SystemCall::Sync) ? -1 : __real_fsync(file); }

int __wrap_close(int file) {
    if (!nurl::test::fails(SystemCall::Close)) return __real_close(file);
    const int error = errno;
    __real_close(file);
    errno = error;
    return -1;
}

int __wrap_renameat(int from, const char* old_name, int to, const char* new_name) {
    if (nurl::test::fails(SystemCall::Rename)) return -1;
    return __real_renameat(from, old_name, to, new_name);
}

}  // extern "C"
// NOLINTEND(readability-identifier-naming)
// NOLINTEND(bugprone-reserved-identifier,cert-dcl37-c,cert-dcl51-cpp)
