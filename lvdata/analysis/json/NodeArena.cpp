#include <lvdata/analysis/json/NodeArena.h>

#include <algorithm>
#include <iterator>

namespace lv::analysis {

Node& NodeArena::make(Node::Kind kind, std::string_view name, std::string text) {
    Node& node = nodes_.emplace_back();
    node.kind = kind;
    node.name = name;
    setText(node, std::move(text));
    return node;
}

void NodeArena::setChildren(Node& parent, const std::vector<Node*>& children) {
    const Node** place = &parent.firstChild;
    for (Node* const child : children) {
        child->parent = &parent;
        *place = child;
        place = &child->next;
    }
}

void NodeArena::setChildren(Node& parent, std::vector<IndexedNode>& children) {
    const auto isBefore = [](const IndexedNode& left, const IndexedNode& right) {
        return left.first < right.first;
    };
    std::stable_sort(children.begin(), children.end(), isBefore);
    std::vector<Node*> sorted;
    std::transform(children.begin(), children.end(), std::back_inserter(sorted),
                   [](const IndexedNode& child) { return child.second; });
    setChildren(parent, sorted);
}

void appendContent(const XMLElement& target, const Node& element) {
    for (const Node& child : childrenOf(element)) {
        const std::string name(child.name);
        if (child.kind == Node::Kind::attribute) {
            static_cast<void>(target.setAttributeString(name, std::string(child.text)));
        } else if (child.kind == Node::Kind::element) {
            const Node* const text = textOf(child);
            appendContent(text == nullptr ? target.appendChild(name)
                                          : target.appendChildString(name, std::string(text->text)),
                          child);
        }
    }
}

}  // namespace lv::analysis
