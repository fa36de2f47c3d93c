#include <lvdata/analysis/Tree.h>
#include <lvdata/analysis/TreeBuilder.h>
#include <lvdata/analysis/printed_xml.h>

#include <utility>

namespace lv::analysis {
namespace {

Node::Kind kindOf(XMLView::Kind kind) {
    switch (kind) {
    case XMLView::Kind::element:
        return Node::Kind::element;
    case XMLView::Kind::text:
        return Node::Kind::text;
    case XMLView::Kind::comment:
        return Node::Kind::comment;
    default:
        return Node::Kind::other;
    }
}

Node nodeOf(const XMLView& view) {
    Node node;
    node.kind = kindOf(view.kind());
    node.line = view.line();
    (node.kind == Node::Kind::element ? node.name : node.text) = view.value();
    return node;
}

Node nodeOf(const XMLAttributeView& view) {
    Node node;
    node.kind = Node::Kind::attribute;
    node.line = view.line();
    node.name = view.name();
    node.text = view.value();
    return node;
}

void openElement(TreeBuilder& builder, const XMLView& element) {
    builder.open(nodeOf(element));
    for (XMLAttributeView attribute = element.firstAttribute(); attribute.isValid(); attribute = attribute.next()) {
        builder.add(nodeOf(attribute));
    }
}

/// The next node in document order; closes all open elements that end here. Invalid at the end.
XMLView after(XMLView view, std::vector<XMLView>& open, TreeBuilder& builder) {
    while (!view.isValid() && !open.empty()) {
        builder.close();
        view = open.back().next();
        open.pop_back();
    }
    return view;
}

void addAll(TreeBuilder& builder, const XMLView& document) {
    std::vector<XMLView> open;
    XMLView view = document.firstChild();
    while (view.isValid()) {
        if (view.kind() == XMLView::Kind::element) {
            openElement(builder, view);
            open.push_back(view);
            view = after(view.firstChild(), open, builder);
        } else {
            builder.add(nodeOf(view));
            view = after(view.next(), open, builder);
        }
    }
}

}  // namespace

const Node* attributeOf(const Node& element, std::string_view name) {
    const Node* child = element.firstChild;
    while (child != nullptr && child->kind == Node::Kind::attribute) {
        if (child->name == name) {
            return child;
        }
        child = child->next;
    }
    return nullptr;
}

const Node* textOf(const Node& element) {
    for (const Node& child : childrenOf(element)) {
        if (child.kind == Node::Kind::text) {
            return &child;
        }
        if (child.kind == Node::Kind::element || child.kind == Node::Kind::other) {
            return nullptr;
        }
    }
    return nullptr;
}

Tree::Tree(const XMLView& document) {
    TreeBuilder builder(*this);
    addAll(builder, document);
}

Tree Tree::ofPrinted(std::string text) {
    Tree tree;
    tree.printed_ = std::make_unique<std::string>(std::move(text));
    TreeBuilder builder(tree);
    addPrinted(builder, *tree.printed_, tree.unescaped_);
    return tree;
}

const Node* Tree::root() const {
    for (const Node& child : childrenOf(*document_)) {
        if (child.kind == Node::Kind::element) {
            return &child;
        }
    }
    return nullptr;
}

}  // namespace lv::analysis
