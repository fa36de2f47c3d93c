#include <lvdata/analysis/diff/ReferenceWhites.h>

#include <lvdata/analysis/diff/StoredValue.h>
#include <lvdata/core/quantities.h>

#include <algorithm>
#include <cstdint>
#include <string>
#include <vector>

namespace lv::analysis {
namespace {

using Repetition = Description::Repetition;

constexpr std::string_view whiteOfProfile = "MeasuredXYZ White of the same ProfileData";
constexpr std::string_view whiteOfLimitedProfile = "MeasuredXYZ Limited109White of the same ProfileData";
constexpr std::string_view whiteOfSeries = "the row with RGB 255, 255, 255 of the same series";
constexpr std::string_view whiteOfMode = "MeasuredXYZ White of the ProfileData of the same mode";

const Node* elementOf(const Node* node) {
    return node != nullptr && node->kind == Node::Kind::text ? node->parent : node;
}

std::optional<ReferenceWhite> whiteIn(const Node* element, std::string_view source) {
    const Node* const text = element == nullptr ? nullptr : textOf(*element);
    const auto numbers = text == nullptr ? std::vector<std::int64_t>() : storedNumbers(text->text);
    if (numbers.size() != 3) {
        return std::nullopt;
    }
    const auto at = [&](std::size_t index) {
        return static_cast<double>(numbers[index]);
    };
    const colour::Tristimulus value = {at(0), at(1), at(2)};
    return colour::isWhite(value) ? std::optional(ReferenceWhite{value, source, element}) : std::nullopt;
}

/// "White" for "Red", "Limited109White" for "Limited109Red".
std::string whiteKeyOf(std::string_view key) {
    for (const std::string_view colour : {"Red", "Green", "Blue", "White", "Black"}) {
        const bool ends = key.size() >= colour.size() && key.substr(key.size() - colour.size()) == colour;
        if (ends) {
            return std::string(key.substr(0, key.size() - colour.size())) + "White";
        }
    }
    return "";
}

/// The element of that key among those of the same name as `sibling`.
std::optional<ReferenceWhite> keyedWhite(const Shape& sibling, const Node& parent, std::string_view source) {
    const std::string key = whiteKeyOf(sibling.facts().keyText);
    const Shape* const white = sibling.parent()->element(sibling.facts().name, key);
    return white == nullptr ? std::nullopt
                            : whiteIn(childAt({sibling.parent(), &parent, parent.parent}, *white).node, source);
}

const Shape* childWith(const Shape& shape, const Quantity& quantity) {
    const auto& children = shape.children();
    const auto found = std::find_if(children.begin(), children.end(),
                                    [&](const auto& child) { return child->facts().quantity == quantity; });
    return found == children.end() ? nullptr : found->get();
}

const Node* childNode(const Node& parent, std::string_view name) {
    for (const Node& child : childrenOf(parent)) {
        if (child.kind == Node::Kind::element && child.name == name) {
            return &child;
        }
    }
    return nullptr;
}

/// Whether the row shows R, G and B of 255.
bool showsWhite(const Node& row, const Shape& codeValues) {
    const Node* const element = childNode(row, codeValues.facts().name);
    const Node* const text = element == nullptr ? nullptr : textOf(*element);
    const std::int64_t full = quantities::codeValue.factor;
    return text != nullptr && storedNumbers(text->text) == std::vector<std::int64_t>(3, full);
}

std::optional<ReferenceWhite> whiteRow(const Node& series, const Shape& row, const Shape& tristimulus) {
    const Shape* const codeValues = childWith(row, quantities::codeValue);
    if (codeValues == nullptr) {
        return std::nullopt;
    }
    for (const Node& child : childrenOf(series)) {
        if (child.kind == Node::Kind::element && child.name == row.facts().name && showsWhite(child, *codeValues)) {
            const auto white = whiteIn(childNode(child, tristimulus.facts().name), whiteOfSeries);
            if (white) {
                return white;
            }
        }
    }
    return std::nullopt;
}

bool isKeyedTristimulus(const Shape& shape) {
    return shape.facts().repetition == Repetition::byKey && childWith(shape, quantities::tristimulus) != nullptr;
}

/// In a record beside the series: in an element of the same parent.
std::optional<ReferenceWhite> whiteBeside(const Node& series, const Shape& shape) {
    if (shape.parent() == nullptr || series.parent == nullptr) {
        return std::nullopt;
    }
    for (const auto& sibling : shape.parent()->children()) {
        const auto& children = sibling->children();
        const auto keyed = std::find_if(children.begin(), children.end(),
                                        [](const auto& child) { return isKeyedTristimulus(*child); });
        const Node* const node = keyed == children.end() ? nullptr : childNode(*series.parent, sibling->facts().name);
        if (node != nullptr) {
            return keyedWhite(**keyed, *node, whiteOfMode);
        }
    }
    return std::nullopt;
}

}  // namespace

std::optional<ReferenceWhite> ReferenceWhites::of(const Position& tristimulus) {
    const bool isText = tristimulus.shape->facts().place == Description::Place::text;
    const Shape& shape = isText ? *tristimulus.shape->parent() : *tristimulus.shape;
    const Node* const element = elementOf(tristimulus.node);
    if (element == nullptr || element->parent == nullptr) {
        return std::nullopt;
    }
    if (shape.facts().repetition == Repetition::byKey) {
        const bool isLimited = whiteKeyOf(shape.facts().keyText) != "White";
        return keyedWhite(shape, *element->parent, isLimited ? whiteOfLimitedProfile : whiteOfProfile);
    }
    if (shape.parent()->facts().repetition == Repetition::rows) {
        return ofSeries({&shape, element, element->parent});
    }
    return std::nullopt;
}

std::optional<ReferenceWhite> ReferenceWhites::ofSeries(const Position& tristimulus) {
    const Shape& row = *tristimulus.shape->parent();
    const Node& series = *tristimulus.parent->parent;
    const auto [place, isNew] = series_.try_emplace(&series);
    if (isNew) {
        place->second = whiteRow(series, row, *tristimulus.shape);
        if (!place->second) {
            place->second = whiteBeside(series, *row.parent());
        }
    }
    return place->second;
}

}  // namespace lv::analysis
