#include <lvdata/core/detail/Describer.h>
#include <lvdata/core/detail/Draft.h>

#include <algorithm>
#include <iterator>
#include <utility>

namespace lv::detail {
namespace {

/// Whether a member with that content is a number, or several.
bool isNumeric(Description::Content content) {
    return content != Description::Content::string && content != Description::Content::boolean;
}

/// A value is read through its address; the content gives its type.
template <class T>
const T& valueAt(const void* member) {
    return *static_cast<const T*>(member);
}

/// The text of a fresh record's member; arrays are empty there.
std::string defaultTextOf(Description::Content content, const void* member) {
    switch (content) {
    case Description::Content::string:
        return valueAt<std::string>(member);
    case Description::Content::boolean:
        return valueAt<bool>(member) ? "true" : "false";
    case Description::Content::unsignedNumber:
        return std::to_string(valueAt<unsigned int>(member));
    case Description::Content::signedNumber:
        return std::to_string(valueAt<int>(member));
    default:
        return "";
    }
}

void setQuantity(DraftNode& node, const DraftQuantity& quantity) {
    node.facts.quantity = *quantity.usual;
    std::copy_n(quantity.others, quantity.count, std::back_inserter(node.otherQuantities));
}

/// The outermost gate comes first.
void putBehindGates(const DraftGate* gate, DraftNode& node) {
    if (gate == nullptr) {
        return;
    }
    putBehindGates(gate->outer, node);
    if (gate->closesReading) {
        node.readWhen.push_back(gate->condition);
    }
    if (gate->closesWriting) {
        node.writtenWhen.push_back(gate->condition);
    }
}

}  // namespace

Describer::Found& Describer::Found::operator|=(const Found& other) {
    DraftNodes both = *nodes_;
    both.insert(both.end(), other.nodes_->begin(), other.nodes_->end());
    nodes_ = draft_->keep(std::move(both));
    return *this;
}

Describer Describer::behindGate(const DraftCondition* condition, bool closesReading, bool closesWriting) const {
    Describer gated = *this;
    gated.gate_ = draft_->keep({gate_, condition, closesReading, closesWriting});
    return gated;
}

Describer Describer::always() const {
    Describer gated = *this;
    gated.isAlways_ = true;
    return gated;
}

Describer Describer::optional() const {
    Describer gated = *this;
    gated.isOptional_ = !isAlways_;
    return gated;
}

Describer::Found Describer::lookingFor(DraftNode& node) const {
    return {*draft_, draft_->keep(DraftNodes{&node})};
}

Describer::Found Describer::exists() const {
    return lookingFor(*node_);
}

DraftNode& Describer::addNode(const char* name, Description::Place place) const {
    DraftNode& child = draft_->addChild(*node_);
    child.facts.name = name;
    child.facts.place = place;
    child.facts.isOptional = isOptional_;
    putBehindGates(gate_, child);
    return child;
}

Describer Describer::element(const char* name) const {
    return {*draft_, addNode(name, Description::Place::element)};
}

Describer Describer::rowElement(const char* name) const {
    DraftNode& row = addNode(name, Description::Place::element);
    row.facts.repetition = Description::Repetition::rows;
    return {*draft_, row};
}

Describer Describer::keyedElement(const char* name, const char* key, const char* text) const {
    DraftNode& node = addNode(name, Description::Place::element);
    node.facts.repetition = Description::Repetition::byKey;
    node.facts.keyAttribute = key;
    node.facts.keyText = text;
    Describer child(*draft_, node);
    child.constant(key, text);
    return child;
}

void Describer::constant(const char* name, const char* text) {
    DraftNode& attribute = addNode(name, Description::Place::attribute);
    attribute.facts.content = Description::Content::string;
    attribute.facts.constant = text;
}

Describer::Found Describer::addLeaf(const Leaf& leaf, const DraftQuantity& quantity) {
    DraftNode& node = addNode(leaf.name, leaf.place);
    node.facts.content = leaf.content;
    node.facts.defaultText = defaultTextOf(leaf.content, leaf.member);
    node.member = leaf.member;
    if (isNumeric(leaf.content)) {
        setQuantity(node, quantity);
    }
    draft_->addNodeOf(leaf.member, node);
    return lookingFor(node);
}

void Describer::addRecord(Description nested, const bool& flag) {
    DraftNode& node = optional().addNode(nested.name.c_str(), Description::Place::element);
    nested.isOptional = node.facts.isOptional;
    node.facts = std::move(nested);
    addFlag(lookingFor(node), flag);
}

void Describer::setLengths(std::initializer_list<std::size_t> lengths) {
    node_->children.back()->facts.lengths = lengths;
}

void Describer::addFlag(const Found& found, const bool& flag) {
    addFlag(found, flag, found);
}

void Describer::addFlag(const Found& found, const bool& flag, const Found& owners) {
    for (DraftNode* const owner : owners.nodes()) {
        owner->flagNodes = found.nodes();
        draft_->addNodeOf(&flag, *owner);
    }
}

void Describer::addFlag(const DraftCondition& condition, const bool& flag) {
    for (const void* const member : condition.subjects) {
        for (DraftNode* const owner : draft_->nodesOf(member)) {
            owner->flagWhen = &condition;
            draft_->addNodeOf(&flag, *owner);
        }
    }
}

void Describer::keepWhen(const Found& found) {
    node_->flagNodes = found.nodes();
}

void Describer::writeWhenAnyArrayCounts() {
    DraftConditions counts;
    for (const DraftNode* const array : node_->children) {
        counts.push_back(draftEntries(*draft_, array->facts.lengths.front(), &array->member, 1));
    }
    node_->writtenWhen.push_back(draftAnyOf(*draft_, counts.data(), counts.size()));
}

RecordDescriber::RecordDescriber(const char* rootName, unsigned int version, unsigned int minorVersion)
    : draft_(std::make_unique<Draft>()) {
    Description& facts = draft_->root().facts;
    facts.name = rootName;
    facts.record = rootName;
    facts.version = version;
    facts.minorVersion = minorVersion;
}

RecordDescriber::~RecordDescriber() = default;

Describer RecordDescriber::rootElement() {
    return {*draft_, draft_->root()};
}

Description RecordDescriber::finish() const {
    return draft_->finish();
}

}  // namespace lv::detail
