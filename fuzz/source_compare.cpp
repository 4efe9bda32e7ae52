// A deck of any bytes: it equals itself, and still does when its long lines are folded.
#include <cstddef>
#include <cstdint>
#include <string>

#include "nurl/input/gamess/source/check.hpp"
#include "nurl/input/gamess/source/compare.hpp"
#include "nurl/input/gamess/source/deck.hpp"
#include "nurl/input/gamess/source/wrap.hpp"
#include "require.hpp"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using nurl::fuzz::require;
    namespace source = nurl::input::gamess::source;
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): bytes are characters here
    const source::Deck deck{std::string{reinterpret_cast<const char*>(data), size}};
    require(source::compare(deck, deck).empty(), "a deck equals itself");

    source::Deck folded = deck;
    folded.apply(source::wrap(deck));
    require(source::compare(deck, folded).empty(), "a folded deck equals the deck");
    require(source::compare(folded, deck).empty(), "the deck equals a folded deck");
    require(source::wrap(folded).empty(), "a folded deck is not folded again");

    for (const source::Finding& finding : source::check(deck))
        require(finding.span.begin <= finding.span.end && finding.span.end <= size,
                "findings lie in the text");
    return 0;
}
