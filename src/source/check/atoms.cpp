// Close pairs are found with a grid whose cells are as wide as the distance looked for, so that
// only the cell of an atom and its neighbours have to be searched. Atoms that were reported are not
// put into the grid: those in it keep their distance, hence a cell holds no more than a few, even
// when all atoms of a deck lie in one place.
#include "source/check/atoms.hpp"

#include <cmath>
#include <cstdint>
#include <string>
#include <unordered_map>
#include <utility>

#include "model/text_view.hpp"
#include "source/check/element_name.hpp"
#include "source/check/quote.hpp"

namespace nurl::input::gamess::source::checks {

namespace {

using Point = std::array<double, 3>;

constexpr double close = 0.1;         // Angstrom
constexpr double bohr = 0.529177249;  // Angstrom
constexpr double farthest = 1.0e9;    // Angstrom; beyond it no cells are counted

/// Less than the square of `close` by more than what computing with binary numbers adds or takes,
/// so that atoms 0.1 apart as written are that far apart on every machine.
constexpr double close_squared = close * close * (1.0 - 1.0e-9);

double squared_distance(const Point& a, const Point& b) noexcept {
    double sum = 0.0;
    for (std::size_t i = 0; i < a.size(); ++i) sum += (a.at(i) - b.at(i)) * (a.at(i) - b.at(i));
    return sum;
}

class Grid {
public:
    /// The first atom of the deck closer than `close`; null when there is none.
    [[nodiscard]] const Atom* near(const Point& point) const {
        const Cell cell = cell_of(point);
        const Atom* first = nullptr;
        for (std::int64_t dx = -1; dx <= 1; ++dx)
            for (std::int64_t dy = -1; dy <= 1; ++dy)
                for (std::int64_t dz = -1; dz <= 1; ++dz)
                    first =
                        earlier(first, near_in({cell[0] + dx, cell[1] + dy, cell[2] + dz}, point));
        return first;
    }

    void add(const Point& point, const Atom& atom) {
        cells_[cell_of(point)].push_back({point, &atom});
    }

private:
    using Cell = std::array<std::int64_t, 3>;
    struct Entry {
        Point point{};
        const Atom* atom = nullptr;
    };
    struct CellHash {
        std::size_t operator()(const Cell& cell) const noexcept {
            std::uint64_t hash = 0;
            for (const std::int64_t part : cell)
                hash = (hash ^ static_cast<std::uint64_t>(part)) * 0x9E3779B97F4A7C15U;
            return static_cast<std::size_t>(hash ^ (hash >> 32U));
        }
    };

    static const Atom* earlier(const Atom* a, const Atom* b) noexcept {
        if (a == nullptr || b == nullptr) return a == nullptr ? b : a;
        return a->card->span.begin < b->card->span.begin ? a : b;
    }

    static Cell cell_of(const Point& point) noexcept {
        Cell cell{};
        for (std::size_t i = 0; i < cell.size(); ++i)
            cell.at(i) = static_cast<std::int64_t>(std::floor(point.at(i) / close));
        return cell;
    }

    [[nodiscard]] const Atom* near_in(const Cell& cell, const Point& point) const {
        const auto hit = cells_.find(cell);
        if (hit == cells_.end()) return nullptr;
        for (const Entry& entry : hit->second)
            if (squared_distance(entry.point, point) < close_squared) return entry.atom;
        return nullptr;
    }

    std::unordered_map<Cell, std::vector<Entry>, CellHash> cells_;
};

/// The place of an atom in Angstrom; nothing when it has none, or no charge.
std::optional<Point> place_of_nucleus(const Atom& atom, double unit) noexcept {
    if (!atom.place || !atom.charge || *atom.charge <= 0.0) return std::nullopt;
    Point point = *atom.place;
    for (double& coordinate : point) {
        coordinate *= unit;
        if (std::abs(coordinate) > farthest) return std::nullopt;
    }
    return point;
}

std::string close_message(const Atom& atom, const Atom& other) {
    return "Atom " + quoted(atom.name) + " lies closer than 0.1 Angstrom to atom " +
           quoted(other.name) + " in line " + std::to_string(other.card->position.line);
}

/// Whether a charge is none, or that of a nucleus that is left out. Coordinates are seldom whole.
bool carries_basis_only(double charge) noexcept {
    return charge <= 0.0 && charge == std::floor(charge);
}

/// Whether the name is followed by three numbers, as if by coordinates alone.
bool lacks_charge(const Atom& atom) noexcept {
    constexpr std::size_t name_and_coordinates = 4;
    return atom.card->words.size() == name_and_coordinates &&
           *atom.charge != std::floor(*atom.charge);
}

/// The number of the element that an atom is named after, when its charge is of another one.
std::optional<int> named_element(const Atom& atom) {
    if (!atom.charge || carries_basis_only(*atom.charge) || !is_plain_label(atom.name))
        return std::nullopt;
    if (names_element(atom.name, *atom.charge)) return std::nullopt;
    return element_of(atom.name);
}

std::string charge_message(const Context& context, const Atom& atom, int element) {
    return "Atom " + quoted(atom.name) + " has the charge " +
           shortened(context.deck().text(atom.card->words[1])) + ", the element " +
           std::string{leading_letters(atom.name)} + " has " + std::to_string(element);
}

/// Reports the first of the atoms without a charge for all of them.
void report_uncharged(const std::vector<const Atom*>& atoms, Findings& findings) {
    if (atoms.empty()) return;
    std::string message =
        "Atom " + quoted(atoms.front()->name) + " has coordinates where its charge should stand";
    if (atoms.size() > 1) message += ", and so have " + std::to_string(atoms.size() - 1) + " more";
    findings.add(atoms.front()->card->span, std::move(message));
}

}  // namespace

void find_charge_symbol(const Context& context, Findings& findings) {
    if (context.has_group("FMO")) return;
    std::vector<const Atom*> uncharged;
    for (const Atom& atom : context.atoms()) {
        const auto element = named_element(atom);
        if (!element) continue;
        if (lacks_charge(atom))
            uncharged.push_back(&atom);
        else
            findings.add(atom.card->words[1], charge_message(context, atom, *element));
    }
    report_uncharged(uncharged, findings);
}

void find_close_atoms(const Context& context, Findings& findings) {
    // The types of atoms of a fragment run have no place, and quantum nuclei may share one.
    if (context.has_group("FMO") || context.has_group("NEO")) return;
    const bool is_bohr = detail::equal_ignoring_case(context.last_word("CONTRL", "UNITS"), "BOHR");
    Grid grid;
    for (const Atom& atom : context.atoms()) {
        const auto point = place_of_nucleus(atom, is_bohr ? bohr : 1.0);
        if (!point) continue;
        if (const Atom* const other = grid.near(*point))
            findings.add(atom.card->span, close_message(atom, *other));
        else
            grid.add(*point, atom);
    }
}

}  // namespace nurl::input::gamess::source::checks
