#include "Element.h"

#include <algorithm>
#include <iterator>

namespace lv::python {
namespace {

using analysis::Node;
using Kind = Member::Kind;

/// Whether the node is what the member describes.
bool isOf(const Node& node, const Member& member) {
    const Description& facts = member.shape->facts();
    switch (node.kind) {
    case Node::Kind::attribute:
        return member.kind == Kind::attribute && node.name == facts.name;
    case Node::Kind::text:
        return member.kind == Kind::ownText;
    case Node::Kind::element:
        break;
    default:
        return false;
    }
    if (facts.place != Description::Place::element || node.name != facts.name) {
        return false;
    }
    const Node* const key = member.isKeyed() ? attributeOf(node, facts.keyAttribute) : nullptr;
    return !member.isKeyed() || (key != nullptr && key->text == facts.keyText);
}

const RowList* rowsOf(const Slot& slot) {
    const auto* const rows = std::get_if<std::shared_ptr<RowList>>(&slot);
    return rows == nullptr || (*rows)->rows.empty() ? nullptr : rows->get();
}

bool areEqualRows(const RowList* left, const RowList* right) {
    if (left == nullptr || right == nullptr) {
        return left == right;
    }
    return std::equal(left->rows.begin(), left->rows.end(), right->rows.begin(), right->rows.end(),
                      [](const ElementPtr& one, const ElementPtr& other) { return areEqual(*one, *other); });
}

}  // namespace

Element::Element(const Node& printed, const Layout& layout) : Element(layout) {
    std::size_t next = 0;
    for (const Node& child : childrenOf(printed)) {
        add(child, next);
    }
}

/// \param next  where the search begins: documents that records print have the order of the layout
void Element::add(const Node& child, std::size_t& next) {
    const std::size_t index = indexOf(child, next);
    if (index == slots_.size()) {
        return;
    }
    next = index;
    if (child.kind == Node::Kind::element) {
        addElement(child, index);
    } else {
        slots_[index] = std::string(child.text);
    }
}

void Element::addElement(const Node& child, std::size_t index) {
    const Member& member = layout_->members[index];
    if (member.kind == Kind::rows) {
        rowsAt(index)->rows.push_back(std::make_shared<Element>(child, *member.nested));
    } else if (member.kind == Kind::element) {
        slots_[index] = std::make_shared<Element>(child, *member.nested);
    } else if (const Node* const text = textOf(child); text != nullptr || !member.isKeyed()) {
        slots_[index] = text == nullptr ? std::string() : std::string(text->text);
    }
}

std::size_t Element::indexOf(const Node& child, std::size_t begin) const {
    const auto& members = layout_->members;
    for (std::size_t step = 0; step < members.size(); ++step) {
        const std::size_t index = (begin + step) % members.size();
        if (isOf(child, members[index])) {
            return index;
        }
    }
    return members.size();
}

const std::shared_ptr<RowList>& Element::rowsAt(std::size_t index) {
    Slot& slot = at(index);
    if (std::holds_alternative<std::monostate>(slot)) {
        slot = std::make_shared<RowList>(RowList{layout_->members[index].nested, {}});
    }
    return std::get<std::shared_ptr<RowList>>(slot);
}

ElementPtr copyOf(const Element& element) {
    ElementPtr copy = std::make_shared<Element>(element.layout());
    for (std::size_t index = 0; index < element.layout().members.size(); ++index) {
        copy->at(index) = copyOf(element.at(index));
    }
    return copy;
}

Slot copyOf(const Slot& slot) {
    if (const auto* const element = std::get_if<ElementPtr>(&slot)) {
        return copyOf(**element);
    }
    if (const auto* const rows = std::get_if<std::shared_ptr<RowList>>(&slot)) {
        auto copy = std::make_shared<RowList>(RowList{(*rows)->layout, {}});
        std::transform((*rows)->rows.begin(), (*rows)->rows.end(), std::back_inserter(copy->rows),
                       [](const ElementPtr& row) { return copyOf(*row); });
        return copy;
    }
    return slot;
}

bool areEqual(const Element& left, const Element& right) {
    if (&left == &right) {
        return true;
    }
    bool areSame = &left.layout() == &right.layout();
    for (std::size_t index = 0; areSame && index < left.layout().members.size(); ++index) {
        areSame = areEqual(left.at(index), right.at(index));
    }
    return areSame;
}

bool areEqual(const Slot& left, const Slot& right) {
    const auto* const element = std::get_if<ElementPtr>(&left);
    const auto* const other = std::get_if<ElementPtr>(&right);
    if (element != nullptr && other != nullptr) {
        return areEqual(**element, **other);
    }
    const RowList* const rows = rowsOf(left);
    const RowList* const otherRows = rowsOf(right);
    if (rows != nullptr || otherRows != nullptr) {
        return areEqualRows(rows, otherRows);
    }
    const auto* const text = std::get_if<std::string>(&left);
    const auto* const otherText = std::get_if<std::string>(&right);
    if (text != nullptr && otherText != nullptr) {
        return *text == *otherText;
    }
    return text == nullptr && element == nullptr && otherText == nullptr && other == nullptr;  // both hold nothing
}

}  // namespace lv::python
