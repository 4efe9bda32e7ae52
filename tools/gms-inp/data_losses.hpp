/// @file
/// What the canonical layout does not keep of `$DATA`.
#pragma once

#include <cstddef>
#include <string_view>

#include "deck_walk.hpp"
#include "loss_counts.hpp"
#include "nurl/input/gamess/model.hpp"

namespace gms_inp {

/// Follows the lines of `$DATA`. Which of them are atoms is not decided here: a line that the
/// document does not hold as a kept line is an atom.
class DataLosses {
public:
    /// Counts into `counts`. Both arguments must outlive this object.
    DataLosses(const nurl::input::gamess::GamessInput& read, LossCounts& counts);

    /// Takes the next line of `$DATA`.
    void add(const DeckLine& line);

private:
    void add_blank(const DeckLine& line);
    void add_text(std::string_view text);
    void add_atom(std::string_view text);
    [[nodiscard]] bool take_kept_line(std::string_view text) noexcept;

    const nurl::input::gamess::GamessInput& read_;
    LossCounts& counts_;
    std::size_t kept_ = 0;           ///< kept lines met so far
    std::size_t heading_ = 0;        ///< title and point group: how many were met
    std::size_t pending_text_ = 0;   ///< kept lines behind the last atom so far
    std::size_t pending_blank_ = 0;  ///< the blank ones
};

}  // namespace gms_inp
