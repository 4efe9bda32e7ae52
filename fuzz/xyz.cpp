// An XYZ file of any bytes: it is refused with a line of the text, or it has the atoms that it
// counts and reads the same when it is written again.
#include "xyz.hpp"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstddef>
#include <cstdint>
#include <string>

#include "bytes.hpp"
#include "require.hpp"

namespace {

using nurl::fuzz::require;

std::string real(double value) {
    constexpr std::size_t longest = 32;
    std::array<char, longest> text{};
    return {text.data(), std::to_chars(text.data(), text.data() + text.size(), value).ptr};
}

std::string written(const gms_inp::XyzMolecule& molecule) {
    std::string text = std::to_string(molecule.atoms.size()) + '\n' + molecule.comment + '\n';
    for (const auto& atom : molecule.atoms)
        text += atom.symbol + ' ' + real(atom.x) + ' ' + real(atom.y) + ' ' + real(atom.z) + '\n';
    return text;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string text = nurl::fuzz::text_of(data, size);
    const gms_inp::XyzMolecule molecule = gms_inp::read_xyz(text);
    const auto line_ends = static_cast<std::size_t>(std::ranges::count(text, '\n'));
    require(molecule.fault.empty() == (molecule.faulty_line == 0), "a fault has a line");
    if (!molecule.fault.empty()) return 0;

    require(molecule.atoms.size() <= line_ends, "each atom has a line of its own");
    const gms_inp::XyzMolecule again = gms_inp::read_xyz(written(molecule));
    require(again.fault.empty(), "a molecule that was read can be written and read");
    require(again.comment == molecule.comment && again.atoms == molecule.atoms,
            "a molecule that is written reads the same");
    return 0;
}
