#include "limit_options.h"

#include "count_option.h"

#include <cstddef>
#include <string>

namespace tool {
namespace {

/// 1 GiB, which no document of calibration data comes near; a parse of that much may need gigabytes many times over.
constexpr std::size_t largest = 1'073'741'824;

void addOption(CLI::App& command, const std::string& name, std::size_t& limit, const std::string& things) {
    const std::string help = "Maximum number of " + things + " (default " + std::to_string(limit) + ")";
    addCountOption(command, name, limit, {0, largest}, help);
}

}  // namespace

void addLimitOptions(CLI::App& command, Limits& limits) {
    addOption(command, "--max-size", limits.bytes, "bytes");
    addOption(command, "--max-elements", limits.elements, "elements");
    addOption(command, "--max-nodes", limits.nodes, "nodes: elements, attributes, texts, comments, other markup");
    addOption(command, "--max-attributes", limits.attributes, "attributes per element");
    addOption(command, "--max-broken-references", limits.brokenReferences, "'&#' without ';' in one text");
}

}  // namespace tool
