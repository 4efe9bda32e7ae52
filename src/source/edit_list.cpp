#include "source/edit_list.hpp"

#include <algorithm>
#include <stdexcept>

namespace nurl::input::gamess::source {

std::string edited_text(std::string_view text, std::span<const Edit> edits) {
    std::size_t end = 0;
    std::size_t added = 0;
    for (const Edit& edit : edits) {
        if (edit.span.begin < end || edit.span.end < edit.span.begin || edit.span.end > text.size())
            throw std::runtime_error("Edits overlap or lie outside the text");
        end = edit.span.end;
        added += edit.text.size();
    }
    std::string result;
    result.reserve(text.size() + added);
    std::size_t kept = 0;
    for (const Edit& edit : edits) {
        result += text.substr(kept, edit.span.begin - kept);
        result += edit.text;
        kept = edit.span.end;
    }
    result += text.substr(kept);
    return result;
}

}  // namespace nurl::input::gamess::source
