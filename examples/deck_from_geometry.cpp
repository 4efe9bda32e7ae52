// Builds the deck of a geometry optimisation and prints it.
#include <iostream>
#include <nurl/input/gamess.hpp>

int main() {
    using namespace nurl::input::gamess;
    InputBuilder deck;
    deck.set_title("Water, RHF/6-31G(d)")
        .set_runtyp("OPTIMIZE")
        .set_basis_keyword("N31")
        .set_ngauss(6)
        .add_basis_keyword("NDFUNC", "1")
        .set_system_mwords(50)
        .add_scf_flag("DIRSCF", true)
        .set_geometry(nurl::core::Geometry{
            {{"O", 0.0, 0.0, 0.1173}, {"H", 0.0, 0.7572, -0.4692}, {"H", 0.0, -0.7572, -0.4692}}});
    std::cout << deck.to_string();
}
