#include "limit_options.h"

#include <charconv>
#include <cstddef>
#include <iterator>

namespace tool {
namespace {

using What = lv::Excess::What;

/// 1 GiB, which no document of calibration data comes near; a parse of that much may need gigabytes many times over.
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

/// Decimal digits alone: hexadecimal and octal numbers, which would be converted, too, are refused.
std::string complaintIfNoCount(const std::string& text) {
    std::size_t count = 0;
    const char* const end = std::next(text.data(), static_cast<std::ptrdiff_t>(text.size()));
    const auto [stop, error] = std::from_chars(text.data(), end, count);
    const bool isNumber = error == std::errc() && stop == end && (text.front() != '0' || text.size() == 1);
    return isNumber && count <= largest ? "" : "'" + text + "' is no number from 0 to " + std::to_string(largest);
}

void addOption(CLI::App& command, What what, std::size_t& limit, const std::string& things) {
    command
        .add_option(optionFor(what), limit,
                    "Refuse a document with more " + things + " than N, " + std::to_string(limit) + " unless given")
        ->type_name("N")
        ->check(complaintIfNoCount);
}

}  // namespace

void addLimitOptions(CLI::App& command, lv::Limits& limits) {
    addOption(command, What::bytes, limits.bytes, "bytes");
    addOption(command, What::elements, limits.elements, "elements");
    addOption(command, What::nodes, limits.nodes, "nodes (elements, attributes, texts, comments, other markup)");
    addOption(command, What::attributes, limits.attributes, "attributes in one tag");
    addOption(command, What::brokenReferences, limits.brokenReferences, "'&#' without ';' in one text");
}

std::string excessReason(const lv::Excess& excess) {
    return excess.toString() + " (limit: " + optionFor(excess.what) + ')';
}

}  // namespace tool
