#include "finding_text.hpp"

namespace gms_inp {

namespace source = nurl::input::gamess::source;
using nurl::input::gamess::validation::Severity;

Weight weight_of(Severity severity) noexcept {
    if (severity == Severity::Error) return Weight::Error;
    return severity == Severity::Warning ? Weight::Warning : Weight::Info;
}

std::string message_of(const source::Finding& finding) {
    return finding.hint.empty() ? finding.message : finding.message + "; " + finding.hint;
}

std::string ruled_message_of(const source::Finding& finding) {
    return message_of(finding) + " [" + finding.rule + ']';
}

std::string line_of(const std::string& name, Weight weight, const source::Finding& finding,
                    Colour colour) {
    const std::string message = ruled_message_of(finding);
    return format({.place = name,
                   .line = finding.position.line,
                   .column = finding.position.column,
                   .weight = weight,
                   .message = message},
                  colour);
}

}  // namespace gms_inp
