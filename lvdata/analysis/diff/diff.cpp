#include <lvdata/analysis/diff/diff.h>

#include <lvdata/analysis/diff/IgnoredPaths.h>
#include <lvdata/analysis/diff/StoredValue.h>
#include <lvdata/analysis/diff/row_matching.h>
#include <lvdata/analysis/diff/value_difference.h>
#include <lvdata/core/quantities.h>

#include <algorithm>
#include <utility>

namespace lv::analysis {
namespace {

using Kind = Difference::Kind;
using Place = Description::Place;

/// A described child of an element.
struct Child {
    const Shape* shape;
    const Node* node;
};

using ChildList = std::vector<Child>;

/// The text child of the shape that is in use at the element: the one that would be written.
const Shape* textShape(const Position& element, const Node& text) {
    for (const auto& child : element.shape->children()) {
        const Position position = {child.get(), &text, element.node};
        if (child->facts().place == Place::text && firstDenied(child->writtenWhen(), position, {}) == nullptr) {
            return child.get();
        }
    }
    return nullptr;
}

const Shape* elementShape(const Shape& parent, const Node& element, const Shape* previous) {
    const Shape* const first = parent.firstElement(element.name, previous);
    if (first == nullptr || first->facts().keyAttribute.empty()) {
        return first;
    }
    const Node* const key = attributeOf(element, first->facts().keyAttribute);
    return parent.element(element.name, key == nullptr ? "" : key->text);
}

const Shape* shapeOf(const Position& parent, const Node& child, const Shape* previous) {
    switch (child.kind) {
    case Node::Kind::attribute:
        return parent.shape->attribute(child.name);
    case Node::Kind::element:
        return elementShape(*parent.shape, child, previous);
    case Node::Kind::text:
        return textShape(parent, child);
    default:
        return nullptr;
    }
}

/// The described children in the order of writing.
ChildList childrenAt(const Position& parent) {
    ChildList list;
    const Shape* previous = nullptr;
    for (const Node& node : childrenOf(*parent.node)) {
        const Shape* const shape = shapeOf(parent, node, previous);
        if (shape != nullptr) {
            list.push_back({shape, &node});
            previous = node.kind == Node::Kind::element ? shape : previous;
        }
    }
    std::stable_sort(list.begin(), list.end(),
                     [](const Child& left, const Child& right) { return left.shape->index() < right.shape->index(); });
    return list;
}

/// Takes the children of one shape from the start of a list.
class Front {
public:
    explicit Front(const Position& parent) : list_(childrenAt(parent)) {}

    /// The index of the next shape; one beyond all when there is none.
    [[nodiscard]] std::size_t nextIndex() const {
        return next_ < list_.size() ? list_[next_].shape->index() : static_cast<std::size_t>(-1);
    }

    [[nodiscard]] const Shape& shape() const { return *list_[next_].shape; }

    std::vector<const Node*> take(const Shape& shape) {
        std::vector<const Node*> nodes;
        while (next_ < list_.size() && list_[next_].shape == &shape) {
            nodes.push_back(list_[next_++].node);
        }
        return nodes;
    }

private:
    ChildList list_;
    std::size_t next_ = 0;
};

/// Whether it is reported as a whole, without its content, when only one document has it.
bool isWhole(const Position& position) {
    const Description& facts = position.shape->facts();
    return facts.repetition == Description::Repetition::rows || !facts.record.empty();
}

bool isCoordinate(const Shape& shape, std::string_view name) {
    const Description& facts = shape.facts();
    return facts.name == name && facts.place == Place::element && facts.quantity == quantities::chromaticity;
}

/// Visits two documents in parallel.
class Walk {
public:
    explicit Walk(const DiffOptions& options) : judge_{options.tolerances}, ignored_(options.ignoredPaths) {}

    Diff compare(const Tree& before, const Tree& after, const Shape& root) {
        path_ = root.facts().name;
        compareSame({{&root, before.root(), &before.document()}, {&root, after.root(), &after.document()}});
        return std::move(diff_);
    }

private:
    using Nodes = std::vector<const Node*>;

    /// Calls a function with one more step at the end of the path.
    template <class Do>
    void inStep(const std::string& step, Do action) {
        const std::size_t length = path_.size();
        path_ += step.empty() ? "" : '/' + step;
        action();
        path_.resize(length);
    }

    /// The last step of a path to it; a text has the path of its element.
    static std::string stepOf(const Shape& shape) {
        return shape.facts().place == Place::text ? "" : shape.facts().xpathStep();
    }

    void compareSame(const ValuePair& pair) {
        if (storedText(pair.before) != nullptr) {
            report(valueDifference(pair, judge_));
        }
        Front before(pair.before);
        Front after(pair.after);
        for (std::size_t next = 0; (next = std::min(before.nextIndex(), after.nextIndex())) + 1 != 0;) {
            const Shape& shape = before.nextIndex() == next ? before.shape() : after.shape();
            compareChildren(shape, pair, before.take(shape), after.take(shape));
        }
    }

