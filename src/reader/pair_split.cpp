#include "reader/pair_split.hpp"

#include "model/entries.hpp"
#include "reader/pair_scanner.hpp"

namespace nurl::input::gamess::detail {

void split_pairs(std::string_view text, std::vector<KeyValue>& entries, std::string& leftover) {
    leftover.clear();
    std::size_t copied = 0;
    PairScanner scanner(text);
    while (const auto pair = scanner.next()) {
        entries.push_back(normalised_entry(pair->key, pair->value));
        leftover.append(text.substr(copied, pair->begin - copied));
        copied = pair->end;
    }
    leftover.append(text.substr(copied));
}

}  // namespace nurl::input::gamess::detail
