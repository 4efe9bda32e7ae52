/// @file
/// Reads of one file that falter, fail, or find the file changed.
///
/// A program that holds the source beside this header has a `read` of its own in front of the
/// system's, for the standard library too. It is transparent but for one file while the object
/// below is alive. For programs of one thread, and for one object at a time.
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <sys/stat.h>

namespace nurl::test {

/// What happens to the reads of a file.
struct ReadPlan {
    std::size_t at_most = 1'000'000'000;      ///< bytes that one read gives at the most
    bool interrupted = false;                 ///< every other read is interrupted by a signal
    std::size_t failing = 0;                  ///< which read fails, counted from 1; 0 for none
    int error = 0;                            ///< what `errno` says then
    std::function<void()> behind_first = {};  ///< done once there has been a read
};

/// Makes the reads of a file follow a plan while it lives.
class ReadFault {
public:
    /// Throws when there is no such file.
    ReadFault(const std::string& path, ReadPlan plan);
    ReadFault(const ReadFault&) = delete;
    ReadFault& operator=(const ReadFault&) = delete;
    ReadFault(ReadFault&&) = delete;
    ReadFault& operator=(ReadFault&&) = delete;
    ~ReadFault();

    /// How many reads of the file there have been.
    [[nodiscard]] std::size_t reads() const noexcept { return reads_; }

    /// Reads for the system call: as the plan has it when the file is the one that it is for.
    [[nodiscard]] static long read(int file, void* bytes, std::size_t size);

private:
    [[nodiscard]] bool is_about(int file) const noexcept;
    [[nodiscard]] long read_by_plan(int file, void* bytes, std::size_t size);

    ReadPlan plan_;
    struct stat status_ {};
    std::size_t reads_ = 0;
};

}  // namespace nurl::test
