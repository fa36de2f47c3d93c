#include <lvdata/analysis/Position.h>

#include <lvdata/xml/lexical_cast.h>

#include <algorithm>

namespace lv::analysis {
namespace {

using Content = Description::Content;
using Kind = Condition::Kind;
using Place = Description::Place;
using Repetition = Description::Repetition;

bool isKeyedSo(const Node& element, const Description& facts) {
    const Node* const key = attributeOf(element, facts.keyAttribute);
    return key != nullptr && key->text == facts.keyText;
}

/// If several have the same key, the last one with a text, or else the first.
const Node* keyedElement(const Node& parent, const Description& facts) {
    const Node* found = nullptr;
    for (const Node& child : childrenOf(parent)) {
        const bool isLike = child.kind == Node::Kind::element && child.name == facts.name && isKeyedSo(child, facts);
        if (isLike && (found == nullptr || textOf(child) != nullptr)) {
            found = &child;
        }
    }
    return found;
}

const Node* firstElement(const Node& parent, std::string_view name) {
    for (const Node& child : childrenOf(parent)) {
        if (child.kind == Node::Kind::element && child.name == name) {
            return &child;
        }
    }
    return nullptr;
}

const Node* find(const Node& parent, const Description& facts) {
    if (facts.place == Place::attribute) {
        return attributeOf(parent, facts.name);
    }
    if (facts.place == Place::text) {
        return textOf(parent);
    }
    return facts.repetition == Repetition::byKey ? keyedElement(parent, facts) : firstElement(parent, facts.name);
}

Position parentOf(const Position& position) {
    const Node* const parent = position.parent;
    return {position.shape->parent(), parent, parent == nullptr ? nullptr : parent->parent};
}

/// The text at the position, as it is in the document; null when it is missing or has no text.
const Node* ownText(const Position& position) {
    const bool isElement = position.node != nullptr && position.node->kind == Node::Kind::element;
    return isElement ? textOf(*position.node) : position.node;
}

Answer answerOf(bool isSo) {
    return isSo ? Answer::yes : Answer::no;
}

bool isOneOf(const Position& position, const std::vector<std::string>& texts) {
    return std::count(texts.begin(), texts.end(), valueAt(position)) != 0;
}

bool hasText(const Position& position) {
    const Node* const text = ownText(position);
    return text != nullptr && !text->text.empty();
}

bool hasCountingLength(const Position& position) {
    const auto& lengths = position.shape->facts().lengths;
    return lengths.empty() || std::count(lengths.begin(), lengths.end(), entriesIn(valueAt(position))) != 0;
}

Answer isSet(const Position& position, const Circumstances& circumstances) {
    const auto& flag = position.shape->flag();
    if (firstDenied(flag, position, circumstances) != nullptr || !hasCountingLength(position)) {
        return Answer::no;
    }
    return flag.empty() ? Answer::unknown : Answer::yes;
}

bool isEmpty(const Position& position) {
    return valueAt(position).empty();
}

/// The worst answer of all subjects, or the best one if one subject is enough.
template <class Ask>
Answer ofSubjects(const Question& question, const Position& position, bool oneIsEnough, Ask ask) {
    const Answer decisive = oneIsEnough ? Answer::yes : Answer::no;
    Answer result = oneIsEnough ? Answer::no : Answer::yes;
    for (const Question::Subject& subject : question.subjects) {
        const Answer each = ask(subjectAt(subject, position));
        if (each == decisive) {
            return each;
        }
        result = each == Answer::unknown ? each : result;
    }
    return result;
}

Answer anyOf(const std::vector<Question>& alternatives, const Position& position, const Circumstances& circumstances) {
    Answer result = Answer::no;
    for (const Question& alternative : alternatives) {
        const Answer each = answer(alternative, position, circumstances);
        if (each == Answer::yes) {
            return each;
        }
        result = each == Answer::unknown ? each : result;
    }
    return result;
}

}  // namespace

std::string inPlainForm(std::string_view text, Content content) {
    switch (content) {
    case Content::unsignedNumber:
        return std::to_string(lexical_cast<unsigned int>(std::string(text)));
    case Content::signedNumber:
        return std::to_string(lexical_cast<int>(std::string(text)));
    case Content::boolean:
        return text == "true" || text == "TRUE" ? "true" : "false";
    default:
        return std::string(text);
    }
}

Position childAt(const Position& position, const Shape& child) {
    const Node* const element = position.node;
    return {&child, element == nullptr ? nullptr : find(*element, child.facts()), element};
}

Position subjectAt(const Question::Subject& subject, const Position& asked) {
    Position position = asked;
    for (std::size_t step = 0; step < subject.up; ++step) {
        position = parentOf(position);
    }
    for (const Shape* const shape : subject.down) {
        position = childAt(position, *shape);
    }
    return position;
}

std::string valueAt(const Position& position) {
    const Description& facts = position.shape->facts();
    if (facts.constant) {
        return *facts.constant;
    }
    const Node* const text = ownText(position);
    const bool counts = text != nullptr && (facts.content == Content::string || !text->text.empty());
    return counts ? inPlainForm(text->text, facts.content) : facts.defaultText;
}

Answer answer(const Question& question, const Position& position, const Circumstances& circumstances) {
    const Condition& condition = *question.condition;
    const auto ofAll = [&](auto isSo) {
        return ofSubjects(question, position, false, [&](const Position& subject) { return answerOf(isSo(subject)); });
    };
    const auto ofAny = [&](auto isSo) {
        return ofSubjects(question, position, true, [&](const Position& subject) { return answerOf(isSo(subject)); });
    };
    switch (condition.kind) {
    case Kind::oneOf:
        return ofAll([&](const Position& subject) { return isOneOf(subject, condition.texts); });
    case Kind::noneOf:
        return ofAll([&](const Position& subject) { return !isOneOf(subject, condition.texts); });
    case Kind::isSet:
        return ofSubjects(question, position, false,
                          [&](const Position& subject) { return isSet(subject, circumstances); });
    case Kind::notEmpty:
        return ofAll([](const Position& subject) { return !isEmpty(subject); });
    case Kind::haveEntries:
        return ofAll([&](const Position& subject) { return entriesIn(valueAt(subject)) == condition.entries; });
    case Kind::exists:
        return ofAny([](const Position& subject) { return subject.node != nullptr; });
    case Kind::hasText:
        return ofAny(&hasText);
    case Kind::anyOf:
        return anyOf(question.alternatives, position, circumstances);
    case Kind::hlgSwitch:
        return answerOf(circumstances.hlgSwitch);
    case Kind::rule:
        break;
    }
    return Answer::unknown;
}

const Question* firstDenied(const std::vector<Question>& questions, const Position& position,
                            const Circumstances& circumstances) {
    const auto denied = std::find_if(questions.begin(), questions.end(), [&](const Question& question) {
        return answer(question, position, circumstances) == Answer::no;
    });
    return denied == questions.end() ? nullptr : &*denied;
}

const Quantity* quantityAt(const Position& position) {
    const Description& facts = position.shape->facts();
    const auto& others = position.shape->otherQuantities();
    for (std::size_t index = 0; index < others.size(); ++index) {
        if (answer(others[index], position, {}) == Answer::yes) {
            return &facts.otherQuantities[index].quantity;
        }
    }
    return facts.quantity ? &*facts.quantity : nullptr;
}

std::size_t entriesIn(std::string_view text) {
    std::size_t entries = 0;
    bool isInPiece = false;
    for (const char character : text) {
        entries += !isInPiece && character != '|' ? 1 : 0;
        isInPiece = character != '|';
    }
    return entries;
}

}  // namespace lv::analysis
