#include "xyz.hpp"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <optional>
#include <system_error>
#include <utility>

#include "ascii.hpp"
#include "nurl/input/gamess/typed/detail.hpp"

namespace gms_inp {

namespace {

using nurl::input::gamess::AtomRecord;

constexpr std::string_view byte_order_mark = "\xEF\xBB\xBF";
constexpr std::size_t atom_words = 4;
constexpr std::string_view marks_of_decks = "$=!";

/// Gives the lines of a text and counts them.
class Lines {
public:
    explicit Lines(std::string_view text) noexcept : rest_{text} {}

    [[nodiscard]] bool at_end() const noexcept { return rest_.empty(); }
    [[nodiscard]] std::size_t number() const noexcept { return number_; }

    /// The next line, trimmed; empty behind the last one.
    std::string_view take() noexcept {
        const std::string_view line = rest_.substr(0, rest_.find('\n'));
        rest_.remove_prefix(std::min(line.size() + 1, rest_.size()));
        ++number_;
        return trim(line);
    }

private:
    std::string_view rest_;
    std::size_t number_ = 0;
};

std::optional<std::uint64_t> read_count(std::string_view text) noexcept {
    std::uint64_t count = 0;
    const char* const end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, count);
    if (error != std::errc{} || stop != end || count == 0) return std::nullopt;
    return count;
}

bool read_real(std::string_view text, double& value) {
    std::vector<double> list;
    if (!nurl::input::gamess::typed::detail::parse_double_list(text, list)) return false;
    if (list.size() != 1 || text.find(',') != std::string_view::npos) return false;
    value = list.front();
    return true;
}

std::optional<AtomRecord> read_atom(std::string_view line) {
    const std::vector<std::string_view> words = words_of(line);
    if (words.size() < atom_words) return std::nullopt;
    if (words[0].find_first_of(marks_of_decks) != std::string_view::npos) return std::nullopt;
    AtomRecord atom{std::string{words[0]}, std::nullopt, 0.0, 0.0, 0.0};
    const bool reads =
        read_real(words[1], atom.x) && read_real(words[2], atom.y) && read_real(words[3], atom.z);
    return reads ? std::optional{std::move(atom)} : std::nullopt;
}

XyzMolecule fault_at(std::size_t line, std::string_view expected, std::string_view found) {
    constexpr std::size_t longest = 60;
    const std::string shown = found.empty() ? "nothing" : "'" + std::string{found} + "'";
    XyzMolecule molecule;
    molecule.faulty_line = line;
    molecule.fault = "expected " + std::string{expected} + ", found " +
                     (shown.size() > longest ? shown.substr(0, longest) + "...'" : shown);
    return molecule;
}

}  // namespace

XyzMolecule read_xyz(std::string_view text) {
    if (text.starts_with(byte_order_mark)) text.remove_prefix(byte_order_mark.size());
    Lines lines{text};
    const std::string_view first = lines.take();
    const std::optional<std::uint64_t> count = read_count(first);
    if (!count) return fault_at(lines.number(), "the number of atoms", first);
    XyzMolecule molecule;
    molecule.comment = lines.take();
    for (std::uint64_t number = 1; number <= *count; ++number) {
        const std::string_view line = lines.take();
        auto atom = read_atom(line);
        const std::string place =
            "atom " + std::to_string(number) + " of " + std::to_string(*count);
        if (!atom) return fault_at(lines.number(), place + " as 'symbol x y z'", line);
        molecule.atoms.push_back(std::move(*atom));
    }
    while (!lines.at_end()) {
        const std::string_view line = lines.take();
        if (!line.empty())
            return fault_at(lines.number(),
                            "the end of the file behind " + std::to_string(*count) + " atoms",
                            line);
    }
    return molecule;
}

}  // namespace gms_inp
