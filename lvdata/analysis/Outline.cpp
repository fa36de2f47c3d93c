#include <lvdata/analysis/Outline.h>

#include <lvdata/analysis/Projection.h>
#include <lvdata/analysis/content.h>
#include <lvdata/analysis/diff/StoredValue.h>
#include <lvdata/analysis/printable.h>
#include <lvdata/core/quantities.h>

#include <algorithm>

namespace lv::analysis {
namespace {

/// Shown whole, also when not everything is asked for.
constexpr std::size_t fewEntries = 9;

class Outline {
public:
    explicit Outline(const OutlineForm& form) : form_(form) {}

    void add(const Node& element, const Shape& shape, std::size_t depth) {
        text_ += std::string(2 * depth, ' ') + std::string(element.name) + attributesOf(element, shape) +
                 valueOf(element, shape, depth) + '\n';
        const Shape* previous = nullptr;
        for (const Node& child : childrenOf(element)) {
            const bool isElement = child.kind == Node::Kind::element;
            const Shape* const found = isElement ? shape.firstElement(child.name, previous) : nullptr;
            if (found != nullptr) {
                previous = found;
                add(child, *found, depth + 1);
            }
        }
    }

    [[nodiscard]] std::string text() && { return std::move(text_); }

private:
    static bool isVersion(const Node& attribute) {
        return attribute.name == "Version" || attribute.name == "MinorVersion";
    }

    std::string attributesOf(const Node& element, const Shape& shape) const {
        std::string text;
        for (const Node& child : childrenOf(element)) {
            const bool isShown = child.kind == Node::Kind::attribute && !isVersion(child);
            if (isShown && shape.attribute(child.name) != nullptr) {
                text += ' ' + std::string(child.name) + '=' + printable(child.text);
            }
        }
        return text;
    }

    std::string valueOf(const Node& element, const Shape& shape, std::size_t depth) const {
        const Node* const text = textOf(element);
        if (text == nullptr || !shape.takesText()) {
            return "";
        }
        const Shape& textShape = *textShapeAt({&shape, &element, element.parent});
        const Position position =
            &textShape == &shape ? Position{&shape, &element, element.parent} : Position{&textShape, text, &element};
        return ": " + (isNumeric(textShape.facts().content) ? numbersAt(position, depth) : printable(text->text));
    }

    std::string numbersAt(const Position& position, std::size_t depth) const {
        const StoredArray array = storedArray(position);
        const std::string unit = unitOf(array, *position.shape);
        const std::string suffix = unit.empty() ? "" : ' ' + unit;
        const std::size_t count = array.numbers.size();
        if (!isArray(position.shape->facts().content)) {
            return joined(array, 0, count) + suffix;
        }
        if (form_.gridWidth > 0 && isMap(*position.shape)) {
            return unit + grid(array, depth);
        }
        if (count <= fewEntries || form_.full) {
            return joined(array, 0, count) + suffix;
        }
        return std::to_string(count) + " entries, " + joined(array, 0, 1) + " to " + joined(array, count - 1, count) +
               suffix;
    }

    static bool isMap(const Shape& shape) {
        const Shape* const root = shape.parent() == nullptr ? nullptr : shape.parent()->parent();
        return isArray(shape.facts().content) && root != nullptr && root->facts().name == "CandelaMap";
    }

    std::string unitOf(const StoredArray& array, const Shape& shape) const {
        if (isMap(shape)) {
            return printable(form_.mapUnit);
        }
        return *array.quantity == quantities::tristimulus ? printable(form_.yUnit) : shownUnit(*array.quantity);
    }

    static std::string joined(const StoredArray& array, std::size_t begin, std::size_t end) {
        std::string text;
        for (std::size_t index = begin; index < end; ++index) {
            text += (index == begin ? "" : ", ") + shownNumber(array.numbers[index], *array.quantity);
        }
        return text;
    }

    std::string grid(const StoredArray& array, std::size_t depth) const {
        std::string text;
        for (std::size_t begin = 0; begin < array.numbers.size(); begin += form_.gridWidth) {
            const std::size_t end = std::min(begin + form_.gridWidth, array.numbers.size());
            text += '\n' + std::string(2 * (depth + 1), ' ') + joined(array, begin, end);
        }
        return text;
    }

    const OutlineForm& form_;
    std::string text_{};
};

}  // namespace

std::string outline(const Node& element, const Shape& shape, const OutlineForm& form) {
    Outline outline(form);
    outline.add(element, shape, 0);
    return std::move(outline).text();
}

}  // namespace lv::analysis
