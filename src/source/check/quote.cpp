#include "source/check/quote.hpp"

namespace nurl::input::gamess::source::checks {

std::string shortened(std::string_view word) {
    constexpr std::size_t longest = 40;
    if (word.size() <= longest) return std::string{word};
    return std::string{word.substr(0, longest)} + "...";
}

std::string quoted(std::string_view word) { return "'" + shortened(word) + "'"; }

}  // namespace nurl::input::gamess::source::checks
