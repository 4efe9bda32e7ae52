#include "exit_code.hpp"

namespace gms_inp {

std::string exit_code_help() {
    std::string help = "Exit status:";
    for (const ExitCodeText& row : exit_code_texts) {
        help += "\n  ";
        help += std::to_string(status_of(row.code));
        help += "  ";
        help += row.text;
    }
    return help;
}

}  // namespace gms_inp
