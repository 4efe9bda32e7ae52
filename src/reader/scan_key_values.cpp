#include "nurl/core/text.hpp"
#include "nurl/input/gamess/reader.hpp"
#include "reader/pair_scanner.hpp"

namespace nurl::input::gamess::detail {

std::vector<ScannedKeyValue> scan_key_values(std::string_view text) {
    std::vector<ScannedKeyValue> pairs;
    PairScanner scanner(text);
    while (const auto pair = scanner.next())
        pairs.push_back({core::text::to_upper_copy(pair->key), std::string{pair->value},
                         pair->begin, pair->end});
    return pairs;
}

}  // namespace nurl::input::gamess::detail
