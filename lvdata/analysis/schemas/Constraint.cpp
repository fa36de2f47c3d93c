#include <lvdata/analysis/decimal.h>
#include <lvdata/analysis/schemas/Constraint.h>

#include <algorithm>

namespace lv::analysis {
namespace {

using Content = Description::Content;
using Kind = Condition::Kind;
using Repetition = Description::Repetition;

bool isAboutItself(const Condition& condition) {
    return std::count(condition.subjects.begin(), condition.subjects.end(), ".") != 0;
}

void tighten(Constraint& constraint, const Condition& condition) {
    switch (condition.kind) {
    case Kind::oneOf:
        constraint.texts = condition.texts;
        return;
    case Kind::notEmpty:
        constraint.isNotEmpty = true;
        return;
    case Kind::haveEntries:
        constraint.lengths = {condition.entries};
        return;
    default:
        return;
    }
}

std::string quantityInWords(const Quantity& quantity, Scale scale) {
    const bool isScaled = quantity.factor != 1 && (scale == Scale::stored || decimalsOf(quantity.factor) == 0);
    std::string words(quantity.meaning);
    words += isScaled ? ", times " + std::to_string(quantity.factor) : "";
    words += quantity.unit.empty()          ? ""
             : quantity.unit == unknownUnit ? "; unit not recorded"
                                            : "; unit: " + std::string(quantity.unit);
    return words;
}

void addSentence(std::string& text, const std::string& sentence) {
    text += text.empty() ? "" : " ";
    text += sentence + '.';
}

/// Another quantity with the same description differs only in how it is stored.
void addQuantities(std::string& text, const Description& facts, Scale scale) {
    const std::string usual = facts.quantity ? quantityInWords(*facts.quantity, scale) : "";
    if (!usual.empty()) {
        addSentence(text, "Meaning: " + usual);
    }
    for (const Description::QuantityWhen& other : facts.otherQuantities) {
        if (const std::string words = quantityInWords(other.quantity, scale); words != usual) {
            addSentence(text, "When " + other.condition.toString() + ": " + words);
        }
    }
}

void addConditions(std::string& text, const Description& facts) {
    std::string words;
    for (const Condition& condition : facts.writtenWhen) {
        words += words.empty() ? "Written when " : " and when ";
        words += condition.toString();
    }
    if (!words.empty()) {
        addSentence(text, words);
    }
}

}  // namespace

Constraint constraintOf(const Description& facts) {
    Constraint constraint;
    constraint.isRequired =
        !facts.isOptional && facts.writtenWhen.empty() && facts.lengths.empty() && facts.repetition != Repetition::rows;
    constraint.lengths = facts.lengths;
    if (facts.flag && facts.flag->kind == Kind::haveEntries && isAboutItself(*facts.flag)) {
        tighten(constraint, *facts.flag);
    }
    for (const Condition& condition : facts.writtenWhen) {
        if (isAboutItself(condition)) {
            tighten(constraint, condition);
        }
    }
    if (facts.constant) {
        constraint.texts = {*facts.constant};
    }
    return constraint;
}

std::string explanationOf(const Description& facts, Scale scale) {
    std::string text;
    addQuantities(text, facts, scale);
    if (facts.repetition == Repetition::rows) {
        addSentence(text, "One for each row");
    }
    addConditions(text, facts);
    return text;
}

}  // namespace lv::analysis
