/// @file
/// Groups that an edit needs and the deck may lack.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "nurl/input/gamess/model.hpp"

namespace nurl::input::gamess::detail {

/// Makes sure that a document has a group, as `InputEditor::ensure_section` promises.
///
/// @param name  as `editor_section_name` gives it; neither empty nor `DATA`
void ensure_group(GamessInput& input, const std::string& name);

/// The group that a keyword is to go into. A group that had to be added for that goes again with
/// this object unless it is kept.
class AddedGroup {
public:
    /// Adds the group where it is missing, as `ensure_group` does.
    ///
    /// @param name  as `ensure_group` takes it; must outlive the object
    AddedGroup(GamessInput& input, const std::string& name);
    AddedGroup(const AddedGroup&) = delete;
    AddedGroup& operator=(const AddedGroup&) = delete;
    AddedGroup(AddedGroup&&) = delete;
    AddedGroup& operator=(AddedGroup&&) = delete;
    ~AddedGroup();

    /// Lets the group stay.
    void keep() noexcept { is_kept_ = true; }

private:
    GamessInput& input_;
    const std::string& name_;
    std::size_t sections_;
    std::size_t extra_sections_;
    bool was_present_;
    bool is_kept_ = false;
};

}  // namespace nurl::input::gamess::detail
