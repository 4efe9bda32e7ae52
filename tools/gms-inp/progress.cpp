#include "progress.hpp"

#include <cstdio>
#include <string>

#include "terminal.hpp"

namespace gms_inp {

namespace {

constexpr std::size_t long_job = 20;
constexpr std::size_t name_width = 56;  // keeps the line within 80 columns

void show(std::string_view text) {
    static_cast<void>(std::fwrite(text.data(), 1, text.size(), stderr));
}

}  // namespace

Progress::Progress(std::size_t total) noexcept
    : total_{total}, active_{total >= long_job && is_terminal(stderr)} {}

void Progress::step(std::string_view name) {
    ++done_;
    if (!active_) return;
    const std::string shown = escape_controls(name, Keep::Nothing);
    const std::size_t cut = shown.size() > name_width ? shown.size() - name_width : 0;
    clear();
    show("\r[" + std::to_string(done_) + '/' + std::to_string(total_) + "] " + shown.substr(cut));
    shown_ = true;
}

void Progress::clear() {
    if (shown_) show("\r\033[K");
    shown_ = false;
}

}  // namespace gms_inp
