#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include <CLI/CLI.hpp>

#include "command.hpp"
#include "deck_edits.hpp"
#include "deck_output.hpp"
#include "deck_source.hpp"
#include "diagnostics.hpp"
#include "finding_text.hpp"
#include "fixes.hpp"
#include "keyword_path.hpp"
#include "nurl/input/gamess/builder.hpp"
#include "nurl/input/gamess/reader.hpp"
#include "nurl/input/gamess/source/deck.hpp"
#include "xyz.hpp"

namespace gms_inp {

namespace {

namespace gamess = nurl::input::gamess;

constexpr const char* footer =
    R"(The XYZ file holds one molecule: the number of atoms, a comment, and 'symbol x y z'
for each atom in angstrom. The comment becomes the title unless --title is given.
Without options the deck asks for the RHF energy of a neutral singlet in C1. What
'gms-inp check' would find in the deck is said, and mended where it is safe to.

Examples:
  gms-inp new --xyz water.xyz --basis N31 --set BASIS.NGAUSS=6 -o water.inp
  gms-inp new --xyz radical.xyz --mult 2 --scftyp UHF --basis CCD -o radical.inp
  gms-inp new --xyz - --runtyp OPTIMIZE --set STATPT.NSTEP=100 < start.xyz)";

struct Options {
    std::string xyz;
    std::string output = "-";
    int charge = 0;
    int multiplicity = 1;
    std::string scftyp = "RHF";
    std::string runtyp = "ENERGY";
    std::string basis;
    std::optional<std::string> title;
    std::string point_group = "C1";
    std::vector<std::string> assignments;
};

gamess::InputBuilder build(const Options& options, const XyzMolecule& molecule) {
    gamess::InputBuilder builder;
    builder.set_charge_and_multiplicity(options.charge, options.multiplicity)
        .set_scftyp(options.scftyp)
        .set_runtyp(options.runtyp)
        .set_title(options.title.value_or(molecule.comment))
        .set_point_group(options.point_group)
        .set_geometry(molecule.atoms);
    if (!options.basis.empty()) builder.set_basis_keyword(options.basis);
    return builder;
}

/// Says what the molecule and the options ask for that can be written all the same.
///
/// @param atoms  as they were built
/// @param input  what is read from the deck
void warn_of_oddities(const std::string& name, const std::vector<gamess::AtomRecord>& atoms,
                      const gamess::GamessInput& input) {
    const auto warn = [&name](const std::string& message) {
        complain({.place = name, .weight = Weight::Warning, .message = message});
    };
    for (const gamess::AtomRecord& atom : atoms)
        if (!atom.nuclear_charge)
            warn("'" + atom.symbol + "' is no element; it is written with charge 0.0");
    if (!input.basis) warn("no basis set: give --basis or --set BASIS.GBASIS=...");
    if (input.control.scftyp == "RHF" && input.control.mult != 1)
        warn("SCFTYP=RHF stands for singlets only: give --scftyp ROHF or UHF");
}

/// Mends what is safe to mend, such as the blank card that a point group other than C1 needs, and
/// says what GAMESS will not take or may take otherwise.
gamess::source::Deck checked(const std::string& output, const gamess::source::Deck& deck) {
    FixedDeck mended = fix_deck(deck, {});
    for (const gamess::source::Finding& finding : mended.remains) {
        const Weight weight = weight_of(finding.severity);
        if (weight == Weight::Info) continue;
        complain({.place = output == "-" ? "<stdout>" : output,
                  .line = finding.position.line,
                  .column = finding.position.column,
                  .weight = weight,
                  .message = ruled_message_of(finding)});
    }
    return std::move(mended.deck);
}

/// The deck as text, when its title and point group are no more than that.
gamess::source::Deck written(const gamess::GamessInput& built) {
    std::string text = built.to_string();
    if (gamess::parse_string(text).input.atoms.size() != built.atoms.size())
        throw std::runtime_error(
            "the title or the point group would end $DATA; --title and --point-group give others");
    return gamess::source::Deck{std::move(text)};
}

ExitCode run(const Options& options) {
    std::vector<Assignment> assignments;
    for (const std::string& text : options.assignments)
        assignments.push_back(parse_assignment(text));
    refuse_same_file(options.xyz, options.output);
    const std::string name = shown_name(options.xyz);
    const XyzMolecule molecule = read_xyz(read_text(options.xyz));
    if (molecule.faulty_line > 0) {
        complain({.place = name,
                  .line = molecule.faulty_line,
                  .weight = Weight::Error,
                  .message = molecule.fault});
        return ExitCode::Trouble;
    }
    const gamess::GamessInput built = build(options, molecule).input();
    gamess::source::Deck deck = written(built);
    set_keywords(deck, assignments);
    warn_of_oddities(name, built.atoms, gamess::parse_string(deck.text()).input);
    const gamess::source::Deck mended = checked(options.output, deck);
    write_output(options.output, mended.text());
    return ExitCode::Fine;
}

}  // namespace

Runner attach_new(CLI::App& app) {
    const auto options = std::make_shared<Options>();
    app.add_option("--xyz", options->xyz, "The molecule, or - for standard input")
        ->required()
        ->type_name("FILE");
    app.add_option("--charge", options->charge, "Charge of the molecule")->type_name("N");
    app.add_option("--mult", options->multiplicity, "Spin multiplicity")->type_name("N");
    app.add_option("--scftyp", options->scftyp, "Wavefunction, such as RHF, ROHF or UHF")
        ->type_name("WORD");
    app.add_option("--runtyp", options->runtyp, "Kind of run, such as ENERGY or OPTIMIZE")
        ->type_name("WORD");
    app.add_option("--basis", options->basis, "Basis set, the value of GBASIS")->type_name("WORD");
    app.add_option("--title", options->title, "Title line")->type_name("TEXT");
    app.add_option("--point-group", options->point_group, "Point-group line")->type_name("TEXT");
    app.add_option("--set", options->assignments, "Further keyword, may be repeated")
        ->type_name("GROUP.KEY=VALUE")
        ->allow_extra_args(false);
    app.add_option("-o,--output", options->output, "File to write, or - for standard output")
        ->type_name("FILE");
    app.footer(footer);
    return [options] { return run(*options); };
}

}  // namespace gms_inp
