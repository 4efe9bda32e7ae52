#include "support/program_words.hpp"

#include <iterator>
#include <sstream>

namespace nurl::test {

std::vector<std::string> started_as(std::vector<std::string> words) {
    std::istringstream emulator(NURL_TEST_EMULATOR);
    words.insert(words.begin(), std::istream_iterator<std::string>(emulator), {});
    return words;
}

std::vector<char*> pointers(std::vector<std::string>& texts) {
    std::vector<char*> result;
    result.reserve(texts.size() + 1);
    for (std::string& text : texts) result.push_back(text.data());
    result.push_back(nullptr);
    return result;
}

}  // namespace nurl::test
