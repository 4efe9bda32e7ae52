#include <unordered_set>
#include <utility>
#include <vector>

#include "editor/added_group.hpp"
#include "editor/editor_names.hpp"
#include "model/structured_groups.hpp"
#include "nurl/input/gamess/editor.hpp"
#include "writer/data_block.hpp"

namespace nurl::input::gamess {

namespace {

using detail::editor_section_name;

bool has_data(const GamessInput& input) {
    return detail::data_is_due(input, detail::is_editor_blank);
}

bool clear_data(GamessInput& input) {
    const bool had_data = has_data(input);
    input.has_data = false;
    input.title.clear();
    input.point_group.clear();
    input.atoms.clear();
    input.data_lines.clear();
    return had_data;
}

/// Nothing may be thrown half-way, when groups have been moved up already.
void erase_copies(std::vector<NamedSection>& list, std::string_view name) noexcept {
    std::erase_if(list, [name](const NamedSection& section) noexcept {
        return detail::is_editor_section(section.name, name);
    });
}

/// Group names, each once, in the order of their first appearance.
class NameList {
public:
    void add(const std::string& name) {
        if (listed_.insert(name).second) names_.push_back(name);
    }

    [[nodiscard]] std::vector<std::string> take() && noexcept { return std::move(names_); }

private:
    std::vector<std::string> names_;
    std::unordered_set<std::string> listed_;
};

}  // namespace

InputEditor::InputEditor(GamessInput input) noexcept : input_(std::move(input)) {}

const GamessInput& InputEditor::input() const noexcept { return input_; }

GamessInput InputEditor::take() && noexcept { return std::move(input_); }

bool InputEditor::has_section(std::string_view name) const {
    const std::string bare = editor_section_name(name);
    if (bare == "DATA") return has_data(input_);
    if (detail::is_structured(bare)) return detail::structured_present(input_, bare);
    return input_.find_section(bare) != nullptr;
}

void InputEditor::ensure_section(std::string_view name) {
    const std::string bare = editor_section_name(name);
    if (bare.empty() || bare == "DATA") return;
    detail::ensure_group(input_, bare);
}

bool InputEditor::remove_section(std::string_view name) {
    const std::string bare = editor_section_name(name);
    if (bare.empty()) return false;
    if (bare == "DATA") return clear_data(input_);
    const bool was_there = has_section(name);
    detail::disengage_structured(input_, bare);
    erase_copies(input_.sections, bare);
    erase_copies(input_.extra_sections, bare);
    return was_there;
}

std::vector<std::string> InputEditor::section_names() const {
    NameList names;
    for (const NamedSection& section : input_.sections) {
        const std::string name = editor_section_name(section.name);
        if (!detail::is_structured(name) || detail::structured_present(input_, name))
            names.add(name);
    }
    for (const std::string_view name : detail::structured_names)
        if (detail::structured_present(input_, name)) names.add(std::string{name});
    for (const NamedSection& section : input_.extra_sections)
        names.add(editor_section_name(section.name));
    if (has_data(input_)) names.add("DATA");
    return std::move(names).take();
}

std::vector<validation::Issue> InputEditor::validate(const validation::Options& options) const {
    return validation::validate(input_, options);
}

}  // namespace nurl::input::gamess
