// Text of any bytes: the scanner finds the pairs that the plain one finds.
#include <cstddef>
#include <cstdint>
#include <string>

#include "bytes.hpp"
#include "nurl/input/gamess/reader.hpp"
#include "require.hpp"
#include "second_reading/plain_scanner.hpp"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string text = nurl::fuzz::text_of(data, size);
    nurl::fuzz::require(
        nurl::input::gamess::detail::scan_key_values(text) == nurl::test::scan_plainly(text),
        "the scanner finds what the plain scanner finds");
    return 0;
}