    void compareChildren(const Shape& shape, const ValuePair& parents, const Nodes& before, const Nodes& after) {
        if (shape.facts().repetition == Description::Repetition::rows) {
            compareRows(shape, parents, before, after);
        } else if (!comparesChromaticity(shape, parents)) {
            compareOne({&shape, before.empty() ? nullptr : before.front(), parents.before.node},
                       {&shape, after.empty() ? nullptr : after.front(), parents.after.node}, stepOf(shape));
        }
    }

    /// Reports x and y together when both documents have both. Returns whether they have.
    bool comparesChromaticity(const Shape& shape, const ValuePair& parents) {
        const Shape* const x = isCoordinate(shape, "y") ? shape.parent()->firstElement("x") : &shape;
        const Shape* const y = isCoordinate(shape, "x") ? shape.parent()->firstElement("y") : &shape;
        if (x == y || x == nullptr || y == nullptr) {
            return false;
        }
        const ValuePair inX = {childAt(parents.before, *x), childAt(parents.after, *x)};
        const ValuePair inY = {childAt(parents.before, *y), childAt(parents.after, *y)};
        const auto nodes = {inX.before.node, inX.after.node, inY.before.node, inY.after.node};
        if (std::count(nodes.begin(), nodes.end(), nullptr) != 0) {
            return false;
        }
        if (&shape == x) {
            inStep("(x,y)", [&] { report(chromaticityDifference(inX, inY, judge_)); });
        }
        return true;
    }

    void compareRows(const Shape& shape, const ValuePair& parents, const Nodes& before, const Nodes& after) {
        const RowPairs pairs = matchRows(shape, before, after);
        for (const RowPair& pair : pairs.rows) {
            compareOne({&shape, pair.before, parents.before.node}, {&shape, pair.after, parents.after.node}, pair.step);
        }
        if (pairs.isReordered) {
            inStep(shape.facts().name, [this] { add(Kind::reordered, {}); });
        }
    }

    void compareOne(const Position& before, const Position& after, const std::string& step) {
        inStep(step, [&] {
            if (before.node == nullptr) {
                addOneSided(after, Kind::set);
            } else if (after.node == nullptr) {
                addOneSided(before, Kind::cleared);
            } else {
                compareSame({before, after});
            }
        });
    }

    void addOneSided(const Position& position, Kind kind) {
        if (isWhole(position)) {
            add(kind, {});
            return;
        }
        const ChildList children = position.node->kind == Node::Kind::element ? childrenAt(position) : ChildList();
        if (storedText(position) != nullptr || children.empty()) {
            addValue(position, kind);
        }
        for (const Child& child : children) {
            inStep(stepOf(*child.shape), [&] { addOneSided({child.shape, child.node, position.node}, kind); });
        }
    }

    void addValue(const Position& position, Kind kind) {
        Difference difference;
        difference.content = contentAt(position);
        (kind == Kind::set ? difference.after : difference.before) = shownValue(position);
        add(kind, std::move(difference));
    }

    void report(std::optional<JudgedDifference> judged) {
        if (judged && judged->isWithinTolerance) {
            ++diff_.withinTolerance;
        } else if (judged) {
            add(Kind::changed, std::move(judged->difference));
        }
    }

    void add(Kind kind, Difference difference) {
        if (ignored_.match(path_)) {
            ++diff_.ignored;
            return;
        }
        difference.kind = kind;
        difference.path = path_;
        diff_.differences.push_back(std::move(difference));
    }

    Judge judge_;
    IgnoredPaths ignored_;
    std::string path_{};
    Diff diff_{};
};

}  // namespace

Diff diffPrinted(const Tree& before, const Tree& after, const Catalogue::Entry& entry, const DiffOptions& options) {
    return Walk(options).compare(before, after, *entry.shape);
}

std::variant<Diff, DiffRefusal> diff(const DataObject& before, const DataObject& after, const Catalogue& catalogue,
                                     const DiffOptions& options) {
    const Tree first = Tree::ofPrinted(before.toXMLString(false, false));
    const Tree second = Tree::ofPrinted(after.toXMLString(false, false));
    const std::string_view name = first.root()->name;
    if (name != second.root()->name) {
        return DiffRefusal{"records of different classes: " + std::string(name) + " and " +
                           std::string(second.root()->name)};
    }
    const Catalogue::Entry* const entry = catalogue.find(name);
    if (entry == nullptr) {
        return DiffRefusal{"unknown record class " + std::string(name)};
    }
    return diffPrinted(first, second, *entry, options);
}

}  // namespace lv::analysis
