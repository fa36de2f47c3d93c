#include <lvdata/analysis/Document.h>
#include <lvdata/analysis/Position.h>
#include <lvdata/analysis/Projection.h>
#include <lvdata/analysis/content.h>
#include <lvdata/analysis/json/RecordBuilder.h>
#include <lvdata/analysis/natural_values.h>

#include <algorithm>
#include <utility>

namespace lv::analysis {
namespace {

using Place = Description::Place;

}  // namespace

bool RecordBuilder::hasAlternatives(const Shape& text) {
    const auto isText = [](const auto& each) {
        return each->facts().place == Place::text;
    };
    const auto* const parent = isText(&text) ? text.parent() : nullptr;
    return parent != nullptr && std::count_if(parent->children().begin(), parent->children().end(), isText) > 1;
}

/// The element whose members are read: the one that is open, or the one that the open rows or keyed elements are in.
RecordBuilder::Open& RecordBuilder::owner() {
    return open_.back().level == Level::element ? open_.back() : open_[open_.size() - 2];
}

void RecordBuilder::addChild(const Shape& member, Node& node) {
    hlgSwitch_ = hlgSwitch_ || isGovernedByHLGSwitch(member);
    owner().children.emplace_back(member.index(), &node);
}

/// Makes the member that has the text; returns the node with the text.
Node& RecordBuilder::addText(const Shape& member, std::string text) {
    const Description& facts = member.facts();
    if (facts.place != Place::element) {
        const auto kind = facts.place == Place::attribute ? Node::Kind::attribute : Node::Kind::text;
        Node& node = make(kind, facts.name, std::move(text));
        addChild(member, node);
        return node;
    }
    Node& element = make(Node::Kind::element, facts.name);
    Node& node = make(Node::Kind::text, {}, std::move(text));
    std::vector<Node*> children;
    if (!facts.keyAttribute.empty()) {
        children.push_back(&make(Node::Kind::attribute, facts.keyAttribute, facts.keyText));
    }
    children.push_back(&node);
    NodeArena::setChildren(element, children);
    addChild(member, element);
    return node;
}

void RecordBuilder::beginArray(Entries /*entries*/) {
    if (!begins(Expected::array, "an array")) {
        return;
    }
    const Shape& member = *open_.back().member;
    if (member.facts().repetition == Description::Repetition::rows) {
        push(Level::rows, &member, nullptr);
    } else {
        beginNumbers(true);
        push(Level::numbers, nullptr, nullptr);
    }
    path_.beginArray();
}

void RecordBuilder::endArray() {
    if (hasFailed()) {
        return;
    }
    const bool isOfNumbers = open_.back().level == Level::numbers;
    open_.pop_back();
    path_.end();
    if (isOfNumbers) {
        endNumbers();
    }
}

void RecordBuilder::beginNumbers(bool isArray) {
    const Shape& member = *open_.back().member;
    numbers_ = Numbers();
    numbers_.shape = member.facts().place == Place::element ? textShapeAt({&member, nullptr, nullptr}) : &member;
    numbers_.isArray = isArray;
    numbers_.isPending = hasAlternatives(*numbers_.shape) || !numbers_.shape->otherQuantities().empty();
    numbers_.line = line_;
}

void RecordBuilder::addNumber(std::string_view text) {
    numbers_.text += numbers_.count == 0 ? "" : "|";
    ++numbers_.count;
    if (numbers_.isPending) {
        numbers_.text += text;
        numbers_.lines.push_back(line_);
        return;
    }
    const Description& facts = numbers_.shape->facts();
    const Quantity* const quantity = facts.quantity ? &*facts.quantity : nullptr;
    const auto stored = storedText(text, *numbers_.shape, quantity);
    if (stored) {
        numbers_.text += *stored;
    } else {
        fail(rangeText(*numbers_.shape, quantity) + " expected");
    }
}

void RecordBuilder::endNumbers() {
    const Shape& member = *open_.back().member;
    if (hasFailed() || (!numbers_.isPending && !hasRightLength(numbers_, *numbers_.shape, path_.toString()))) {
        return;
    }
    Node& text = addText(member, numbers_.isPending ? std::string() : numbers_.text);
    if (numbers_.isPending) {
        pending_.push_back({std::move(numbers_), &member, &text, path_.toString()});
    }
}

bool RecordBuilder::hasRightLength(const Numbers& numbers, const Shape& shape, const std::string& path) {
    const std::string wanted = numbers.isArray ? expectedEntries(shape, numbers.count) : "";
    if (!wanted.empty()) {
        fail(wanted + " entries expected, not " + std::to_string(numbers.count), numbers.line, path);
    }
    return wanted.empty();
}

/// If the document does not state the type, the record does not read the value either.
void RecordBuilder::resolve(const Pending& pending) {
    const Node* const element = pending.text->parent;
    if (pending.member->facts().place == Place::element) {
        const Position position{pending.member, element, element->parent};
        convert(pending, *pending.member, quantityAt(position));
        return;
    }
    const Shape& shape = *textShapeAt({pending.member->parent(), element, element->parent});
    const Position position{&shape, pending.text, element};
    if (firstDenied(shape.readWhen(), position, {}) != nullptr) {
        return;
    }
    if (isArray(shape.facts().content) != pending.numbers.isArray) {
        fail(isArray(shape.facts().content) ? "an array expected, not a number" : "a number expected, not an array",
             pending.numbers.line, pending.path);
    } else {
        convert(pending, shape, quantityAt(position));
    }
}

void RecordBuilder::convert(const Pending& pending, const Shape& shape, const Quantity* quantity) {
    if (!hasRightLength(pending.numbers, shape, pending.path)) {
        return;
    }
    std::string joined;
    std::string_view rest = pending.numbers.text;
    for (std::size_t index = 0; index < pending.numbers.count; ++index) {
        const std::size_t end = std::min(rest.find('|'), rest.size());
        const auto stored = storedText(rest.substr(0, end), shape, quantity);
        if (!stored) {
            const std::string entry = pending.numbers.isArray ? '[' + std::to_string(index) + ']' : "";
            fail(rangeText(shape, quantity) + " expected", pending.numbers.lines[index], pending.path + entry);
            return;
        }
        joined += (index == 0 ? "" : "|") + *stored;
        rest.remove_prefix(std::min(end + 1, rest.size()));
    }
    arena_.setText(*pending.text, std::move(joined));
}

}  // namespace lv::analysis
