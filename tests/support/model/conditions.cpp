#include <tests/support/model/conditions.h>

#include <algorithm>
#include <stdexcept>

namespace lv::test {
namespace {

using lv::Condition;

struct SizeOf {
    std::size_t operator()(const std::string* text) const { return text->size(); }
    template <class Number>
    std::size_t operator()(const std::vector<Number>* numbers) const {
        return numbers->size();
    }
    template <class Number>
    std::size_t operator()(const Number* /*number*/) const {
        throw std::logic_error("a number has no size");
    }
};

std::size_t sizeOf(const Node& node) {
    return std::visit(SizeOf(), placeOf(node));
}

/// A string as it is, a number in decimal.
std::string comparable(const Node& node) {
    const auto* const text = std::get_if<std::string*>(&placeOf(node));
    return text != nullptr ? **text : std::to_string(*std::get<unsigned int*>(placeOf(node)));
}

bool isOneOf(const Node& node, const std::vector<std::string>& texts) {
    return std::count(texts.begin(), texts.end(), comparable(node)) != 0;
}

bool isSet(const Node& node) {
    if (node.flag == nullptr) {
        throw std::logic_error(node.facts->name + " has no flag");
    }
    return *node.flag;
}

bool isNotZero(const Node& node) {
    return *std::get<unsigned int*>(placeOf(node)) != 0;
}

/// Whether what is true of a node is true of the subjects.
template <class Test>
bool ofAll(const Condition& condition, const Node& node, Test test) {
    const auto subjects = subjectsOf(condition, node);
    return std::all_of(subjects.begin(), subjects.end(), [&test](const Node* subject) { return test(*subject); });
}

template <class Test>
bool ofAny(const Condition& condition, const Node& node, Test test) {
    return !ofAll(condition, node, [&test](const Node& subject) { return !test(subject); });
}

/// The rules in words, each by hand.
bool isKept(const Condition& condition, const Node& node) {
    if (condition.rule != "no coordinate of the primaries is 0") {
        throw std::logic_error("unknown rule, to be added here: " + condition.rule);
    }
    return ofAll(condition, node, &isNotZero);
}

}  // namespace

bool holds(const Condition& condition, const Node& node, bool hlgSwitch) {
    switch (condition.kind) {
    case Condition::Kind::oneOf:
        return ofAll(condition, node, [&](const Node& subject) { return isOneOf(subject, condition.texts); });
    case Condition::Kind::noneOf:
        return ofAll(condition, node, [&](const Node& subject) { return !isOneOf(subject, condition.texts); });
    case Condition::Kind::isSet:
        return ofAll(condition, node, &isSet);
    case Condition::Kind::notEmpty:
        return ofAll(condition, node, [](const Node& subject) { return sizeOf(subject) != 0; });
    case Condition::Kind::haveEntries:
        return ofAll(condition, node, [&](const Node& subject) { return sizeOf(subject) == condition.entries; });
    case Condition::Kind::exists:
        return ofAny(condition, node, [](const Node& subject) { return subject.exists; });
    case Condition::Kind::hasText:
        return ofAny(condition, node, [](const Node& subject) { return subject.hasText; });
    case Condition::Kind::anyOf:
        return std::any_of(condition.alternatives.begin(), condition.alternatives.end(),
                           [&](const Condition& each) { return holds(each, node, hlgSwitch); });
    case Condition::Kind::hlgSwitch:
        return hlgSwitch;
    case Condition::Kind::rule:
        break;
    }
    return isKept(condition, node);
}

bool allHold(const std::vector<Condition>& conditions, const Node& node, bool hlgSwitch) {
    return std::all_of(conditions.begin(), conditions.end(),
                       [&](const Condition& condition) { return holds(condition, node, hlgSwitch); });
}

bool lengthCounts(const Node& node) {
    const auto& lengths = node.facts->lengths;
    return lengths.empty() || std::count(lengths.begin(), lengths.end(), sizeOf(node)) != 0;
}

}  // namespace lv::test
