#pragma once

#include <lvdata/analysis/Tree.h>
#include <lvdata/xml/XMLElement.h>

#include <cstddef>
#include <deque>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace lv::analysis {

/// A node, with its index among the children that its parent's shape has.
using IndexedNode = std::pair<std::size_t, Node*>;

/// Makes nodes of a document in any order. Nodes and texts keep their addresses as long as the arena exists.
class NodeArena {
public:
    /// Makes a node without a parent. The name must outlive the arena; the text is kept.
    Node& make(Node::Kind kind, std::string_view name, std::string text = {});

    /// Gives a node a new text, which is kept.
    void setText(Node& node, std::string text) { node.text = texts_.emplace_back(std::move(text)); }

    /// Puts these nodes into a node that is empty, in this order.
    static void setChildren(Node& parent, const std::vector<Node*>& children);

    /// The same in the order of their indexes; nodes of equal index keep theirs. Sorts `children`.
    static void setChildren(Node& parent, std::vector<IndexedNode>& children);

private:
    std::deque<Node> nodes_{};
    std::deque<std::string> texts_{};
};

/// Appends the content of the element to an element of the XML library.
void appendContent(const XMLElement& target, const Node& element);

}  // namespace lv::analysis
