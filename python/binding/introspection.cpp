#include "introspection.h"
#include "Layout.h"
#include "shared.h"
#include "texts.h"

#include <lvdata/analysis/content.h>
#include <lvdata/analysis/decimal.h>

#include <algorithm>
#include <vector>

#include <pybind11/stl.h>

namespace py = pybind11;

namespace lv::python {
namespace {

using Content = Description::Content;

/// What a value is for Python; the same words are used in _records.py and in the stubs.
const char* kindOf(const Layout& layout, std::size_t index) {
    const Member& member = layout.members[index];
    if (member.kind == Member::Kind::element) {
        return "element";
    }
    if (member.kind == Member::Kind::rows) {
        return "rows";
    }
    if (hasAlternatives(layout, index)) {
        return "number or array";
    }
    switch (member.text->facts().content) {
    case Content::none:
    case Content::string:
        return "text";
    case Content::boolean:
        return "boolean";
    case Content::unsignedNumber:
    case Content::signedNumber:
        return "number";
    default:
        return "array";
    }
}

bool hasDecimals(const Member& member) {
    const auto& quantity = member.text == nullptr ? std::nullopt : member.text->facts().quantity;
    return quantity && analysis::decimalsOf(quantity->factor) > 0;
}

py::dict fieldOf(const Layout& layout, std::size_t index) {
    const Member& member = layout.members[index];
    py::dict field;
    field["name"] = member.key();
    field["index"] = index;
    field["kind"] = kindOf(layout, index);
    field["has_decimals"] = hasDecimals(member);
    field["is_signed"] = member.text != nullptr && analysis::isSigned(member.text->facts().content);
    field["lengths"] = member.text == nullptr ? py::list() : py::list(py::cast(member.text->facts().lengths));
    field["nested"] = member.nested == nullptr ? py::object(py::none()) : py::int_(member.nested->id);
    field["group"] = member.isKeyed() ? py::object(py::str(member.shape->key())) : py::none();
    field["element"] = member.shape->facts().name;
    field["constant"] = member.shape->facts().constant;
    return field;
}

py::dict classOf(const Layout& layout) {
    py::list fields;
    for (std::size_t index = 0; index < layout.members.size(); ++index) {
        if (!layout.members[index].isShadowed) {
            fields.append(fieldOf(layout, index));
        }
    }
    py::dict description;
    description["name"] = layout.className;
    description["qualified_name"] = layout.name;
    description["parent"] = layout.parent == nullptr ? py::object(py::none()) : py::int_(layout.parent->id);
    description["fields"] = fields;
    return description;
}

void addSentence(std::string& text, const std::string& sentence) {
    if (!sentence.empty()) {
        text += (text.empty() ? "" : " ") + sentence + '.';
    }
}

std::string capitalized(std::string_view text) {
    std::string result(text);
    if (!result.empty() && result.front() >= 'a' && result.front() <= 'z') {
        result.front() = static_cast<char>(result.front() - 'a' + 'A');
    }
    return result;
}

std::string unitOf(const Quantity& quantity) {
    if (quantity.unit.empty()) {
        return "";
    }
    return quantity.unit == unknownUnit ? "The unit is not recorded" : "In " + std::string(quantity.unit);
}

std::string scaleOf(const Quantity& quantity) {
    if (quantity.factor == 1) {
        return "";
    }
    const bool isMoved = analysis::decimalsOf(quantity.factor) > 0;
    const std::string factor = std::to_string(quantity.factor);
    return isMoved ? "Stored as an integer, times " + factor : "An integer; " + factor + " stands for 1";
}

void addQuantity(std::string& text, const Quantity& quantity) {
    addSentence(text, capitalized(quantity.meaning));
    addSentence(text, unitOf(quantity));
    addSentence(text, scaleOf(quantity));
}

std::string lengthsOf(const Description& facts) {
    std::string lengths;
    for (const std::size_t each : facts.lengths) {
        lengths += (lengths.empty() ? "" : " or ") + std::to_string(each);
    }
    return lengths.empty() ? "" : lengths + " entries";
}

std::string conditionsOf(const Description& facts) {
    std::string conditions;
    for (const Condition& each : facts.writtenWhen) {
        conditions += (conditions.empty() ? "" : ", and ") + each.toString();
    }
    return conditions.empty() ? "" : "Written when " + conditions;
}

void addText(std::string& text, const analysis::Shape& shape) {
    const Description& facts = shape.facts();
    if (facts.quantity) {
        addQuantity(text, *facts.quantity);
    }
    for (const Description::QuantityWhen& other : facts.otherQuantities) {
        std::string quantity;
        addQuantity(quantity, other.quantity);
        addSentence(text, "When " + other.condition.toString() + ": " + quantity.substr(0, quantity.size() - 1));
    }
    addSentence(text, lengthsOf(facts));
    addSentence(text, facts.constant ? "Always \"" + *facts.constant + '"' : "");
    addSentence(text, conditionsOf(facts));
}

}  // namespace

py::list classes() {
    py::list all;
    for (const auto& layout : layouts()) {
        all.append(classOf(*layout));
    }
    return all;
}

std::string meaningOf(std::size_t id, std::size_t index) {
    const Layout& layout = *layouts().at(id);
    const Member& member = layout.members.at(index);
    std::string text;
    addSentence(text, "\"" + member.shape->step() + "\" in documents");
    addText(text, *member.shape);
    if (member.text != nullptr && member.text != member.shape) {
        addText(text, *member.text);
    }
    for (std::size_t other = index + 1; other < layout.members.size(); ++other) {
        if (member.kind == Member::Kind::ownText && layout.members[other].isShadowed) {
            text += " Or:";
            addText(text, *layout.members[other].shape);
        }
    }
    return text;
}

}  // namespace lv::python
