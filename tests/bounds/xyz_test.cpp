#include "xyz.hpp"

#include <cstddef>
#include <string>
#include <string_view>

#include <doctest/doctest.h>

#include "bounds/counting.hpp"
#include "growth/measure.hpp"

namespace {

constexpr std::size_t bytes_per_byte = 100;
constexpr std::size_t few_further_bytes = 2048;
constexpr std::size_t number = 513;

std::string times(std::string_view unit) {
    std::string text;
    for (std::size_t i = 0; i < number; ++i) text += unit;
    return text;
}

void check_xyz(const std::string& text) {
    const std::size_t used = nurl::test::heap_used_by([&] {
        static_cast<void>(nurl::bench::growth::measured([&] { return gms_inp::read_xyz(text); }));
    });
    INFO("a file that begins with ", text.substr(0, 40));
    CHECK(used <= bytes_per_byte * text.size() + few_further_bytes);
}

}  // namespace

TEST_SUITE_BEGIN("heap" * doctest::skip(nurl::test::is_sanitized()));

TEST_CASE("An XYZ file takes no more of the heap than is promised") {
    check_xyz(std::to_string(number) + "\nt\n" + times("H 0 0 0\n"));
    check_xyz("1\nt\nH 0 0 0" + times(" 0") + "\n");
    check_xyz("1\nt\nH 0 0 0" + times(",0") + "\n");
    check_xyz("999999999\nt\n" + times("H 0 0 0\n"));
    check_xyz("1\nt\n" + times("\n"));
}

TEST_SUITE_END();
