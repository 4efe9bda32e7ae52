#include "reader/pair_split.hpp"

#include <algorithm>

#include "model/text_view.hpp"
#include "reader/pair_scanner.hpp"

namespace nurl::input::gamess::detail {

void split_pairs(std::string_view text, std::vector<PairText>& pairs, std::string& leftover) {
    leftover.clear();
    std::size_t copied = 0;
    PairScanner scanner(text);
    while (const auto pair = scanner.next()) {
        pairs.push_back({pair->key, trim_view(pair->value)});
        const std::string_view gap = text.substr(copied, pair->begin - copied);
        if (!leftover.empty() || !is_blank_text(gap)) leftover.append(gap);
        copied = pair->end;
    }
    leftover.append(text.substr(copied));
}

std::vector<KeyValue> to_entries(std::span<const PairText> pairs) {
    std::vector<KeyValue> entries(pairs.size());
    for (std::size_t i = 0; i < pairs.size(); ++i) {
        // Filled where they stand: moving a short string costs as much as making one.
        entries[i].key = pairs[i].key;
        std::ranges::transform(entries[i].key, entries[i].key.begin(), to_upper);
        entries[i].value = pairs[i].value;
    }
    return entries;
}

}  // namespace nurl::input::gamess::detail
