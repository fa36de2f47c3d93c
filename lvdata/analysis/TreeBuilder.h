#pragma once

#include <lvdata/analysis/Tree.h>

#include <string>
#include <string_view>
#include <vector>

namespace lv::analysis {

/// Makes the nodes of a tree, in the order of the document.
class TreeBuilder {
public:
    /// Begins with the document itself.
    explicit TreeBuilder(Tree& tree);

    /// Adds a node after all that are in the open one.
    void add(const Node& node);

    /// Adds an element; what is added up to `close` is inside it.
    void open(const Node& element);

    /// Ends the element that was opened last.
    void close() { open_.pop_back(); }

private:
    struct Open {
        Node* node;
        Node* lastChild;
    };

    Node& append(const Node& node);
    Node& newNode();

    Tree& tree_;
    std::vector<Open> open_{};
};

}  // namespace lv::analysis
