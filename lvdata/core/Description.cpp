#include <lvdata/core/Description.h>

#include <algorithm>
#include <numeric>

namespace lv {
namespace {

std::string quoted(const std::string& text) {
    return '"' + text + '"';
}

/// "a", "a or b", "a, b or c".
std::string joined(const std::vector<std::string>& parts, const std::string& lastWord) {
    std::string text;
    for (std::size_t index = 0; index < parts.size(); ++index) {
        const bool isLast = index + 1 == parts.size();
        text += index == 0 ? "" : isLast ? ' ' + lastWord + ' ' : ", ";
        text += parts[index];
    }
    return text;
}

std::vector<std::string> quoted(std::vector<std::string> texts) {
    std::transform(texts.begin(), texts.end(), texts.begin(), [](const std::string& text) { return quoted(text); });
    return texts;
}

std::vector<std::string> toStrings(const std::vector<Condition>& conditions) {
    std::vector<std::string> texts;
    std::transform(conditions.begin(), conditions.end(), std::back_inserter(texts),
                   [](const Condition& condition) { return condition.toString(); });
    return texts;
}

}  // namespace

std::string Condition::toString() const {
    switch (kind) {
    case Kind::oneOf:
        return joined(subjects, "and") + " is " + joined(quoted(texts), "or");
    case Kind::noneOf:
        return joined(subjects, "and") + " is not " + joined(quoted(texts), "or");
    case Kind::isSet:
        return joined(subjects, "and") + (subjects.size() == 1 ? " is set" : " are set");
    case Kind::notEmpty:
        return joined(subjects, "and") + " is not empty";
    case Kind::haveEntries:
        return joined(subjects, "and") + (subjects.size() == 1 ? " has " : " each have ") + std::to_string(entries) +
               (entries == 1 ? " entry" : " entries");
    case Kind::exists:
        return joined(subjects, "or") + " exists";
    case Kind::hasText:
        return joined(subjects, "or") + " has text";
    case Kind::anyOf:
        return joined(toStrings(alternatives), "or");
    case Kind::hlgSwitch:
        return "writeHLGSystemGamma is set in the record that is printed";
    case Kind::rule:
        break;
    }
    return rule;
}

}  // namespace lv
