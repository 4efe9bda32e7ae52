/// @file
/// A random keyword to be set, and what is to come of it.
#pragma once

#include <optional>
#include <string>

#include "nurl/input/gamess/model.hpp"
#include "support/structured_values.hpp"

namespace nurl::test {

/// A group, a keyword and a value, each as somebody may spell it and as it counts.
struct Setting {
    /// Draws them: any keyword, one with a member or one that the document lists.
    explicit Setting(const input::gamess::GamessInput& deck);

    std::string group;
    std::string key;
    std::string value;
    std::string bare_group;
    std::string bare_key;
    std::string bare_value;
    bool is_structured;
    std::optional<ValueKind> member;  ///< what the member of the keyword holds, when there is one
};

/// What `get_keyword` is to give after the setting, whose value is not blank.
[[nodiscard]] std::string expected_value(const input::gamess::GamessInput& before,
                                         const Setting& setting);

}  // namespace nurl::test
