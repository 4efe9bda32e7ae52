/// @file
/// Showing how far a long job is.
#pragma once

#include <cstddef>
#include <string_view>

namespace gms_inp {

/// A line on standard error that counts, when that is a terminal and the job is long.
class Progress {
public:
    /// A job of `total` steps.
    explicit Progress(std::size_t total) noexcept;

    /// Shows the next step and its name in place of the one before.
    void step(std::string_view name);

    /// Takes the line away, so that other text can be written.
    void clear();

private:
    std::size_t total_;
    std::size_t done_ = 0;
    bool active_;
    bool shown_ = false;
};

}  // namespace gms_inp
