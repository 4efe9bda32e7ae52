/// @file
/// What the canonical layout does not keep of keyword and raw groups.
#pragma once

#include <cstddef>
#include <string>

#include "deck_walk.hpp"
#include "group_text.hpp"
#include "loss_counts.hpp"
#include "nurl/input/gamess/model.hpp"

namespace gms_inp {

/// Follows the lines of all groups but `$DATA`.
class GroupLosses {
public:
    /// Counts into `counts`, which must outlive this object.
    explicit GroupLosses(LossCounts& counts) noexcept;

    /// Takes the next line of a group.
    void add(const DeckLine& line, GroupKind kind);

    /// To be called once, behind the last line, with the document that was read.
    void finish(const nurl::input::gamess::GamessInput& input);

private:
    /// What is known of the group that is being read.
    struct Group {
        std::string name;
        GroupKind kind = GroupKind::Keywords;
        bool described = false;        ///< the schema knows it
        bool has_pairs = false;        ///< it has keywords
        bool breaks_lines = false;     ///< it has keywords on further lines
        std::size_t pending_text = 0;  ///< pieces of free text behind its last keyword so far
        std::size_t header_text = 0;   ///< texts on its header line, when it is raw
        std::size_t indented = 0;      ///< lines with leading blanks, when it is raw
        std::size_t blank = 0;         ///< blank lines, when it is raw
    };

    void add_structured(const DeckLine& line);
    void add_keywords(const DeckLine& line);
    void add_raw(const DeckLine& line);
    void add_pairs(const DeckLine& line, const GroupText& text);
    void close_group();

    LossCounts& counts_;
    Group group_;
    std::size_t structured_pairs_ = 0;
};

}  // namespace gms_inp
