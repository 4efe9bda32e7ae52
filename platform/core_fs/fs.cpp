// A file is replaced by renaming a finished and flushed temporary file over it. Both are reached
// through a handle on their directory, so that no path grows too long by the temporary name and a
// change of the current directory by another thread does not come between.
#include "nurl/core/fs.hpp"

#include <cerrno>
#include <charconv>
#include <chrono>
#include <fcntl.h>
#include <filesystem>
#include <initializer_list>
#include <optional>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>
#include <utility>

namespace nurl::core::fs {

namespace {

using std::filesystem::path;

/// As many symbolic links in a row as the kernel follows.
constexpr int max_links = 40;

/// Names tried for a temporary file before giving up.
constexpr int max_attempts = 100;

int open_at(int directory, const char* name, int flags, mode_t mode = 0) noexcept {
    for (;;) {
        // NOLINTNEXTLINE(cppcoreguidelines-pro-type-vararg): the system call has no other form
        const int number = ::openat(directory, name, flags | O_CLOEXEC | O_NOCTTY, mode);
        if (number >= 0 || errno != EINTR) return number;
    }
}

/// Owns an open file.
class Descriptor {
public:
    explicit Descriptor(int number) noexcept : number_(number) {}
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    Descriptor(Descriptor&&) = delete;
    Descriptor& operator=(Descriptor&&) = delete;
    ~Descriptor() {
        if (is_open()) ::close(number_);
    }

    [[nodiscard]] bool is_open() const noexcept { return number_ >= 0; }
    [[nodiscard]] int number() const noexcept { return number_; }

    /// Closes at once. The kernel lets go of the file even when a signal interrupts it.
    [[nodiscard]] bool close() noexcept {
        return ::close(std::exchange(number_, -1)) == 0 || errno == EINTR;
    }

private:
    int number_;
};

bool write_all(int file, std::string_view text) noexcept {
    while (!text.empty()) {
        const ssize_t written = ::write(file, text.data(), text.size());
        if (written > 0) {
            text.remove_prefix(static_cast<std::size_t>(written));
        } else if (written == 0 || errno != EINTR) {
            return false;
        }
    }
    return true;
}

/// Flushes to disk. Pipes and terminals have none and say so by EINVAL or EROFS.
bool flush(int file) noexcept {
    while (::fsync(file) != 0) {
        if (errno != EINTR) return errno == EINVAL || errno == EROFS;
    }
    return true;
}

std::string temporary_name() {
    const auto now = std::chrono::steady_clock::now().time_since_epoch().count();
    return ".nurl-" + std::to_string(::getpid()) + "-" + std::to_string(now) + ".tmp";
}

/// Creates a file and says under which name; the name is empty when that failed.
int create_temporary(int directory, mode_t mode, std::string& name) {
    for (int attempt = 0; attempt < max_attempts; ++attempt) {
        name = temporary_name();
        const int file = open_at(directory, name.c_str(), O_WRONLY | O_CREAT | O_EXCL, mode);
        if (file >= 0) return file;
        if (errno != EEXIST) break;
    }
    name.clear();
    return -1;
}

/// A new file under a name of its own, removed again unless it is given its final name.
class TemporaryFile {
public:
    TemporaryFile(int directory, mode_t mode)
        : directory_(directory), file_(create_temporary(directory, mode, name_)) {}
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;
    TemporaryFile(TemporaryFile&&) = delete;
    TemporaryFile& operator=(TemporaryFile&&) = delete;
    ~TemporaryFile() {
        if (!name_.empty()) ::unlinkat(directory_, name_.c_str(), 0);
    }

    [[nodiscard]] bool write(std::string_view text) noexcept {
        return file_.is_open() && write_all(file_.number(), text);
    }

    /// Takes over whose the old file is and who may do what with it. A file that stays with its
    /// maker must not run with the rights of somebody else's.
    [[nodiscard]] bool take_attributes(const struct stat& old) noexcept {
        const bool same_owner = ::fchown(file_.number(), old.st_uid, old.st_gid) == 0;
        const mode_t kept = same_owner ? 07777 : 0777;
        return ::fchmod(file_.number(), old.st_mode & kept) == 0;
    }

