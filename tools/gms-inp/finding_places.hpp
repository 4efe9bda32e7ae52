/// @file
/// Where in the text of a deck a finding belongs.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <unordered_map>

#include "deck_walk.hpp"

namespace gms_inp {

/// What is looked for in the text.
enum class PlaceKind : char {
    Group,          ///< header of a group
    Keyword,        ///< a keyword of a group
    HeaderText,     ///< text on a header line that is neither keyword nor comment
    BodyText,       ///< the same on a further line of a group
    AnyText,        ///< either of the two
    Unclosed,       ///< header of a group that another header ends
    UnclosedAtEnd,  ///< header of a group that the end of the text ends
};

/// The lines where something stands.
struct Places {
    std::size_t first_line = 0;  ///< first of them, from 1; 0 when there is none
    std::size_t count = 0;       ///< number of times it stands there
};

/// An index of a deck's text.
class PlaceIndex {
public:
    /// Reads the text once; linear in its length.
    explicit PlaceIndex(std::string_view text);

    /// Looks a place up.
    ///
    /// @param group    name of the group, any case, without `$`
    /// @param keyword  upper case, with its index; only for `PlaceKind::Keyword`
    [[nodiscard]] Places find(PlaceKind kind, std::string_view group,
                              std::string_view keyword = {}) const;

private:
    void add(PlaceKind kind, std::string_view group, std::size_t line,
             std::string_view keyword = {});
    void add_group_text(const DeckLine& line);  ///< of a group that is neither raw nor `$DATA`

    std::unordered_map<std::string, Places> places_;
};

}  // namespace gms_inp
