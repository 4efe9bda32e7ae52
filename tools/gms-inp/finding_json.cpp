#include "finding_json.hpp"

namespace gms_inp {

using Json = nlohmann::ordered_json;

Json json_of(std::span<const Finding> findings) {
    Json list = Json::array();
    for (const Finding& finding : findings) {
        list.push_back({{"severity", text_of(finding.weight)},
                        {"section", finding.section},
                        {"key", finding.key},
                        {"message", finding.message},
                        {"line", finding.line > 0 ? Json(finding.line) : Json()},
                        {"count", finding.count}});
    }
    return list;
}

}  // namespace gms_inp
