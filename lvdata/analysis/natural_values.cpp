#include <lvdata/analysis/decimal.h>
#include <lvdata/analysis/natural_values.h>
#include <lvdata/analysis/utf8.h>

#include <algorithm>

namespace lv::analysis {
namespace {

using Content = Description::Content;

StoredRange rangeOf(const Shape& shape) {
    const Content content = shape.facts().content;
    const bool isSigned = content == Content::signedNumber || content == Content::signedArray;
    return isSigned ? signedRange : unsignedRange;
}

std::size_t decimalsOf(const Quantity* quantity) {
    return quantity == nullptr ? 0 : analysis::decimalsOf(quantity->factor);
}

std::string naturalOf(std::int64_t stored, const Quantity* quantity) {
    DecimalBuffer buffer{};
    return std::string(naturalText(std::to_string(stored), decimalsOf(quantity), buffer));
}

/// The numbers of entries that the conditions ask of what they belong to.
void addEntries(std::vector<std::size_t>& lengths, const Condition& condition) {
    const auto& subjects = condition.subjects;
    const bool isAboutItself = std::count(subjects.begin(), subjects.end(), ".") != 0;
    if (condition.kind == Condition::Kind::haveEntries && isAboutItself) {
        lengths.push_back(condition.entries);
    }
}

std::vector<std::size_t> lengthsOf(const Description& facts) {
    std::vector<std::size_t> lengths = facts.lengths;
    for (const Condition& condition : facts.writtenWhen) {
        addEntries(lengths, condition);
    }
    if (facts.flag) {
        addEntries(lengths, *facts.flag);
    }
    return lengths;
}

/// Characters that XML 1.0 does not allow, and the carriage return, which reading changes.
std::string nameOfBad(std::string_view character) {
    constexpr char space = ' ';
    const char first = character.front();
    if (first == '\0') {
        return "a NUL character";
    }
    if (first == '\r') {
        return "a carriage return";
    }
    if (first > 0 && first < space && first != '\t' && first != '\n') {
        return "a control character";
    }
    return character == "\uFFFE" || character == "\uFFFF" ? "U+FFFE or U+FFFF" : "";
}

}  // namespace

std::optional<std::string> storedText(std::string_view natural, const Shape& shape, const Quantity* quantity) {
    const auto stored = storedNumber(natural, decimalsOf(quantity), rangeOf(shape));
    return stored ? std::optional<std::string>(std::to_string(*stored)) : std::nullopt;
}

std::string rangeText(const Shape& shape, const Quantity* quantity) {
    const StoredRange range = rangeOf(shape);
    return "a number from " + naturalOf(range.least, quantity) + " to " + naturalOf(range.greatest, quantity);
}

std::string expectedEntries(const Shape& shape, std::size_t entries) {
    const std::vector<std::size_t> lengths = lengthsOf(shape.facts());
    if (std::count(lengths.begin(), lengths.end(), entries) != 0) {
        return "";
    }
    std::string text;
    for (const std::size_t length : lengths) {
        text += (text.empty() ? "" : " or ") + std::to_string(length);
    }
    return text;
}

std::string whatXMLCannotCarry(std::string_view text, Description::Place place) {
    const bool isBlank = text.find_first_not_of(" \t\n") == std::string_view::npos;
    if (!text.empty() && isBlank && place != Description::Place::attribute) {
        return "whitespace-only text";
    }
    std::string bad;
    while (!text.empty() && bad.empty()) {
        const std::size_t length = std::max<std::size_t>(characterLength(text), 1);
        bad = nameOfBad(text.substr(0, length));
        text.remove_prefix(length);
    }
    return bad;
}

}  // namespace lv::analysis
