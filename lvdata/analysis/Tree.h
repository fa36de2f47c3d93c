#pragma once

#include <lvdata/xml/XMLView.h>

#include <cstddef>
#include <deque>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace lv::analysis {

/// A piece of a document: an element, an attribute, a text or a comment. The attributes of an element are the first of
/// its children.
struct Node {
    /// What it is.
    enum class Kind {
        document,   ///< The parent of the root element.
        element,    ///< An element.
        attribute,  ///< An attribute.
        text,       ///< Text, or a CDATA section.
        comment,    ///< A comment.
        other,      ///< Any other markup.
    };

    Kind kind = Kind::document;        ///< What it is.
    int line = 0;                      ///< Where it begins in the text, counted from 1; 0 when not known.
    std::string_view name{};           ///< The name of an element or attribute.
    std::string_view text{};           ///< The value of an attribute, the content of a text, comment or other markup.
    const Node* parent = nullptr;      ///< What it is in; null for the document.
    const Node* firstChild = nullptr;  ///< Its first attribute, element or text; null when it has none.
    const Node* next = nullptr;        ///< What follows it in its parent; null for the last.
};

/// The children of a node, for a range-based loop: `for (const Node& child : childrenOf(node))`.
class Children {
public:
    /// Steps along the children.
    class Iterator {
    public:
        /// Begins at a node; null is the end.
        explicit Iterator(const Node* node) : node_(node) {}

        /// The child.
        const Node& operator*() const { return *node_; }

        /// To the next child.
        Iterator& operator++() {
            node_ = node_->next;
            return *this;
        }

        /// Whether they are at different places.
        friend bool operator!=(Iterator left, Iterator right) { return left.node_ != right.node_; }

    private:
        const Node* node_;
    };

    /// The children of a node.
    explicit Children(const Node& parent) : first_(parent.firstChild) {}

    /// The first child.
    [[nodiscard]] Iterator begin() const { return Iterator(first_); }

    /// After the last child.
    [[nodiscard]] static Iterator end() { return Iterator(nullptr); }

private:
    const Node* first_;
};

/// The attributes, elements, texts and comments of a node, in the order of the document.
[[nodiscard]] inline Children childrenOf(const Node& node) {
    return Children(node);
}

/// The attribute of that name; null when there is none.
[[nodiscard]] const Node* attributeOf(const Node& element, std::string_view name);

/// The text that a record reads from the element: the first text, unless an element comes before it; null when there is
/// none.
[[nodiscard]] const Node* textOf(const Node& element);

/// A document as a tree of nodes: the same form for documents that are read and documents that records print. Nodes
/// keep their addresses as long as the tree exists.
class Tree {
public:
    /// The nodes of a document that the XML library holds. Names and texts are views into that document, which must
    /// outlive the tree. Nesting uses no stack.
    explicit Tree(const XMLView& document);

    /// The nodes of a text that `DataObject::toXMLString` printed, in a quarter of the time of parsing it. Texts are
    /// those of the record: they have white space and carriage returns even where parsing the text would drop or change
    /// them. Not for any other XML.
    [[nodiscard]] static Tree ofPrinted(std::string text);

    /// The parent of the root element.
    [[nodiscard]] const Node& document() const { return *document_; }

    /// The first element at document level; null when there is none.
    [[nodiscard]] const Node* root() const;

private:
    friend class TreeBuilder;
    Tree() = default;

    std::unique_ptr<std::string> printed_{};         // the text of the views; its address never changes
    std::deque<std::string> unescaped_{};            // texts that held entities
    std::vector<std::unique_ptr<Node[]>> blocks_{};  // NOLINT(*-avoid-c-arrays): of equal size
    std::size_t usedOfLast_ = 0;
    const Node* document_ = nullptr;
};

}  // namespace lv::analysis
