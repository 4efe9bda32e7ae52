#include <filesystem>
#include <fstream>
#include <optional>
#include <string>
#include <system_error>

#include "nurl/input/gamess/reader.hpp"

namespace nurl::input::gamess {

namespace {

/// The size that a regular file has now; 0 for anything else. Only a hint: files change.
std::size_t expected_size(const std::string& path) {
    std::error_code error;
    const std::uintmax_t size = std::filesystem::file_size(path, error);
    return error ? 0 : static_cast<std::size_t>(size);
}

/// Appends up to `count` characters. @return whether there may be more
bool read_block(std::ifstream& file, std::size_t count, std::string& text) {
    const std::size_t before = text.size();
    text.resize(before + count);
    file.read(text.data() + before, static_cast<std::streamsize>(count));
    text.resize(before + static_cast<std::size_t>(file.gcount()));
    return file.good();
}

/// The whole content of a file, or nothing when it cannot be opened or read to its end.
std::optional<std::string> read_text(const std::string& path) {
    constexpr std::size_t further_block = 65536;
    // The system would open what the part in front of a NUL names.
    if (path.find('\0') != std::string::npos) return std::nullopt;
    std::ifstream file(path);
    if (!file) return std::nullopt;
    std::string text;
    // One character more than expected, so that the end is met without another block.
    bool goes_on = read_block(file, expected_size(path) + 1, text);
    while (goes_on) goes_on = read_block(file, further_block, text);
    if (file.bad()) return std::nullopt;
    return text;
}

}  // namespace

ParseResult parse_file(const std::string& path) {
    if (const std::optional<std::string> text = read_text(path)) return parse_string(*text);
    ParseResult result;
    result.error = "Failed to open file: " + path;
    return result;
}

}  // namespace nurl::input::gamess
