/// @file
/// Collecting what the rules find.
#pragma once

#include <string>
#include <vector>

#include "nurl/input/gamess/source/check.hpp"
#include "nurl/input/gamess/source/deck.hpp"

namespace nurl::input::gamess::source::checks {

/// The findings of all rules over one deck, which must outlive them.
class Findings {
public:
    /// Starts without findings.
    explicit Findings(const Deck& deck) noexcept : deck_(deck) {}

    /// Says which rule the following findings are of. The rule must outlive them.
    void begin(const Rule& rule) noexcept { rule_ = &rule; }

    /// Adds a finding of the rule begun last.
    void add(Span span, std::string message, std::string hint = {}, std::vector<Edit> fix = {});

    /// The findings by place, those at one place by the name of their rule, with their positions.
    /// One pass over the text.
    [[nodiscard]] std::vector<Finding> take() &&;

private:
    void place_all() noexcept;

    const Deck& deck_;
    const Rule* rule_ = nullptr;
    std::vector<Finding> findings_;
};

}  // namespace nurl::input::gamess::source::checks
