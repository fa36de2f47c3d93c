#pragma once

#include <lvdata/core/Description.h>
#include <lvdata/core/detail/DraftCondition.h>

#include <deque>
#include <map>
#include <utility>
#include <vector>

namespace lv::detail {

struct DraftNode;

/// The nodes that an operation looks for, or several of them.
using DraftNodes = std::vector<DraftNode*>;

using DraftConditions = std::vector<const DraftCondition*>;

/// A node of a description in the making. It is known by its place in the tree, so that conditions can refer to it
/// before the tree is whole.
struct DraftNode {
    const DraftNode* parent = nullptr;

    /// What is known without other nodes.
    Description facts{};

    /// The member that is read and written here; null for an element that holds others.
    const void* member = nullptr;

    DraftConditions writtenWhen{};
    DraftConditions readWhen{};
    std::vector<DraftQuantityWhen> otherQuantities{};

    /// What sets the flag: a condition, or that one of the nodes is found.
    const DraftCondition* flagWhen = nullptr;
    DraftNodes flagNodes{};

    DraftNodes children{};
};

/// Gates in a row, the innermost first.
struct DraftGate {
    const DraftGate* outer;
    const DraftCondition* condition;
    bool closesReading;
    bool closesWriting;
};

/// The tree, and where in it each member of the record is. Owns all that is made on the way.
class Draft {
public:
    [[nodiscard]] DraftNode& root() { return root_; }

    /// A new last child.
    [[nodiscard]] DraftNode& addChild(DraftNode& parent);

    const DraftCondition* keep(DraftCondition condition) { return &conditions_.emplace_back(std::move(condition)); }
    const DraftGate* keep(const DraftGate& gate) { return &gates_.emplace_back(gate); }
    const DraftNodes* keep(DraftNodes nodes) { return &found_.emplace_back(std::move(nodes)); }

    /// The node reads and writes that member, or has that flag, which it may share with others.
    void addNodeOf(const void* member, DraftNode& node) { nodes_[member].push_back(&node); }

    /// The nodes of a member or a flag.
    [[nodiscard]] DraftNodes nodesOf(const void* member) const;

    /// The description, when the visit is over.
    [[nodiscard]] Description finish() const { return finished(root_); }

private:
    [[nodiscard]] Description finished(const DraftNode& node) const;
    [[nodiscard]] Condition finished(const DraftCondition& draft, const DraftNode& node) const;
    [[nodiscard]] std::vector<Condition> finished(const DraftConditions& draft, const DraftNode& node) const;

    DraftNode root_;
    std::deque<DraftNode> descendants_;
    std::deque<DraftCondition> conditions_;
    std::deque<DraftGate> gates_;
    std::deque<DraftNodes> found_;
    std::map<const void*, DraftNodes> nodes_;
};

}  // namespace lv::detail
