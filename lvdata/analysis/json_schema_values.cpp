#include <lvdata/analysis/Constraint.h>
#include <lvdata/analysis/json_schema_values.h>

#include <algorithm>
#include <cstdint>
#include <limits>

namespace lv::analysis {
namespace {

using Content = Description::Content;

/// The whole number with the point moved to the left: 4294967295 with 6 decimals is 4294.967295.
std::string withPoint(std::int64_t number, unsigned int decimals) {
    const bool isNegative = number < 0;
    std::string digits = std::to_string(isNegative ? -number : number);
    digits.insert(0, digits.size() > decimals ? 0 : decimals + 1 - digits.size(), '0');
    if (decimals > 0 && number != 0) {
        digits.insert(digits.size() - decimals, ".");
    }
    return (isNegative ? "-" : "") + (number == 0 ? "0" : digits);
}

/// The numbers of decimals of its quantities.
std::vector<unsigned int> allDecimalsOf(const Description& facts) {
    std::vector<unsigned int> decimals = {facts.quantity ? decimalsOf(*facts.quantity) : 0};
    for (const Description::QuantityWhen& other : facts.otherQuantities) {
        decimals.push_back(decimalsOf(other.quantity));
    }
    return decimals;
}

/// The widest range of its quantities.
std::string numberSchema(const Description& facts, bool isSigned) {
    const std::vector<unsigned int> decimals = allDecimalsOf(facts);
    const auto [least, most] = std::minmax_element(decimals.begin(), decimals.end());
    const std::int64_t smallest = isSigned ? std::numeric_limits<std::int32_t>::min() : 0;
    const std::int64_t greatest =
        isSigned ? std::numeric_limits<std::int32_t>::max() : std::int64_t{std::numeric_limits<std::uint32_t>::max()};
    return std::string(R"("type": ")") + (*most == 0 ? "integer" : "number") + R"(", "minimum": )" +
           withPoint(smallest, *least) + R"(, "maximum": )" + withPoint(greatest, *least);
}

std::string exactly(std::size_t length) {
    const std::string number = std::to_string(length);
    return R"("minItems": )" + number + R"(, "maxItems": )" + number;
}

std::string lengthsSchema(const std::vector<std::size_t>& lengths) {
    if (lengths.size() == 1) {
        return ", " + exactly(lengths.front());
    }
    std::string alternatives;
    for (const std::size_t length : lengths) {
        alternatives += (alternatives.empty() ? "{" : ", {") + exactly(length) + '}';
    }
    return lengths.empty() ? "" : R"(, "anyOf": [)" + alternatives + ']';
}

std::string arraySchema(const Description& facts, bool isSigned) {
    return R"("type": "array", "items": {)" + numberSchema(facts, isSigned) + '}' +
           lengthsSchema(constraintOf(facts).lengths);
}

std::string stringSchema(const Description& facts) {
    const Constraint constraint = constraintOf(facts);
    if (!constraint.texts.empty()) {
        return R"("enum": )" + quotedJSON(constraint.texts);
    }
    return std::string(R"("type": "string")") + (constraint.isNotEmpty ? R"(, "minLength": 1)" : "");
}

}  // namespace

std::string quotedJSON(const std::string& text) {
    std::string quoted = "\"";
    for (const char character : text) {
        quoted += character == '"' || character == '\\' ? "\\" : "";
        quoted += character;
    }
    return quoted + '"';
}

std::string quotedJSON(const std::vector<std::string>& texts) {
    std::string list;
    for (const std::string& text : texts) {
        list += (list.empty() ? "" : ", ") + quotedJSON(text);
    }
    return '[' + list + ']';
}

std::string valueSchema(const Description& facts) {
    switch (facts.content) {
    case Content::boolean:
        return R"("type": "boolean")";
    case Content::unsignedNumber:
    case Content::signedNumber:
        return numberSchema(facts, facts.content == Content::signedNumber);
    case Content::unsignedArray:
    case Content::signedArray:
        return arraySchema(facts, facts.content == Content::signedArray);
    default:
        return stringSchema(facts);
    }
}

}  // namespace lv::analysis
