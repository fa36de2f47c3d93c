#include <tests/support/model/Node.h>

#include <algorithm>
#include <sstream>
#include <stdexcept>

namespace lv::test {
namespace {

using lv::Description;
using Nodes = std::vector<Node*>;

std::unique_ptr<Node> nodeOf(const Description& facts, Node* parent) {
    auto node = std::make_unique<Node>();
    node->facts = &facts;
    node->parent = parent;
    return node;
}

bool isList(const Node& node) {
    return node.facts->repetition == Description::Repetition::rows;
}

bool hasMember(const Node& node) {
    return isList(node) || (node.facts->content != Description::Content::none && !node.facts->constant);
}

/// Rows have no children here.
void addChildren(Node& node) {
    for (const Description& facts : node.facts->children) {
        Node& child = *node.children.emplace_back(nodeOf(facts, &node));
        if (!isList(child)) {
            addChildren(child);
        }
    }
}

void collectLeaves(Node& node, Nodes& leaves) {
    for (const auto& child : node.children) {
        if (hasMember(*child)) {
            leaves.push_back(child.get());
        }
        collectLeaves(*child, leaves);
    }
}

Nodes leavesOf(Node& node) {
    Nodes leaves;
    collectLeaves(node, leaves);
    return leaves;
}

std::string pathOf(const Node& node) {
    return (node.parent != nullptr ? pathOf(*node.parent) + '/' : "") + node.facts->name;
}

[[noreturn]] void failToBind(const std::string& member, const std::string& element) {
    throw std::logic_error("the members and the description do not belong together: member " + member + ", element " +
                           element);
}

/// The alternatives of `Place` for each content.
std::size_t indexFor(Description::Content content) {
    switch (content) {
    case Description::Content::boolean:
        return Place(static_cast<bool*>(nullptr)).index();
    case Description::Content::signedNumber:
        return Place(static_cast<int*>(nullptr)).index();
    case Description::Content::unsignedNumber:
        return Place(static_cast<unsigned int*>(nullptr)).index();
    case Description::Content::signedArray:
        return Place(static_cast<std::vector<int>*>(nullptr)).index();
    case Description::Content::unsignedArray:
        return Place(static_cast<std::vector<unsigned int>*>(nullptr)).index();
    case Description::Content::none:
    case Description::Content::string:
        break;
    }
    return Place(static_cast<std::string*>(nullptr)).index();
}

/// The node that holds all the leaves and no others.
Node* nodeOfAll(const Nodes& leaves) {
    Node* node = leaves.front();
    while (node->parent != nullptr && leavesOf(*node).size() < leaves.size()) {
        node = node->parent;
    }
    return leavesOf(*node) == leaves ? node : nullptr;
}

/// Goes over the leaves of a description and the members at the same time.
class Binder {
public:
    explicit Binder(const Nodes& leaves) : leaves_(leaves) {}

    /// \param prefix  what the paths of the members begin with
    void bindAll(const Members& members, const std::string& prefix) {
        bind(members, prefix);
        if (next_ != leaves_.size()) {
            failToBind("(none)", pathOf(*leaves_[next_]));
        }
    }

private:
    void bind(const Members& members, const std::string& prefix) {
        const std::size_t first = next_;
        std::size_t previous = next_;
        for (const Member& member : members) {
            const std::size_t start = next_;
            bind(member, prefix + member.name, member.role == Member::Role::flagOfAll ? first : previous);
            previous = start;
        }
    }

    /// \param owned  the first of the leaves that the member would be the flag of
    void bind(const Member& member, const std::string& path, std::size_t owned) {
        switch (member.role) {
        case Member::Role::inDocuments:
            bindValue(member, path);
            break;
        case Member::Role::flagOfPrevious:
        case Member::Role::flagOfAll:
            bindFlag(std::get<bool*>(member.place), path, owned);
            break;
        case Member::Role::wasRead:
            leaves_.at(next_ - 1)->wasRead = std::get<bool*>(member.place);
            break;
        case Member::Role::inNoDocument:
            break;
        }
    }

