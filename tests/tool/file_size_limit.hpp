/// @file
/// Making writes fail for whoever runs the tests.
#pragma once

#include <sys/resource.h>

namespace nurl::test {

/// While it lives, programs that are started can write files of some bytes only; a write of more
/// fails.
class FileSizeLimit {
public:
    /// Throws when the limit cannot be set.
    explicit FileSizeLimit(rlim_t bytes);
    FileSizeLimit(const FileSizeLimit&) = delete;
    FileSizeLimit& operator=(const FileSizeLimit&) = delete;
    FileSizeLimit(FileSizeLimit&&) = delete;
    FileSizeLimit& operator=(FileSizeLimit&&) = delete;
    ~FileSizeLimit();

private:
    rlimit old_{};
    void (*old_handler_)(int) = nullptr;
};

}  // namespace nurl::test
