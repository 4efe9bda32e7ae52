/// @file
/// The generic groups of a deck as plain lists of pairs, to compare the editor with.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "nurl/input/gamess/model.hpp"

namespace nurl::fuzz {

/// Edits generic groups as the editor promises to, in the plainest way. Groups that were read with
/// free text are known by name only.
class PlainDeck {
public:
    using Entries = std::vector<input::gamess::KeyValue>;

    /// Takes the groups of a document that was read.
    explicit PlainDeck(const input::gamess::GamessInput& deck);

    /// Whether there is a group. @param name  upper case, without `$`, as in all members
    [[nodiscard]] bool has(const std::string& name) const;

    /// The keywords of a group, each once, with its last value; nothing for a group with free text.
    [[nodiscard]] std::optional<Entries> keywords(const std::string& name) const;

    /// Adds a group that is not there.
    void ensure(const std::string& name);

    /// Removes all groups of a name.
    void remove(const std::string& name);

    /// Replaces the first entry of a keyword or appends one.
    void set(const std::string& name, const std::string& key, const std::string& value);

    /// Removes all entries of a keyword.
    void remove_keyword(const std::string& name, const std::string& key);

private:
    struct Group {
        std::string name;
        Entries entries;
        bool has_free_text = false;
    };

    [[nodiscard]] Group* find(const std::string& name);

    std::vector<Group> groups_;
};

}  // namespace nurl::fuzz
