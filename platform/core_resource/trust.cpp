#include "trust.hpp"

#include <sys/stat.h>
#include <system_error>

namespace nurl::core::resource {

namespace {

bool others_may_write(const struct stat& status) noexcept {
    const bool group_may = (status.st_mode & S_IWGRP) != 0 && status.st_gid != 0;
    return group_may || (status.st_mode & S_IWOTH) != 0;
}

bool is_of_root(const std::filesystem::path& path) noexcept {
    struct stat status {};
    if (::stat(path.c_str(), &status) != 0 || status.st_uid != 0) return false;
    const bool keeps_files = S_ISDIR(status.st_mode) && (status.st_mode & S_ISVTX) != 0;
    return keeps_files || !others_may_write(status);
}

}  // namespace

bool only_root_could_write(const std::filesystem::path& file) {
    std::error_code error;
    std::filesystem::path path = std::filesystem::canonical(file, error);
    if (error || !is_of_root(path)) return false;
    while (path.has_relative_path()) {
        path = path.parent_path();
        if (!is_of_root(path)) return false;
    }
    return true;
}

}  // namespace nurl::core::resource
