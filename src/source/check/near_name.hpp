/// @file
/// Guessing which known name a word was meant to be.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace nurl::input::gamess::source::checks {

/// A set of known names that words are compared with.
class NearNames {
public:
    /// Takes names in any case; those too long to be compared are left out.
    explicit NearNames(const std::vector<std::string>& names);

    /// The nearest known names, in upper case and by letter, at the most two.
    ///
    /// A name is near when at most two letters have to be added, dropped, replaced or exchanged
    /// with their neighbour to get it, one in a word of less than five letters and none in one of a
    /// single letter. A word of more than 24 bytes has no near names.
    ///
    /// The cost is bounded by the number of names.
    [[nodiscard]] std::vector<std::string_view> nearest(std::string_view word) const;

    /// "did you mean X?" or "did you mean X or Y?" about the nearest names; empty without any.
    [[nodiscard]] std::string question(std::string_view word) const;

private:
    struct Name {
        std::string text;           // upper case
        std::uint64_t letters = 0;  // one bit for each that occurs
    };

    std::vector<Name> names_;
};

}  // namespace nurl::input::gamess::source::checks
