#include <lvdata/core/Description.h>

#include <algorithm>
#include <iterator>

namespace lv {
namespace {

using Texts = std::vector<std::string>;

bool isNumber(const std::string& text) {
    return !text.empty() && text.find_first_not_of("0123456789") == std::string::npos;
}

std::string quoted(const std::string& text) {
    return isNumber(text) ? text : '"' + text + '"';
}

/// "a", "a or b", "a, b or c".
std::string joined(const Texts& parts, const std::string& lastWord) {
    std::string text;
    for (std::size_t index = 0; index < parts.size(); ++index) {
        const bool isLast = index + 1 == parts.size();
        text += index == 0 ? "" : isLast ? ' ' + lastWord + ' ' : ", ";
        text += parts[index];
    }
    return text;
}

Texts quoted(Texts texts) {
    std::transform(texts.begin(), texts.end(), texts.begin(), [](const std::string& text) { return quoted(text); });
    return texts;
}

std::string isNone(const Texts& texts) {
    return texts.size() == 1 ? "not " + quoted(texts.front()) : "neither " + joined(quoted(texts), "nor");
}

/// What a condition says about its subjects; empty when it has none.
std::string predicateOf(const Condition& condition) {
    const bool isOne = condition.subjects.size() == 1;
    const std::string verb = isOne ? "is " : "are ";
    switch (condition.kind) {
    case Condition::Kind::oneOf:
        return verb + joined(quoted(condition.texts), "or");
    case Condition::Kind::noneOf:
        return verb + isNone(condition.texts);
    case Condition::Kind::isSet:
        return verb + "set";
    case Condition::Kind::notEmpty:
        return verb + "not empty";
    case Condition::Kind::haveEntries:
        return (isOne ? "has " : "each have ") + std::to_string(condition.entries) +
               (condition.entries == 1 ? " entry" : " entries");
    case Condition::Kind::exists:
        return "exists";
    case Condition::Kind::hasText:
        return "has text";
    case Condition::Kind::anyOf:
    case Condition::Kind::hlgSwitch:
    case Condition::Kind::rule:
        break;
    }
    return "";
}

/// Whether one of its subjects is enough.
bool needsOneSubject(const Condition& condition) {
    return condition.kind == Condition::Kind::exists || condition.kind == Condition::Kind::hasText;
}

/// Whether they say the same about one subject each.
bool saySame(const std::vector<Condition>& conditions) {
    const std::string predicate = conditions.empty() ? "" : predicateOf(conditions.front());
    return !predicate.empty() && std::all_of(conditions.begin(), conditions.end(), [&](const Condition& condition) {
        return condition.subjects.size() == 1 && predicateOf(condition) == predicate;
    });
}

std::string anyOfInWords(const std::vector<Condition>& alternatives) {
    const bool areSame = saySame(alternatives);
    Texts parts;
    std::transform(alternatives.begin(), alternatives.end(), std::back_inserter(parts),
                   [&](const Condition& each) { return areSame ? each.subjects.front() : each.toString(); });
    return joined(parts, "or") + (areSame ? ' ' + predicateOf(alternatives.front()) : "");
}

}  // namespace

std::string Condition::toString() const {
    switch (kind) {
    case Kind::anyOf:
        return anyOfInWords(alternatives);
    case Kind::hlgSwitch:
        return "writeHLGSystemGamma is set in the record that is printed";
    case Kind::rule:
        return rule;
    default:
        return joined(subjects, needsOneSubject(*this) ? "or" : "and") + ' ' + predicateOf(*this);
    }
}

std::string Description::xpathStep() const {
    switch (place) {
    case Place::attribute:
        return '@' + name;
    case Place::text:
        return "text()";
    case Place::element:
        break;
    }
    return repetition == Repetition::byKey ? name + "[@" + keyAttribute + "='" + keyText + "']" : name;
}

}  // namespace lv
