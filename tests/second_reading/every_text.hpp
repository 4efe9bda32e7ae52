/// @file
/// Every text of some length, for comparing two readings exhaustively.
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

namespace nurl::test {

/// How many texts were compared, and the first on which the two readings differed.
struct Comparison {
    std::size_t texts =
        0;  ///< every text of up to the length asked for, when there is no difference
    std::string first_difference;  ///< in quotes; empty when there is none
};

/// Joins up to `length` of the tokens in every order, repetitions included, and asks `is_same`
/// about each text, from the shortest ones on, up to the first for which it says no.
[[nodiscard]] Comparison compare_every_text(const std::vector<std::string>& tokens,
                                            std::size_t length,
                                            const std::function<bool(const std::string&)>& is_same);

/// How many texts of up to `length` tokens there are.
[[nodiscard]] std::size_t count_texts(std::size_t tokens, std::size_t length);

/// The number in the environment variable `NURL_TEST_EXHAUSTIVE`, or `otherwise` without one.
[[nodiscard]] std::size_t exhaustive_length(std::size_t otherwise);

}  // namespace nurl::test
