#include "finding_json.hpp"

#include <nlohmann/json.hpp>

#include "finding_text.hpp"

namespace gms_inp {

namespace source = nurl::input::gamess::source;
using Json = nlohmann::ordered_json;

Json json_of(std::span<const source::Finding> findings, const LineTable& lines) {
    Json list = Json::array();
    for (const source::Finding& finding : findings) {
        const source::Position end = lines.at(finding.span.end);
        list.push_back({{"rule", finding.rule},
                        {"severity", text_of(weight_of(finding.severity))},
                        {"line", finding.position.line},
                        {"column", finding.position.column},
                        {"end_line", end.line},
                        {"end_column", end.column},
                        {"offset", finding.span.begin},
                        {"length", finding.span.size()},
                        {"message", finding.message},
                        {"hint", finding.hint},
                        {"fixable", !finding.fix.empty()}});
    }
    return list;
}

}  // namespace gms_inp