    void bindValue(const Member& member, const std::string& path) {
        const std::size_t start = next_;
        bind(member.members, path + '.');
        if (member.isPlain || member.rows != nullptr) {
            bindLeaf(member, path);
        }
        if (member.flag != nullptr) {
            bindFlag(member.flag, path, start);
        }
    }

    void bindLeaf(const Member& member, const std::string& path) {
        if (next_ == leaves_.size()) {
            failToBind(path, "(none)");
        }
        Node& node = *leaves_[next_++];
        const bool fits = isList(node) ? member.rows != nullptr
                                       : member.isPlain && member.place.index() == indexFor(node.facts->content);
        if (!fits) {
            failToBind(path, pathOf(node));
        }
        node.path = path;
        node.hasPlace = member.isPlain;
        node.place = member.place;
        node.rows = member.rows;
    }

    void bindFlag(bool* flag, const std::string& path, std::size_t start) {
        const Nodes owned(leaves_.begin() + static_cast<std::ptrdiff_t>(start),
                          leaves_.begin() + static_cast<std::ptrdiff_t>(next_));
        bool isOwned = false;
        for (Node* const owner : ownersOf(owned)) {
            if (owner->facts->flag && owner->flag == nullptr) {
                owner->flag = flag;
                isOwned = true;
            }
        }
        if (!isOwned) {
            failToBind("flag of " + path, "(none)");
        }
    }

    /// The element of a value or, where it has none of its own, all of its leaves.
    static Nodes ownersOf(const Nodes& leaves) {
        Node* const all = leaves.empty() ? nullptr : nodeOfAll(leaves);
        return leaves.size() > 1 && all != nullptr && all->facts->flag ? Nodes{all} : leaves;
    }

    const Nodes& leaves_;
    std::size_t next_ = 0;
};

void checkFlags(const Node& node) {
    for (const auto& child : node.children) {
        if (child->facts->flag && child->flag == nullptr && !isList(*child)) {
            failToBind("(no flag)", pathOf(*child));
        }
        checkFlags(*child);
    }
}

std::unique_ptr<Node> bound(std::unique_ptr<Node> node, const Members& members, const std::string& prefix) {
    addChildren(*node);
    const Nodes leaves = leavesOf(*node);
    Binder(leaves).bindAll(members, prefix);
    checkFlags(*node);
    return node;
}

/// One step of an XPath expression, as it leads to the node.
std::string stepTo(const Description& facts) {
    switch (facts.place) {
    case Description::Place::attribute:
        return '@' + facts.name;
    case Description::Place::text:
        return "text()";
    case Description::Place::element:
        break;
    }
    const bool hasKey = facts.repetition == Description::Repetition::byKey;
    return facts.name + (hasKey ? "[@" + facts.keyAttribute + "='" + facts.keyText + "']" : "");
}

const Node* childBy(const Node& node, const std::string& step) {
    const auto found = std::find_if(node.children.begin(), node.children.end(),
                                    [&step](const auto& child) { return stepTo(*child->facts) == step; });
    return found == node.children.end() ? nullptr : found->get();
}

const Node& subjectBy(const Node& start, const std::string& path) {
    const Node* node = &start;
    std::istringstream steps(path);
    for (std::string step; std::getline(steps, step, '/');) {
        node = step == ".." ? node->parent : step == "." ? node : childBy(*node, step);
        if (node == nullptr) {
            throw std::logic_error("no " + path + " at " + pathOf(start));
        }
    }
    return *node;
}

}  // namespace

std::unique_ptr<Node> boundRoot(const Description& description, const Members& members) {
    return bound(nodeOf(description, nullptr), members, "");
}

std::unique_ptr<Node> boundRow(const Node& list, std::size_t index) {
    return bound(nodeOf(*list.facts, list.parent), list.rows->membersOf(index), list.path + '.');
}

const Place& placeOf(const Node& node) {
    if (!node.hasPlace) {
        throw std::logic_error(pathOf(node) + " has no value");
    }
    return node.place;
}

std::vector<const Node*> subjectsOf(const lv::Condition& condition, const Node& node) {
    std::vector<const Node*> subjects;
    std::transform(condition.subjects.begin(), condition.subjects.end(), std::back_inserter(subjects),
                   [&node](const std::string& path) { return &subjectBy(node, path); });
    return subjects;
}

}  // namespace lv::test
