#include "limit_options.h"

#include <charconv>
#include <cstddef>
#include <iterator>
#include <string>

namespace tool {
namespace {

/// 1 GiB, which no document of calibration data comes near; a parse of that much may need gigabytes many times over.
constexpr std::size_t largest = 1'073'741'824;

/// Decimal digits alone: hexadecimal and octal numbers, which would be converted, too, are refused.
std::string complaintIfNoCount(const std::string& text) {
    std::size_t count = 0;
    const char* const end = std::next(text.data(), static_cast<std::ptrdiff_t>(text.size()));
    const auto [stop, error] = std::from_chars(text.data(), end, count);
    const bool isNumber = error == std::errc() && stop == end && (text.front() != '0' || text.size() == 1);
    return isNumber && count <= largest ? "" : "'" + text + "' is no number from 0 to " + std::to_string(largest);
}

void addOption(CLI::App& command, const std::string& name, std::size_t& limit, const std::string& things) {
    command
        .add_option(name, limit,
                    "Refuse a document with more " + things + " than N, " + std::to_string(limit) + " unless given")
        ->type_name("N")
        ->check(complaintIfNoCount);
}

}  // namespace

void addLimitOptions(CLI::App& command, Limits& limits) {
    addOption(command, "--max-size", limits.bytes, "bytes");
    addOption(command, "--max-elements", limits.elements, "elements");
    addOption(command, "--max-nodes", limits.nodes, "nodes (elements, attributes, texts, comments, other markup)");
    addOption(command, "--max-attributes", limits.attributes, "attributes in one tag");
    addOption(command, "--max-broken-references", limits.brokenReferences, "'&#' without ';' in one text");
}

}  // namespace tool