    [[nodiscard]] bool rename_to(const std::string& name) noexcept {
        if (!flush(file_.number()) || !file_.close()) return false;
        if (::renameat(directory_, name_.c_str(), directory_, name.c_str()) != 0) return false;
        name_.clear();
        return true;
    }

private:
    int directory_;
    std::string name_;
    Descriptor file_;
};

/// Makes a rename last. The file is whole either way, so a directory that cannot be flushed is
/// fine.
void flush_directory(int directory) noexcept {
    const Descriptor readable(open_at(directory, ".", O_RDONLY | O_DIRECTORY));
    if (readable.is_open()) flush(readable.number());
}

bool may_replace(int directory, const std::string& name, const struct stat& old) noexcept {
    return S_ISREG(old.st_mode) && ::faccessat(directory, name.c_str(), W_OK, AT_EACCESS) == 0;
}

/// Replaces or creates a regular file that is named without a symbolic link at the end.
bool replace_file(const path& target, std::string_view text) {
    const path folder = target.has_parent_path() ? target.parent_path() : path(".");
    const std::string name = target.filename().string();
    const Descriptor directory(open_at(AT_FDCWD, folder.c_str(), O_PATH | O_DIRECTORY));
    if (!directory.is_open()) return false;

    struct stat old {};
    const bool exists = ::fstatat(directory.number(), name.c_str(), &old, AT_SYMLINK_NOFOLLOW) == 0;
    if (!exists && errno != ENOENT) return false;
    if (exists && !may_replace(directory.number(), name, old)) return false;

    TemporaryFile file(directory.number(), exists ? 0600 : 0666);
    if (!file.write(text)) return false;
    if (exists && !file.take_attributes(old)) return false;
    if (!file.rename_to(name)) return false;
    flush_directory(directory.number());
    return true;
}

bool write_directly(const path& target, std::string_view text) {
    Descriptor file(open_at(AT_FDCWD, target.c_str(), O_WRONLY));
    return file.is_open() && write_all(file.number(), text) && flush(file.number()) && file.close();
}

/// The open descriptor of this process that a path stands for. Opening such a path anew would lose
/// the position in the file, so that text already there would be overwritten.
std::optional<int> named_descriptor(std::string_view name) {
    for (const std::string_view folder : {"/dev/fd/", "/proc/self/fd/"}) {
        if (!name.starts_with(folder)) continue;
        const std::string_view digits = name.substr(folder.size());
        const char* const end = digits.data() + digits.size();
        int number = -1;
        const auto [stop, error] = std::from_chars(digits.data(), end, number);
        if (error == std::errc{} && stop == end && number >= 0) return number;
    }
    return std::nullopt;
}

/// Where the symbolic links at the end of a path lead, except behind the name of a descriptor.
std::optional<path> follow_links(path target) {
    for (int links = 0; links <= max_links; ++links) {
        std::error_code error;
        if (named_descriptor(target.native())) return target;
        const path link = std::filesystem::read_symlink(target, error);
        if (error) return target;
        target = target.parent_path() / link;
    }
    return std::nullopt;
}

}  // namespace

bool write_text_file(const std::string& path, std::string_view text) {
    if (path.empty() || path.find('\0') != std::string::npos) return false;
    const auto target = follow_links(path);
    if (!target) return false;
    if (const auto descriptor = named_descriptor(target->native())) {
        return write_all(*descriptor, text) && flush(*descriptor);
    }
    std::error_code error;
    const std::filesystem::file_status status = std::filesystem::status(path, error);
    // Through a handle on the directory it could be written, but nobody could open it afterwards.
    if (error == std::errc::filename_too_long) return false;
    const bool is_special =
        std::filesystem::exists(status) && !std::filesystem::is_regular_file(status);
    if (is_special) return write_directly(path, text);
    return replace_file(*target, text);
}

}  // namespace nurl::core::fs
