#include <iostream>

#include "nurl/input/gamess.hpp"

int main() {
    const auto deck = nurl::input::gamess::parse_string(" $CONTRL RUNTYP=OPTIMIZE $END\n");
    std::cout << deck.input.control.runtyp << '\n';
    return deck.ok ? 0 : 1;
}
