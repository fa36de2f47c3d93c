#include <lvdata/analysis/figures/Outline.h>

#include <lvdata/analysis/Projection.h>
#include <lvdata/analysis/content.h>
#include <lvdata/analysis/diff/StoredValue.h>
#include <lvdata/analysis/printable.h>
#include <lvdata/core/quantities.h>

#include <algorithm>
#include <cstdint>
#include <vector>

namespace lv::analysis {
namespace {

/// Arrays up to this length are always shown completely, such as a matrix of 3 by 3.
constexpr std::size_t fewEntries = 9;

/// The entries and rows that are shown of longer ones.
constexpr std::size_t firstEntries = 3;
constexpr std::size_t fewRows = 3;

class Outline {
public:
    explicit Outline(const OutlineForm& form) : form_(form), mostRows_(form.full ? SIZE_MAX : fewRows) {}

    void add(const Node& element, const Shape& shape, std::size_t depth) {
        addLine(depth, std::string(element.name) + attributesOf(element, shape) + valueOf(element, shape, depth));
        const Shape* previous = nullptr;
        std::size_t rows = 0;
        for (const Node& child : childrenOf(element)) {
            const bool isElement = child.kind == Node::Kind::element;
            const Shape* const found = isElement ? shape.firstElement(child.name, previous) : nullptr;
            if (found != nullptr) {
                previous = found;
                rows += isRow(*found) ? 1 : 0;
                addChild(child, *found, depth + 1, rows);
            }
        }
        if (rows > mostRows_) {
            addLine(depth + 1, "and " + std::to_string(rows - mostRows_) + " more (--full)");
        }
    }

    [[nodiscard]] std::string text() && { return std::move(text_); }

private:
    void addLine(std::size_t depth, const std::string& line) { text_ += std::string(2 * depth, ' ') + line + '\n'; }

    /// \param rows  how many rows there are up to this child
    void addChild(const Node& child, const Shape& shape, std::size_t depth, std::size_t rows) {
        if (!isRow(shape) || rows <= mostRows_) {
            add(child, shape, depth);
        }
    }

    static bool isRow(const Shape& shape) { return shape.facts().repetition == Description::Repetition::rows; }

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
        const std::size_t count = array.numbers.size();
        if (form_.gridWidth > 0 && isMap(*position.shape)) {
            return entries(count) + (unit.empty() ? "" : ',' + unit) + grid(array, depth);
        }
        if (count <= fewEntries || form_.full) {
            return joined(array, 0, count) + unit;
        }
        return joined(array, 0, firstEntries) + ", ..., " + joined(array, count - 1, count) + unit + " (" +
               entries(count) + ')';
    }

    static std::string entries(std::size_t count) {
        return std::to_string(count) + (count == 1 ? " entry" : " entries");
    }

    static bool isMap(const Shape& shape) {
        const Shape* const root = shape.parent() == nullptr ? nullptr : shape.parent()->parent();
        return root != nullptr && root->facts().name == "CandelaMap";
    }

    /// The unit as it follows the numbers: " cd/m²", " in 1/255", or nothing.
    std::string unitOf(const StoredArray& array, const Shape& shape) const {
        const bool isXYZ = *array.quantity == quantities::tristimulus;
        const std::string unit = isMap(shape) ? printable(form_.mapUnit)
                                 : isXYZ      ? printable(form_.yUnit)
                                              : shownUnit(*array.quantity);
        const bool isFraction = unit.compare(0, 2, "1/") == 0;
        return unit.empty() ? "" : (isFraction ? " in " : " ") + unit;
    }

    static std::string joined(const StoredArray& array, std::size_t begin, std::size_t end) {
        std::string text;
        for (std::size_t index = begin; index < end; ++index) {
            text += (index == begin ? "" : ", ") + shownNumber(array.numbers[index], *array.quantity);
        }
        return text;
    }

    /// A line for each row of the grid; the numbers stand below each other.
    std::string grid(const StoredArray& array, std::size_t depth) const {
        std::vector<std::string> cells(array.numbers.size());
        std::size_t width = 0;
        for (std::size_t index = 0; index < cells.size(); ++index) {
            cells[index] = joined(array, index, index + 1);
            width = std::max(width, cells[index].size());
        }
        std::string text;
        for (std::size_t index = 0; index < cells.size(); ++index) {
            const bool isFirst = index % form_.gridWidth == 0;
            text += isFirst ? '\n' + std::string(2 * (depth + 1), ' ') : " ";
            text += std::string(width - cells[index].size(), ' ') + cells[index];
        }
        return text;
    }

    const OutlineForm& form_;
    std::size_t mostRows_;
    std::string text_{};
};

}  // namespace

std::string outline(const Node& element, const Shape& shape, const OutlineForm& form) {
    Outline outline(form);
    outline.add(element, shape, 0);
    return std::move(outline).text();
}

}  // namespace lv::analysis
