// scan_key_values on a line of text.
#include <array>
#include <string_view>

#include "growth/family.hpp"
#include "growth/measure.hpp"
#include "nurl/input/gamess/reader.hpp"

namespace nurl::bench::growth {

namespace {

using namespace std::string_view_literals;

void scan(const Input& input) {
    const auto pairs =
        measured([&] { return nurl::input::gamess::detail::scan_key_values(input.text); });
    require(pairs.size() <= input.text.size());
}

constexpr auto families = std::to_array<Family>({
    {"scan a value and n words that open a parenthesis", {"A=x ", "b( "}, scan, words},
    {"scan a value and n words with a closed index", {"A=x ", "b(1) "}, scan, words},
    {"scan n words that open a parenthesis", {"", "b("}, scan, words},
    {"scan n parentheses that open behind a key", {"A=x b", "("}, scan, bytes},
    {"scan n nested parentheses of an index", {"A=x b", "(", "", ")", "=1"}, scan, bytes},
    {"scan n nested words of an index", {"A=x b", "(c ", "", ")", "=1"}, scan, words},
    {"scan n parentheses that close", {"A=x b", ")"}, scan, bytes},
    {"scan n parentheses that open and close by turns", {"A=x b", "()"}, scan, words},
    {"scan n parentheses that close and open by turns", {"A=x b", ") ("}, scan, words},
    {"scan an index of n words", {"A=x b(", "c ", ")"}, scan, words},
    {"scan n pairs", {"", "K%=1 "}, scan, things},
    {"scan n pairs without blanks", {"", "K%=1"}, scan, things},
    {"scan n keys without a value", {"", "K = "}, scan, words},
    {"scan n keys, each far from its `=`", {"", "K          \n          = "}, scan, words},
    {"scan n words", {"", "word "}, scan, words},
    {"scan n words behind a value", {"A=x ", "word "}, scan, words},
    {"scan a word of n letters", {"A=x ", "w"}, scan, bytes},
    {"scan n blanks behind a key", {"A=x b", " "}, scan, bytes},
    {"scan n `=`", {"A", "="}, scan, bytes},
    {"scan n `$`", {"A=1 ", "$"}, scan, bytes},
    {"scan n `$` between blanks", {"A=1 ", "$ "}, scan, words},
    {"scan n line ends", {"A=1 ", "\n"}, scan, bytes},
    {"scan n bytes of zero", {"A=1 ", "\0"sv}, scan, bytes},
});

}  // namespace

std::span<const Family> scanner_families() noexcept { return families; }

}  // namespace nurl::bench::growth
