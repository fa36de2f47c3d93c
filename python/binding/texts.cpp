#include "texts.h"

#include <lvdata/analysis/Position.h>
#include <lvdata/analysis/content.h>
#include <lvdata/analysis/json/NodeArena.h>

#include <algorithm>
#include <stdexcept>
#include <utility>
#include <vector>

namespace lv::python {
namespace {

using analysis::Node;
using analysis::NodeArena;
using analysis::Position;
using analysis::Shape;
using Kind = Member::Kind;

/// The texts of an element as nodes of a document, so that the library can be asked of them.
class Nodes {
public:
    explicit Nodes(const Element& element) : parent_(arena_.make(Node::Kind::element, nameOf(element))) {
        std::vector<Node*> children;
        const auto& members = element.layout().members;
        for (std::size_t index = 0; index < members.size(); ++index) {
            const std::string* const text = element.textAt(index);
            if (text != nullptr) {
                children.push_back(&nodeOf(members[index], *text));
            }
        }
        NodeArena::setChildren(parent_, children);
    }

    /// Where the text of that shape is, or would be.
    [[nodiscard]] Position position(const Member& member, const Shape& text) const {
        const Position element{element_(member), &parent_, nullptr};
        if (text.facts().place != Description::Place::text) {
            return childAt(element, *member.shape);
        }
        return childAt(
            &text == member.shape || text.parent() == element.shape ? element : childAt(element, *member.shape), text);
    }

private:
    static const std::string& nameOf(const Element& element) { return element.layout().shape->facts().name; }

    static const Shape* element_(const Member& member) { return member.shape->parent(); }

    Node& nodeOf(const Member& member, const std::string& text) {
        const Description& facts = member.shape->facts();
        if (member.kind == Kind::attribute) {
            return arena_.make(Node::Kind::attribute, facts.name, text);
        }
        Node& content = arena_.make(Node::Kind::text, {}, text);
        if (member.kind == Kind::ownText) {
            return content;
        }
        Node& element = arena_.make(Node::Kind::element, facts.name);
        std::vector<Node*> children;
        if (member.isKeyed()) {
            children.push_back(&arena_.make(Node::Kind::attribute, facts.keyAttribute, facts.keyText));
        }
        children.push_back(&content);
        NodeArena::setChildren(element, children);
        return element;
    }

    NodeArena arena_{};
    Node& parent_;
};

const Quantity* usualQuantity(const Shape& shape) {
    return shape.facts().quantity ? &*shape.facts().quantity : nullptr;
}

/// All shapes that the text of the place can have.
std::vector<const Shape*> alternatives(const Layout& layout, std::size_t index) {
    std::vector<const Shape*> shapes;
    for (const Member& each : layout.members) {
        if (each.kind == Kind::ownText && layout.members[index].kind == Kind::ownText) {
            shapes.push_back(each.shape);
        }
    }
    return shapes.empty() ? std::vector<const Shape*>{layout.members[index].text} : shapes;
}

/// The first of the shapes that is read as things are now; null when none is.
const Shape* shapeThatIsRead(const std::vector<const Shape*>& shapes, const Nodes& nodes, const Member& member) {
    const auto found = std::find_if(shapes.begin(), shapes.end(), [&](const Shape* shape) {
        return analysis::firstDenied(shape->readWhen(), nodes.position(member, *shape), {}) == nullptr;
    });
    return found == shapes.end() ? nullptr : *found;
}

bool isArrayShape(const Shape& shape) {
    return analysis::isArray(shape.facts().content);
}

const Shape& shapeOfKind(const std::vector<const Shape*>& shapes, bool isArray) {
    const auto found = std::find_if(shapes.begin(), shapes.end(),
                                    [isArray](const Shape* shape) { return isArrayShape(*shape) == isArray; });
    return found == shapes.end() ? *shapes.front() : **found;
}

bool isSimple(const Layout& layout, std::size_t index) {
    return !hasAlternatives(layout, index) && layout.members[index].text->otherQuantities().empty();
}

TextKind kindOf(const Shape& shape, const Nodes& nodes, const Member& member) {
    return {&shape, analysis::quantityAt(nodes.position(member, shape))};
}

bool isJoined(const std::string* text) {
    return text != nullptr && text->find('|') != std::string::npos;
}

/// The kind of the shape that is read as things are now if it counts, or else of the one for an array or a number.
template <class Counts>
TextKind kindWhere(const Element& element, std::size_t index, bool isArray, Counts counts) {
    const Member& member = element.layout().members[index];
    if (isSimple(element.layout(), index)) {
        return {member.text, usualQuantity(*member.text)};
    }
    const Nodes nodes(element);
    const auto shapes = alternatives(element.layout(), index);
    const Shape* const read = shapeThatIsRead(shapes, nodes, member);
    const bool isTaken = read != nullptr && counts(isArrayShape(*read));
    return kindOf(isTaken ? *read : shapeOfKind(shapes, isArray), nodes, member);
}

}  // namespace

bool hasAlternatives(const Layout& layout, std::size_t index) {
    return alternatives(layout, index).size() > 1;
}

TextKind kindOfText(const Element& element, std::size_t index) {
    const bool holdsArray = isJoined(element.textAt(index));
    return kindWhere(element, index, holdsArray, [&](bool readsArray) { return readsArray || !holdsArray; });
}

TextKind kindToStore(const Element& element, std::size_t index, bool isArray) {
    return kindWhere(element, index, isArray, [&](bool readsArray) { return readsArray == isArray; });
}

void refuseOtherKind(const Element& element, std::size_t index) {
    if (!hasAlternatives(element.layout(), index)) {
        return;
    }
    const Nodes nodes(element);
    const auto shapes = alternatives(element.layout(), index);
    const Shape* const read = shapeThatIsRead(shapes, nodes, element.layout().members[index]);
    if (read != nullptr && !isArrayShape(*read) && isJoined(element.textAt(index))) {
        throw std::invalid_argument(element.layout().pathOf(index) + ": a number expected, not an array");
    }
}

}  // namespace lv::python
