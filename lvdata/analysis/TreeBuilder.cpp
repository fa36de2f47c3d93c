#include <lvdata/analysis/TreeBuilder.h>

namespace lv::analysis {
namespace {

constexpr std::size_t nodesOfBlock = 64;

}  // namespace

TreeBuilder::TreeBuilder(Tree& tree) : tree_(tree) {
    Node& document = newNode();
    tree_.document_ = &document;
    open_.push_back({&document, nullptr});
}

void TreeBuilder::add(const Node& node) {
    append(node);
}

void TreeBuilder::open(const Node& element) {
    open_.push_back({&append(element), nullptr});
}

Node& TreeBuilder::append(const Node& node) {
    Node& appended = newNode();
    appended = node;
    Open& parent = open_.back();
    appended.parent = parent.node;
    if (parent.lastChild == nullptr) {
        parent.node->firstChild = &appended;
    } else {
        parent.lastChild->next = &appended;
    }
    parent.lastChild = &appended;
    return appended;
}

Node& TreeBuilder::newNode() {
    if (tree_.blocks_.empty() || tree_.usedOfLast_ == nodesOfBlock) {
        tree_.blocks_.push_back(std::make_unique<Node[]>(nodesOfBlock));  // NOLINT(*-avoid-c-arrays)
        tree_.usedOfLast_ = 0;
    }
    return tree_.blocks_.back()[tree_.usedOfLast_++];
}

}  // namespace lv::analysis
