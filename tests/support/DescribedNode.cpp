#include <tests/support/DescribedNode.h>

#include <algorithm>
#include <sstream>
#include <stdexcept>

#include <tinyxml2.h>

namespace lv::test {
namespace {

using tinyxml2::XMLElement;

bool isKeyed(const Description& node) {
    return node.repetition == Description::Repetition::byKey;
}

bool isLike(const XMLElement& element, const Description& node) {
    return !isKeyed(node) || element.Attribute(node.keyAttribute.c_str(), node.keyText.c_str()) != nullptr;
}

XMLElement* childLike(XMLElement* parent, const Description& node) {
    XMLElement* child = parent == nullptr ? nullptr : parent->FirstChildElement(node.name.c_str());
    while (child != nullptr && !isLike(*child, node)) {
        child = child->NextSiblingElement(node.name.c_str());
    }
    return child;
}

void addWithDescendants(const DescribedNode& node, bool entersRecords, std::vector<DescribedNode>& all) {
    all.push_back(node);
    if (node->record.empty() || entersRecords || !node.hasParent()) {
        for (const DescribedNode& child : node.children()) {
            addWithDescendants(child, entersRecords, all);
        }
    }
}

}  // namespace

std::vector<DescribedNode> DescribedNode::children() const {
    std::vector<DescribedNode> children;
    for (const Description& description : path_.back()->children) {
        children.push_back(child(description));
    }
    return children;
}

DescribedNode DescribedNode::child(const Description& description) const {
    DescribedNode node = *this;
    node.path_.push_back(&description);
    return node;
}

DescribedNode DescribedNode::parent() const {
    DescribedNode node = *this;
    node.path_.pop_back();
    return node;
}

DescribedNode DescribedNode::step(const std::string& step) const {
    if (step == ".") {
        return *this;
    }
    if (step == "..") {
        return hasParent() ? parent() : throw std::out_of_range(name() + " has no parent");
    }
    const auto& all = path_.back()->children;
    const auto isMeant = [&](const Description& node) {
        return node.xpathStep() == step;
    };
    if (std::count_if(all.begin(), all.end(), isMeant) == 0) {
        throw std::out_of_range(name() + " has no " + step);
    }
    return child(*std::find_if(all.begin(), all.end(), isMeant));
}

DescribedNode DescribedNode::at(const std::string& xpath) const {
    DescribedNode node = *this;
    std::istringstream steps(xpath);
    for (std::string each; std::getline(steps, each, '/');) {
        node = node.step(each);
    }
    return node;
}

std::string DescribedNode::name() const {
    std::string name;
    for (const Description* const node : path_) {
        name += (name.empty() ? "" : "/") + node->xpathStep();
    }
    return name;
}

XMLElement* DescribedNode::elementIn(tinyxml2::XMLDocument& document) const {
    XMLElement* element = document.FirstChildElement(path_.front()->name.c_str());
    for (auto node = path_.begin() + 1; node != path_.end(); ++node) {
        if ((*node)->place == Description::Place::element) {
            element = childLike(element, **node);
        }
    }
    return element;
}

bool DescribedNode::isIn(tinyxml2::XMLDocument& document) const {
    const XMLElement* const element = elementIn(document);
    switch (path_.back()->place) {
    case Description::Place::attribute:
        return element != nullptr && element->Attribute(path_.back()->name.c_str()) != nullptr;
    case Description::Place::text:
        return element != nullptr && element->GetText() != nullptr;
    case Description::Place::element:
        break;
    }
    return element != nullptr;
}

std::string DescribedNode::text(tinyxml2::XMLDocument& document) const {
    const XMLElement* const element = elementIn(document);
    const bool isAttribute = path_.back()->place == Description::Place::attribute;
    const char* const text = element == nullptr ? nullptr
                             : isAttribute      ? element->Attribute(path_.back()->name.c_str())
                                                : element->GetText();
    return text == nullptr ? "" : text;
}

void DescribedNode::setText(tinyxml2::XMLDocument& document, const std::string& text) const {
    XMLElement* const element = elementIn(document);
    if (element == nullptr) {
        throw std::logic_error(name() + " is not in the document");
    }
    if (path_.back()->place == Description::Place::attribute) {
        element->SetAttribute(path_.back()->name.c_str(), text.c_str());
    } else if (text.empty()) {
        element->DeleteChildren();
    } else {
        element->SetText(text.c_str());
    }
}

void DescribedNode::removeFrom(tinyxml2::XMLDocument& document) const {
    XMLElement* const element = elementIn(document);
    if (element == nullptr) {
        return;
    }
    switch (path_.back()->place) {
    case Description::Place::attribute:
        element->DeleteAttribute(path_.back()->name.c_str());
        return;
    case Description::Place::text:
        element->DeleteChildren();
        return;
    case Description::Place::element:
        element->Parent()->DeleteChild(element);
    }
}

std::vector<DescribedNode> withDescendants(const DescribedNode& node) {
    std::vector<DescribedNode> all;
    addWithDescendants(node, true, all);
    return all;
}

std::vector<DescribedNode> ownNodes(const Description& record) {
    std::vector<DescribedNode> all;
    addWithDescendants(DescribedNode(record), false, all);
    return all;
}

}  // namespace lv::test
