// The program around the tests. NURL_TEST_LOCALE names a locale that they all run under, for C and
// C++ alike; the classic one otherwise.
#define DOCTEST_CONFIG_IMPLEMENT
#include <cstdlib>
#include <locale>

#include <doctest/doctest.h>

int main(int argc, char** argv) {
    // NOLINTNEXTLINE(concurrency-mt-unsafe): there are no threads yet
    if (const char* const name = std::getenv("NURL_TEST_LOCALE"))
        std::locale::global(std::locale(name));
    return doctest::Context(argc, argv).run();
}
