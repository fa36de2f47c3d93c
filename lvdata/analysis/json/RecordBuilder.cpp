#include <lvdata/analysis/Document.h>
#include <lvdata/analysis/Projection.h>
#include <lvdata/analysis/json/RecordBuilder.h>
#include <lvdata/analysis/natural_values.h>
#include <lvdata/analysis/snake_case.h>
#include <lvdata/analysis/spelling.h>
#include <lvdata/analysis/utf8.h>

#include <algorithm>
#include <array>
#include <utility>

namespace lv::analysis {
namespace {

using Place = Description::Place;
using Repetition = Description::Repetition;

/// In the order of `RecordBuilder::Expected`.
constexpr std::array<std::string_view, 6> expectedTexts = {"an object",     "an array", "text",
                                                           "true or false", "a number", "a number or an array"};

/// The shape of a member's text: of an element that is a plain value its own text, or the first of several.
const Shape& textShapeOf(const Shape& member) {
    return member.facts().place == Place::element ? *textShapeAt({&member, nullptr, nullptr}) : member;
}

std::string keyIn(const Shape& member, bool isAmongKeyed) {
    return isAmongKeyed ? keyAmongKeyed(member) : member.key();
}

}  // namespace

void RecordBuilder::fail(std::string reason) {
    fail(std::move(reason), line_, path_.toString());
}

void RecordBuilder::fail(std::string reason, int line, std::string path) {
    if (!error_) {
        error_ = JSONError{line, std::move(path), std::move(reason), std::nullopt};
    }
}

/// Without a place: the document as a whole is too large.
void RecordBuilder::failBeyond(Excess::What what, std::size_t limit) {
    if (!error_) {
        error_ = JSONError{line_, {}, Excess{what, limit}.toString(), what};
    }
}

/// Makes a node as `NodeArena::make` does, and counts it.
Node& RecordBuilder::make(Node::Kind kind, std::string_view name, std::string text) {
    elements_ += kind == Node::Kind::element ? 1 : 0;
    ++nodes_;
    if (elements_ > limits_.elements) {
        failBeyond(Excess::What::elements, limits_.elements);
    } else if (nodes_ > limits_.nodes) {
        failBeyond(Excess::What::nodes, limits_.nodes);
    }
    return arena_.make(kind, name, std::move(text));
}

bool RecordBuilder::begins(Expected value, const std::string& found) {
    if (hasFailed()) {
        return false;
    }
    path_.beginValue();
    const Expected wanted = expected();
    const bool isEither = wanted == Expected::numberOrArray && (value == Expected::number || value == Expected::array);
    if (value != wanted && !isEither) {
        fail(std::string(expectedTexts.at(static_cast<std::size_t>(wanted))) + " expected, not " + found);
    }
    return !hasFailed();
}

RecordBuilder::Expected RecordBuilder::expected() const {
    const Level level = open_.empty() ? Level::document : open_.back().level;
    if (level == Level::document || level == Level::rows) {
        return Expected::object;
    }
    if (level == Level::numbers) {
        return Expected::number;
    }
    const Shape& member = *open_.back().member;
    const bool isSingle = level == Level::keyed || member.facts().repetition == Repetition::once;
    if (!isSingle) {
        return member.facts().repetition == Repetition::rows ? Expected::array : Expected::object;
    }
    return member.facts().place == Place::element && !isPlain(member) ? Expected::object : expectedOfText(member);
}

RecordBuilder::Expected RecordBuilder::expectedOfText(const Shape& member) {
    const Shape& text = textShapeOf(member);
    if (hasAlternatives(text)) {
        return Expected::numberOrArray;
    }
    switch (text.facts().content) {
    case Description::Content::none:
    case Description::Content::string:
        return Expected::string;
    case Description::Content::boolean:
        return Expected::boolean;
    case Description::Content::unsignedNumber:
    case Description::Content::signedNumber:
        return Expected::number;
    case Description::Content::unsignedArray:
    case Description::Content::signedArray:
        break;
    }
    return Expected::array;
}

void RecordBuilder::push(Level level, const Shape* shape, Node* node) {
    Open& opened = open_.emplace_back();
    opened.level = level;
    opened.shape = shape;
    opened.node = node;
    opened.seen.resize(shape == nullptr ? 0 : shape->children().size());
}

void RecordBuilder::beginObject() {
    if (!begins(Expected::object, "an object")) {
        return;
    }
    const bool isKeyed = !open_.empty() && open_.back().level == Level::element &&
                         open_.back().member->facts().repetition == Repetition::byKey;
    if (open_.empty()) {
        push(Level::document, nullptr, nullptr);
    } else if (isKeyed) {
        push(Level::keyed, open_.back().shape, nullptr);
    } else {
        beginElement();
    }
    path_.beginObject();
}

void RecordBuilder::beginElement() {
    const Open& parent = open_.back();
    const Shape& shape = parent.level == Level::rows ? *parent.shape : *parent.member;
    Node& element = make(Node::Kind::element, shape.facts().name);
    if (parent.level == Level::document) {
        root_ = &element;
    } else {
        addChild(shape, element);
    }
    push(Level::element, &shape, &element);
}

void RecordBuilder::endObject() {
    if (hasFailed()) {
        return;
    }
    Open& ended = open_.back();
    if (ended.level == Level::element) {
        NodeArena::setChildren(*ended.node, ended.children);
    }
    open_.pop_back();
    path_.end();
    if (open_.empty()) {
        endDocument();
    }
}

void RecordBuilder::endDocument() {
    isComplete_ = root_ != nullptr;
    for (const Pending& pending : pending_) {
        resolve(pending);
    }
}

void RecordBuilder::key(std::string_view name) {
    if (hasFailed()) {
        return;
    }
    path_.key(name);
    if (open_.back().level == Level::document) {
        keyOfDocument(name);
    } else {
        keyOfMember(name);
    }
}

void RecordBuilder::keyOfDocument(std::string_view name) {
    if (entry_ != nullptr) {
        fail("only one record expected");
        return;
    }
    std::vector<std::string> known;
    for (const Catalogue::Entry& entry : catalogue_.entries()) {
        known.push_back(entry.shape->key());
        if (known.back() == name) {
            entry_ = &entry;
            open_.back().member = entry.shape.get();
            return;
        }
    }
    unknownKey(name, known);
}

void RecordBuilder::keyOfMember(std::string_view name) {
    Open& top = open_.back();
    const auto& children = top.shape->children();
    const bool isAmongKeyed = top.level == Level::keyed;
    const auto isMember = [&](const auto& child) {
        return (child->facts().repetition == Repetition::byKey || !isAmongKeyed) && keyIn(*child, isAmongKeyed) == name;
    };
    const auto found = std::find_if(children.begin(), children.end(), isMember);
    if (found == children.end()) {
        unknownKey(name, keysOf(top));
    } else if (top.seen[(*found)->index()]) {
        fail("duplicate key");
    } else {
        top.seen[(*found)->index()] = true;
        top.member = found->get();
    }
}

std::vector<std::string> RecordBuilder::keysOf(const Open& open) {
    std::vector<std::string> keys;
    for (const auto& child : open.shape->children()) {
        if (child->facts().repetition == Repetition::byKey || open.level != Level::keyed) {
            keys.push_back(keyIn(*child, open.level == Level::keyed));
        }
    }
    return keys;
}

void RecordBuilder::unknownKey(std::string_view name, const std::vector<std::string>& known) {
    const std::string* const meant = closest(snakeCase(name), known);
    fail(meant == nullptr ? "unknown key" : "unknown key, did you mean \"" + *meant + "\"?");
}

void RecordBuilder::string(std::string_view text) {
    if (!begins(Expected::string, "text")) {
        return;
    }
    const Shape& member = *open_.back().member;
    const Description& facts = member.facts();
    const std::string bad = isUTF8(text) ? whatXMLCannotCarry(text, facts.place) : "bytes that are not UTF-8";
    if (!bad.empty()) {
        fail("XML cannot carry " + bad);
    } else if (facts.constant && text != *facts.constant) {
        fail("\"" + *facts.constant + "\" expected");
    } else {
        addText(member, std::string(text));
    }
}

void RecordBuilder::number(std::string_view text, NumberKind /*kind*/) {
    if (!begins(Expected::number, "a number")) {
        return;
    }
    if (open_.back().level == Level::numbers) {
        addNumber(text);
        return;
    }
    beginNumbers(false);
    addNumber(text);
    endNumbers();
}

void RecordBuilder::boolean(bool value) {
    if (begins(Expected::boolean, "true or false")) {
        addText(*open_.back().member, value ? "true" : "false");
    }
}

void RecordBuilder::null() {
    const bool isAbsent =
        !open_.empty() && (open_.back().level == Level::element || open_.back().level == Level::keyed);
    if (!isAbsent && !hasFailed()) {
        path_.beginValue();
        fail(std::string(expectedTexts.at(static_cast<std::size_t>(expected()))) + " expected, not null");
    }
}

}  // namespace lv::analysis
