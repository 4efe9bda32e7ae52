#include "support/emulator.hpp"

#include <iterator>
#include <sstream>

namespace nurl::test {

std::vector<std::string> started_as(std::vector<std::string> words) {
    std::istringstream emulator(NURL_TEST_EMULATOR);
    words.insert(words.begin(), std::istream_iterator<std::string>(emulator), {});
    return words;
}

}  // namespace nurl::test
