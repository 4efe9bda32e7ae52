#include "deck_output.hpp"

#include <filesystem>
#include <stdexcept>
#include <system_error>

#include "nurl/core/fs.hpp"
#include "output.hpp"

namespace gms_inp {

void refuse_same_file(const std::string& input, const std::string& output) {
    namespace fs = std::filesystem;
    if (output == "-") return;
    const fs::path source = input == "-" ? "/dev/stdin" : input;
    std::error_code error;
    if (!fs::is_regular_file(output, error)) return;
    if (!fs::equivalent(source, output, error)) return;
    throw std::runtime_error("output is the file that is read (-i edits a deck in place): " +
                             output);
}

void require_editable_in_place(const std::string& path) {
    std::error_code error;
    if (std::filesystem::is_other(path, error))
        throw std::runtime_error("cannot edit what is no regular file in place: " + path);
}

void write_file(const std::string& path, std::string_view text) {
    if (nurl::core::fs::write_text_file(path, text)) return;
    throw std::runtime_error("cannot write " + path);
}

void write_output(const std::string& output, std::string_view text) {
    if (output != "-") {
        write_file(output, text);
        return;
    }
    print_deck_text(text);
    finish_output();
}

}  // namespace gms_inp
