#include "output.hpp"

#include <cerrno>
#include <cstdio>
#include <stdexcept>
#include <string>
#include <system_error>

#include <nlohmann/json.hpp>

#include "terminal.hpp"

namespace gms_inp {

namespace {

[[noreturn]] void throw_write_error() {
    const std::string reason = std::generic_category().message(errno);
    throw std::runtime_error("cannot write to standard output: " + reason);
}

}  // namespace

void print(std::string_view text) {
    if (std::fwrite(text.data(), 1, text.size(), stdout) != text.size()) throw_write_error();
}

void print_deck_text(std::string_view text) {
    if (is_terminal(stdout)) {
        print(escape_controls(text, Keep::LineEnds));
    } else {
        print(text);
    }
}

void print_json(const nlohmann::ordered_json& json) {
    using Handling = nlohmann::ordered_json::error_handler_t;
    print(json.dump(2, ' ', true, Handling::replace) + '\n');
}

void finish_output() {
    if (std::fflush(stdout) != 0) throw_write_error();
}

}  // namespace gms_inp
