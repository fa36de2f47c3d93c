#include "limit_options.h"

#include "count_option.h"

#include <cstddef>
#include <string>

namespace tool {
namespace {

using What = lv::Excess::What;

/// 1 GiB: far more than any document of calibration data. Parsing that much may need many gigabytes.
constexpr std::size_t largest = 1'073'741'824;

std::string optionFor(What what) {
    switch (what) {
    case What::bytes:
        return "--max-size";
    case What::elements:
        return "--max-elements";
    case What::nodes:
        return "--max-nodes";
    case What::attributes:
        return "--max-attributes";
    default:
        return "--max-broken-references";
    }
}

void addOption(CLI::App& command, What what, std::size_t& limit, const std::string& things) {
    const std::string help = "Maximum number of " + things + " (default " + std::to_string(limit) + ")";
    addCountOption(command, optionFor(what), limit, {0, largest}, help);
}

}  // namespace

void addLimitOptions(CLI::App& command, lv::Limits& limits) {
    addOption(command, What::bytes, limits.bytes, "bytes");
    addOption(command, What::elements, limits.elements, "elements");
    addOption(command, What::nodes, limits.nodes, "nodes: elements, attributes, texts, comments, other markup");
    addOption(command, What::attributes, limits.attributes, "attributes per element");
    addOption(command, What::brokenReferences, limits.brokenReferences, "'&#' without ';' in one text");
}

std::string limitNote(lv::Excess::What what) {
    return " (limit: " + optionFor(what) + ')';
}

std::string excessReason(const lv::Excess& excess) {
    return excess.toString() + limitNote(excess.what);
}

}  // namespace tool
