#include <lvdata/analysis/Document.h>
#include <lvdata/analysis/check/loss_findings.h>
#include <lvdata/analysis/check/value_findings.h>
#include <lvdata/analysis/content.h>
#include <lvdata/analysis/natural_values.h>
#include <lvdata/analysis/spelling.h>
#include <lvdata/analysis/wording.h>

#include <string>

namespace lv::analysis {
namespace {

using Content = Description::Content;
using Kind = Condition::Kind;

/// The text of an element; the attribute or text itself; null when there is no character.
const Node* textNodeOf(const Node& node) {
    const Node* const text = node.kind == Node::Kind::element ? textOf(node) : &node;
    return text == nullptr || text->text.empty() ? nullptr : text;
}

/// "the text", or the name of an element or attribute.
std::string subject(const Node& node) {
    return node.kind == Node::Kind::text ? "the text" : inQuotes(node.name);
}

std::string entries(std::size_t count) {
    return std::to_string(count) + (count == 1 ? " entry" : " entries");
}

/// The first subject with another number of entries: ", but ../Red has 2 entries".
std::string actualEntries(const Question& question, const Position& asked) {
    const Condition& condition = *question.condition;
    for (std::size_t index = 0; index < condition.subjects.size(); ++index) {
        const std::size_t count = entriesIn(valueAt(subjectAt(question.subjects.at(index), asked)));
        if (count != condition.entries) {
            return ", but " + condition.subjects[index] + " has " + entries(count);
        }
    }
    return "";
}

/// The text of the first subject, to be added to the expected one: `, but that is "Lutt"; did you mean "Lut"?`.
std::string actualText(const Condition& condition, const Question& question, const Position& asked) {
    const std::string text = valueAt(subjectAt(question.subjects.front(), asked));
    const std::string* const meant = condition.kind == Kind::oneOf ? closest(text, condition.texts) : nullptr;
    return ", but that is " + inQuotes(text) + (meant == nullptr ? "" : "; did you mean " + inQuotes(*meant) + "?");
}

/// A condition in words, and the text in the document.
std::string inWords(const Condition& condition, const Question& question, const Position& asked) {
    const bool isCompared = condition.kind == Kind::oneOf || condition.kind == Kind::noneOf;
    const bool isAboutLength = condition.kind == Kind::haveEntries;
    return condition.toString() + (isCompared      ? actualText(condition, question, asked)
                                   : isAboutLength ? actualEntries(question, asked)
                                                   : "");
}

std::string notWritten(const Question& question, const Position& asked) {
    return subject(*asked.node) + " is dropped: it is only written when " +
           inWords(*question.condition, question, asked);
}

/// The condition for reading a text. If an element can have one of several texts, the conditions of all of them.
Condition conditionOfReading(const Question& denied, const Shape& shape) {
    Condition condition = *denied.condition;
    if (shape.facts().place != Description::Place::text || condition.kind != Kind::oneOf) {
        return condition;
    }
    condition.texts.clear();
    for (const auto& sibling : shape.parent()->children()) {
        if (sibling->facts().place == Description::Place::text && !sibling->facts().readWhen.empty()) {
            const auto& texts = sibling->facts().readWhen.front().texts;
            condition.texts.insert(condition.texts.end(), texts.begin(), texts.end());
        }
    }
    return condition;
}

bool reportWrongLength(Reporter& reporter, const Position& position, const Node& text) {
    const std::size_t count = entriesIn(text.text);
    const std::string expected = expectedEntries(*position.shape, count);
    if (expected.empty()) {
        return false;
    }
    reporter.add("201", *position.node,
                 subject(*position.node) + " has " + entries(count) + " and needs " + expected +
                     ": the whole array is dropped");
    return true;
}

/// Reasons in the value itself.
bool reportValue(Reporter& reporter, const Position& position) {
    const Content content = position.shape->facts().content;
    if (content == Content::none || content == Content::string) {
        return false;
    }
    const Node* const text = textNodeOf(*position.node);
    if (text == nullptr) {
        reporter.add("107", *position.node,
                     subject(*position.node) + " has no text, so it counts as missing and is dropped");
        return true;
    }
    return isArray(content) && reportWrongLength(reporter, position, *text);
}

bool reportCondition(Reporter& reporter, const Position& position, const Circumstances& circumstances) {
    const Shape& shape = *position.shape;
    if (isGovernedByHLGSwitch(shape) && !circumstances.hlgSwitch) {
        reporter.add("313", *position.node, subject(*position.node) + " is dropped: it is written only on request",
                     Severity::warning);
        return true;
    }
    if (const Question* const denied = firstDenied(shape.readWhen(), position, circumstances)) {
        reporter.add("306", *position.node,
                     subject(*position.node) + " is dropped: it is only read when " +
                         inWords(conditionOfReading(*denied, shape), *denied, position));
        return true;
    }
    const Question* denied = firstDenied(shape.writtenWhen(), position, circumstances);
    denied = denied == nullptr ? firstDenied(shape.flag(), position, circumstances) : denied;
    if (denied != nullptr) {
        reporter.add("305", *position.node, notWritten(*denied, position));
    }
    return denied != nullptr;
}

/// Arrays of the row that have the wrong number of entries, each.
bool reportWrongLengths(Reporter& reporter, const Position& row) {
    bool isFaulty = false;
    for (const auto& child : row.shape->children()) {
        const Position position = childAt(row, *child);
        const Node* const text = position.node == nullptr ? nullptr : textNodeOf(*position.node);
        isFaulty =
            (text != nullptr && isArray(child->facts().content) && reportWrongLength(reporter, position, *text)) ||
            isFaulty;
    }
    return isFaulty;
}

}  // namespace

void reportDropped(Reporter& reporter, const Position& position, const Circumstances& circumstances) {
    if (reportValue(reporter, position) || reportCondition(reporter, position, circumstances)) {
        return;
    }
    for (const Question& open : position.shape->writtenWhen()) {
        if (answer(open, position, circumstances) == Answer::unknown) {
            reporter.add("305", *position.node, notWritten(open, position));
            return;
        }
    }
    reporter.add("305", *position.node, subject(*position.node) + " is dropped");
}

void reportDroppedRow(Reporter& reporter, const Position& row, const Circumstances& circumstances) {
    if (firstDenied(row.shape->flag(), row, circumstances) != nullptr) {
        reporter.addHere("304", row.node->line, "the row has no content and is dropped");
    } else if (!reportWrongLengths(reporter, row)) {
        const Question* const denied = firstDenied(row.shape->writtenWhen(), row, circumstances);
        reporter.addHere(
            "305", row.node->line,
            "the row is dropped" +
                (denied == nullptr ? "" : ": it is only written when " + inWords(*denied->condition, *denied, row)));
    }
}

}  // namespace lv::analysis
