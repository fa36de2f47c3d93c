#include <tests/support/CompleteDocument.h>

#include <algorithm>
#include <stdexcept>

namespace lv::test {
namespace {

using tinyxml2::XMLElement;

/// A text that is none of these, and a number when they are numbers.
std::string otherThan(const std::vector<std::string>& texts) {
    std::string other = "250";
    while (std::find(texts.begin(), texts.end(), other) != texts.end()) {
        other += '0';
    }
    return other;
}

}  // namespace

std::string sampleArray(std::size_t entries) {
    std::string text = entries == 0 ? "" : "7";
    for (std::size_t entry = 1; entry < entries; ++entry) {
        text += "|7";
    }
    return text;
}

std::string sampleText(const Description& node) {
    switch (node.content) {
    case Description::Content::none:
        return "";
    case Description::Content::string:
        return node.constant.value_or("text");
    case Description::Content::boolean:
        return "true";
    case Description::Content::unsignedNumber:
    case Description::Content::signedNumber:
        return "7";
    case Description::Content::unsignedArray:
    case Description::Content::signedArray:
        break;
    }
    return sampleArray(node.lengths.empty() ? 3 : node.lengths.front());
}

CompleteDocument::CompleteDocument(const Description& root) {
    addChildren(DescribedNode(root), *document_.InsertEndChild(document_.NewElement(root.name.c_str()))->ToElement());
}

std::string CompleteDocument::text() {
    tinyxml2::XMLPrinter printer;
    document_.Print(&printer);
    return printer.CStr();
}

void CompleteDocument::addChildren(const DescribedNode& node, XMLElement& element) {
    for (const DescribedNode& child : node.children()) {
        add(child, element);
    }
}

void CompleteDocument::add(const DescribedNode& node, XMLElement& parent) {
    const std::string text = sampleText(*node);
    switch (node->place) {
    case Description::Place::attribute:
        parent.SetAttribute(node->name.c_str(), text.c_str());
        return;
    case Description::Place::text:
        parent.SetText(text.c_str());
        return;
    case Description::Place::element:
        break;
    }
    XMLElement& element = *parent.InsertNewChildElement(node->name.c_str());
    if (!text.empty()) {
        element.SetText(text.c_str());
    }
    addChildren(node, element);
}

void CompleteDocument::makeWritten(const DescribedNode& node) {
    if (node.hasParent()) {
        makeWritten(node.parent());
    }
    for (const Condition& condition : node->writtenWhen) {
        satisfy(condition, node);
    }
    if (node->isOptional) {
        satisfy(node->flag.value(), node);
    }
}

void CompleteDocument::makeRead(const DescribedNode& node) {
    for (const Condition& condition : node->readWhen) {
        satisfy(condition, node);
    }
}

void CompleteDocument::satisfy(const Condition& condition, const DescribedNode& node) {
    switch (condition.kind) {
    case Condition::Kind::oneOf:
        setText(node.at(condition.subjects.at(0)), condition.texts.at(0));
        return;
    case Condition::Kind::noneOf:
        setText(node.at(condition.subjects.at(0)), otherThan(condition.texts));
        return;
    case Condition::Kind::isSet: {
        const DescribedNode subject = node.at(condition.subjects.at(0));
        satisfy(subject->flag.value(), subject);
        return;
    }
    case Condition::Kind::haveEntries:
        for (const std::string& subject : condition.subjects) {
            setText(node.at(subject), sampleArray(condition.entries));
        }
        return;
    case Condition::Kind::anyOf:
        satisfy(condition.alternatives.at(0), node);
        return;
    case Condition::Kind::hlgSwitch:
        hlgSwitch_ = true;
        return;
    case Condition::Kind::notEmpty:
    case Condition::Kind::exists:
    case Condition::Kind::hasText:
    case Condition::Kind::rule:
        return;  // as it is from the beginning
    }
}

void CompleteDocument::falsify(const Condition& condition, const DescribedNode& node, std::size_t subject) {
    switch (condition.kind) {
    case Condition::Kind::oneOf:
        setText(node.at(condition.subjects.at(0)), otherThan(condition.texts));
        return;
    case Condition::Kind::noneOf:
        setText(node.at(condition.subjects.at(0)), condition.texts.at(subject));
        return;
    case Condition::Kind::isSet: {
        const DescribedNode flagged = node.at(condition.subjects.at(0));
        falsify(flagged->flag.value(), flagged, subject);
        return;
    }
    case Condition::Kind::notEmpty:
        setText(node.at(condition.subjects.at(0)), "");
        return;
    case Condition::Kind::haveEntries:
        setText(node.at(condition.subjects.at(subject)), sampleArray(condition.entries + 1));
        return;
    case Condition::Kind::exists:
    case Condition::Kind::hasText:
        for (const std::string& each : condition.subjects) {
            remove(node.at(each));
        }
        return;
    case Condition::Kind::anyOf:
        for (const Condition& alternative : condition.alternatives) {
            falsify(alternative, node);
        }
        return;
    case Condition::Kind::hlgSwitch:
        hlgSwitch_ = false;
        return;
    case Condition::Kind::rule:  // the one that there is asks for numbers that are not 0
        setText(node.at(condition.subjects.at(subject)), "0");
        return;
    }
}

}  // namespace lv::test
