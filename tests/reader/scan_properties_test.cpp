#include <cstddef>
#include <string>

#include <doctest/doctest.h>
#include <rapidcheck.h>

#include "nurl/core/text.hpp"
#include "reader/scan_table.hpp"
#include "reader/text_generator.hpp"

using nurl::core::text::to_upper_copy;
using nurl::input::gamess::detail::scan_key_values;
using nurl::test::keyword_mixture;
using nurl::test::Pairs;

namespace {

constexpr const char* value_padding = " \t\r\n";

/// What holds for the pairs of every text.
void check_spans(const std::string& text) {
    std::size_t passed = 0;
    for (const auto& [key, value, begin, end] : scan_key_values(text)) {
        RC_ASSERT(passed <= begin);
        RC_ASSERT(begin + key.size() + 1 + value.size() <= end);
        RC_ASSERT(end <= text.size());
        passed = end;

        RC_ASSERT(to_upper_copy(text.substr(begin, key.size())) == key);
        RC_ASSERT(value.find_first_of(value_padding) != 0);
        RC_ASSERT(value.find_last_of(value_padding) != value.size() - 1);
        RC_ASSERT(value.find('$') == std::string::npos);

        const std::string span = text.substr(begin, end - begin);
        RC_ASSERT(scan_key_values(span) == Pairs({{key, value, 0, span.size()}}));
    }
}

}  // namespace

TEST_CASE("The spans of any bytes lie in the text and ascend and scan to the same pair again") {
    CHECK(rc::check("random bytes", [](const std::string& text) { check_spans(text); }));
}

TEST_CASE("The spans of keyword text lie in it and ascend and scan to the same pair again") {
    CHECK(rc::check("keyword text", [] { check_spans(*keyword_mixture()); }));
}
