#include "tool/file_size_limit.hpp"

#include <csignal>
#include <stdexcept>

namespace nurl::test {

FileSizeLimit::FileSizeLimit(rlim_t bytes) {
    if (::getrlimit(RLIMIT_FSIZE, &old_) != 0) throw std::runtime_error("cannot get the limit");
    const rlimit limit{bytes, old_.rlim_max};
    if (::setrlimit(RLIMIT_FSIZE, &limit) != 0) throw std::runtime_error("cannot set the limit");
    // A program inherits that the signal is ignored, so its write fails instead of ending it.
    old_handler_ = std::signal(SIGXFSZ, SIG_IGN);
}

FileSizeLimit::~FileSizeLimit() {
    ::setrlimit(RLIMIT_FSIZE, &old_);
    static_cast<void>(std::signal(SIGXFSZ, old_handler_));
}

}  // namespace nurl::test
