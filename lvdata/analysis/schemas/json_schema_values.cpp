#include <lvdata/analysis/decimal.h>
#include <lvdata/analysis/schemas/Constraint.h>
#include <lvdata/analysis/schemas/json_schema_values.h>

#include <algorithm>
#include <cstdint>

namespace lv::analysis {
namespace {

using Content = Description::Content;

/// The natural value of a stored number.
std::string natural(std::int64_t stored, std::size_t decimals) {
    DecimalBuffer buffer{};
    return std::string(naturalText(std::to_string(stored), decimals, buffer));
}

/// The numbers of decimals of its quantities.
std::vector<std::size_t> allDecimalsOf(const Description& facts) {
    std::vector<std::size_t> decimals = {facts.quantity ? decimalsOf(facts.quantity->factor) : 0};
    for (const Description::QuantityWhen& other : facts.otherQuantities) {
        decimals.push_back(decimalsOf(other.quantity.factor));
    }
    return decimals;
}

/// The widest range of its quantities.
std::string numberSchema(const Description& facts, bool isSigned) {
    const std::vector<std::size_t> decimals = allDecimalsOf(facts);
    const auto [least, most] = std::minmax_element(decimals.begin(), decimals.end());
    const StoredRange range = isSigned ? signedRange : unsignedRange;
    return std::string(R"("type": ")") + (*most == 0 ? "integer" : "number") + R"(", "minimum": )" +
           natural(range.least, *least) + R"(, "maximum": )" + natural(range.greatest, *least);
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
