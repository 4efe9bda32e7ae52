// Reads a deck, asks for a tighter geometry search with more steps, and writes a new deck.
#include <iostream>
#include <nurl/input/gamess.hpp>

int main(int argc, char** argv) {
    using namespace nurl::input::gamess;
    if (argc != 3) {
        std::cerr << "usage: tighten_search DECK NEW_DECK\n";
        return 2;
    }
    ParseResult deck = parse_file(argv[1]);
    if (!deck.ok) {
        std::cerr << deck.error << '\n';
        return 2;
    }
    auto search = typed::get_statpt_section(deck.input).value_or(typed::StatptSection{});
    search.opttol = 1e-5;
    search.nstep = search.nstep.value_or(50) * 2;
    typed::set_statpt_section(deck.input, search);
    try {
        deck.input.write_file(argv[2]);
    } catch (const std::exception& error) {
        std::cerr << error.what() << '\n';
        return 2;
    }
}
