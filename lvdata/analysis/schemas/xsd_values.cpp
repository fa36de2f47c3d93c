#include <lvdata/analysis/schemas/Constraint.h>
#include <lvdata/analysis/schemas/xsd_values.h>

#include <algorithm>
#include <cctype>

namespace lv::analysis {
namespace {

using Content = Description::Content;

/// Types of this scope are those of values, which all records share.
const std::string shared;

/// The numbers from 0 to 4294967295 without leading zeros.
constexpr const char* unsignedPattern =
    "(0|[1-9][0-9]{0,8}|[1-3][0-9]{9}|4[01][0-9]{8}|42[0-8][0-9]{7}|429[0-3][0-9]{6}|4294[0-8][0-9]{5}|"
    "42949[0-5][0-9]{4}|429496[0-6][0-9]{3}|4294967[01][0-9]{2}|42949672[0-8][0-9]|429496729[0-5])";

/// The numbers from -2147483648 to 2147483647 without leading zeros.
constexpr const char* signedPattern =
    "(0|-?([1-9][0-9]{0,8}|1[0-9]{9}|20[0-9]{8}|21[0-3][0-9]{7}|214[0-6][0-9]{6}|2147[0-3][0-9]{5}|"
    "21474[0-7][0-9]{4}|214748[0-2][0-9]{3}|2147483[0-5][0-9]{2}|21474836[0-3][0-9]|214748364[0-7])|-2147483648)";

std::string facet(const std::string& name, const std::string& value) {
    return "      <xs:" + name + " value=\"" + escapedXML(value) + "\"/>\n";
}

std::string restriction(const std::string& base, const std::string& facets) {
    return "    <xs:restriction base=\"" + base + "\">\n" + facets + "    </xs:restriction>\n";
}

std::string arrayType(Content content, TypeList& types) {
    const bool isSigned = content == Content::signedArray;
    const std::string number = isSigned ? signedPattern : unsignedPattern;
    return types.add(shared, isSigned ? "signedArray" : "unsignedArray",
                     restriction("xs:string", facet("pattern", '(' + number + "(\\|" + number + ")*)?")));
}

/// That many pieces between "|", with any content: a second pattern, in addition to that of the numbers.
std::string entriesPattern(std::size_t entries) {
    return entries == 1 ? "[^|]+" : "[^|]+(\\|[^|]+){" + std::to_string(entries - 1) + '}';
}

std::string arrayOfLengths(const std::string& base, const std::vector<std::size_t>& lengths, TypeList& types) {
    std::string name = base;
    std::string facets;
    for (const std::size_t length : lengths) {
        name += (facets.empty() ? "Of" : "Or") + std::to_string(length);
        facets += facet("pattern", entriesPattern(length));
    }
    return lengths.empty() ? base : types.add(shared, name, restriction(base, facets));
}

std::string stringType(const Constraint& constraint, const std::string& name, TypeList& types) {
    if (!constraint.texts.empty()) {
        return enumerationOf(constraint.texts, name, types);
    }
    return constraint.isNotEmpty
               ? types.add(shared, "nonEmptyString", restriction("xs:string", facet("minLength", "1")))
               : "xs:string";
}

/// "xs:unsignedInt" as part of a longer name: "unsignedInt".
std::string shortName(const std::string& type) {
    return type.substr(type.find(':') + 1);
}

std::string capitalised(std::string name) {
    name[0] = static_cast<char>(std::toupper(static_cast<unsigned char>(name[0])));
    return name;
}

std::string unionOf(const std::vector<std::string>& members, TypeList& types) {
    std::string name;
    std::string list;
    for (const std::string& member : members) {
        name += name.empty() ? shortName(member) : "Or" + capitalised(shortName(member));
        list += (list.empty() ? "" : " ") + member;
    }
    return members.size() == 1 ? members.front()
                               : types.add(shared, name, "    <xs:union memberTypes=\"" + list + "\"/>\n");
}

}  // namespace

std::string escapedXML(const std::string& text) {
    std::string escaped;
    for (const char character : text) {
        switch (character) {
        case '&':
            escaped += "&amp;";
            break;
        case '<':
            escaped += "&lt;";
            break;
        default:
            escaped += character;
        }
    }
    return escaped;
}

std::string enumerationOf(const std::vector<std::string>& texts, const std::string& name, TypeList& types) {
    std::string facets;
    for (const std::string& text : texts) {
        facets += facet("enumeration", text);
    }
    return types.add(shared, name, restriction("xs:string", facets));
}

std::string simpleTypeOf(const Shape& shape, TypeList& types) {
    const Constraint constraint = constraintOf(shape.facts());
    switch (shape.facts().content) {
    case Content::boolean:
        return types.add(shared, "boolean", restriction("xs:boolean", facet("pattern", "true|false")));
    case Content::unsignedNumber:
        return "xs:unsignedInt";
    case Content::signedNumber:
        return "xs:int";
    case Content::unsignedArray:
    case Content::signedArray:
        return arrayOfLengths(arrayType(shape.facts().content, types), constraint.lengths, types);
    default:
        return stringType(constraint, typeNameOf(shape), types);
    }
}

std::string textTypeOf(const Shape& element, TypeList& types) {
    std::vector<std::string> members;
    bool isRequired = true;
    for (const Shape* const text : textsOf(element)) {
        members.push_back(simpleTypeOf(*text, types));
        isRequired = isRequired && constraintOf(text->facts()).isRequired;
    }
    if (!isRequired) {
        members.push_back(types.add(shared, "empty", restriction("xs:string", facet("length", "0"))));
    }
    return unionOf(members, types);
}

}  // namespace lv::analysis
