#include <lvdata/analysis/check/numbers.h>
#include <lvdata/analysis/check/plausibility.h>
#include <lvdata/analysis/dates.h>
#include <lvdata/analysis/wording.h>
#include <lvdata/core/quantities.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdlib>
#include <initializer_list>
#include <optional>
#include <string>
#include <unordered_map>

namespace lv::analysis {
namespace {

using Content = Description::Content;

std::optional<Position> find(const Position& element, std::initializer_list<std::string_view> names) {
    Position position = element;
    for (const std::string_view name : names) {
        const Shape* const child = position.shape->firstElement(name);
        if (child == nullptr) {
            return std::nullopt;
        }
        position = childAt(position, *child);
    }
    return position.node == nullptr ? std::nullopt : std::optional(position);
}

std::int64_t numberAt(const Position& position) {
    return std::strtoll(valueAt(position).c_str(), nullptr, 10);
}

bool isQuantity(const Shape& shape, const Quantity& quantity) {
    return shape.facts().quantity == quantity;
}

/// A chromaticity in stored units.
struct Point {
    std::int64_t x;
    std::int64_t y;
};

/// The chromaticity that the element holds; no value when a coordinate is missing, or when both are 0, which means
/// none.
std::optional<Point> chromaticityOf(const Position& element) {
    const auto x = find(element, {"x"});
    const auto y = find(element, {"y"});
    const bool isChromaticity = x && y && isQuantity(*x->shape, quantities::chromaticity);
    if (!isChromaticity || firstDenied(x->shape->writtenWhen(), *x, {}) != nullptr) {
        return std::nullopt;  // or the value is not kept
    }
    const Point point{numberAt(*x), numberAt(*y)};
    return point.x == 0 && point.y == 0 ? std::nullopt : std::optional(point);
}

void judgeChromaticity(Reporter& reporter, const Position& element) {
    const std::optional<Point> point = chromaticityOf(element);
    if (point && point->x + point->y > std::int64_t{quantities::chromaticity.factor}) {
        reporter.addHere("401", element.node->line, "the sum of x and y is above 1");
    }
}

/// The entries of tables and curves, which go from dark to bright.
bool isRising(const Shape& shape) {
    const auto& quantity = shape.facts().quantity;
    return quantity && (*quantity == quantities::tableEntry || *quantity == quantities::curveEntry ||
                        *quantity == quantities::curveEntry16 || *quantity == quantities::curveEntry24);
}

/// Whether the text of the element is such a table.
bool holdsTable(const Position& element) {
    if (isRising(*element.shape)) {
        return true;
    }
    const auto& children = element.shape->children();
    return std::any_of(children.begin(), children.end(), [&](const auto& child) {
        return child->facts().place == Description::Place::text && isRising(*child) &&
               firstDenied(child->readWhen(), childAt(element, *child), {}) == nullptr;
    });
}

void judgeTable(Reporter& reporter, const Position& element) {
    const Node* const text = holdsTable(element) ? textOf(*element.node) : nullptr;
    std::int64_t previous = 0;
    std::string_view rest = text == nullptr ? std::string_view() : text->text;
    for (std::size_t entry = 1; !rest.empty(); ++entry) {
        const std::string_view piece = rest.substr(0, rest.find('|'));
        rest.remove_prefix(std::min(piece.size() + 1, rest.size()));
        const NumberText kind = judgeNumber(piece, false);
        if (kind != NumberText::canonical && kind != NumberText::otherSpelling) {
            return;  // other findings report that
        }
        const std::int64_t number = std::strtoll(piece.data(), nullptr, 10);  // ends at "|" or at the NUL of the text
        if (number < previous) {
            reporter.addHere("402", text->line,
                             "entry " + std::to_string(entry) + " is " + std::to_string(number) +
                                 ", less than the one before it, " + std::to_string(previous));
            return;
        }
        previous = number;
    }
}

/// Rows of one list with the same index, by which programs identify rows.
void judgeIndexes(Reporter& reporter, const Position& element, const Shape& rows) {
    const Shape* const index = rows.firstElement("Index");
    if (index == nullptr) {
        return;
    }
    std::unordered_map<std::string, int> lines;
    for (const Node& row : childrenOf(*element.node)) {
        const bool isRow = row.kind == Node::Kind::element && row.name == rows.facts().name;
        const Position position = isRow ? childAt({&rows, &row, element.node}, *index) : Position{};
        if (position.node != nullptr) {
            const auto [first, isNew] = lines.emplace(valueAt(position), position.node->line);
            if (!isNew) {
                reporter.addHere("403", position.node->line,
                                 "index " + first->first + " is already used in line " + std::to_string(first->second));
            }
        }
    }
}

void judgeMaps(Reporter& reporter, const Position& element) {
    const auto uniformity = find(element, {"Uniformity", "Values"});
    const auto brightness = find(element, {"Brightness", "Values"});
    const std::size_t left = uniformity ? entriesIn(valueAt(*uniformity)) : 0;
    const std::size_t right = brightness ? entriesIn(valueAt(*brightness)) : 0;
    if (left != 0 && right != 0 && left != right) {
        reporter.addHere("404", brightness->node->line,
                         "Brightness has " + std::to_string(right) + " entries, and Uniformity " +
                             std::to_string(left));
    }
}

/// The number of entries of the table or curve that an element is or holds.
std::size_t tableLength(const Position& element) {
    const Node* const text = holdsTable(element) ? textOf(*element.node) : nullptr;
    if (text != nullptr) {
        return entriesIn(text->text);
    }
    for (const auto& child : element.shape->children()) {
        const Position position = childAt(element, *child);
        if (position.node != nullptr && isRising(*child) && textOf(*position.node) != nullptr) {
            return entriesIn(textOf(*position.node)->text);
        }
    }
    return 0;
}

/// The tables of red, green and blue, whose names differ in the colour alone.
void judgeChannels(Reporter& reporter, const Position& element, const Shape& red) {
    const std::string rest = red.facts().name.substr(3);
    const auto lengthOf = [&](const std::string& name) {
        const auto position = find(element, {name});
        return position ? tableLength(*position) : 0;
    };
    const std::size_t first = lengthOf(red.facts().name);
    for (const std::string& name : {"Green" + rest, "Blue" + rest}) {
        const std::size_t other = lengthOf(name);
        if (first != 0 && other != 0 && first != other) {
            reporter.addHere("407", find(element, {name})->node->line,
                             name + " has " + std::to_string(other) + " entries, and " + red.facts().name + ' ' +
                                 std::to_string(first));
        }
    }
}

bool endsIn(std::string_view text, std::string_view end) {
    return text.size() >= end.size() && text.substr(text.size() - end.size()) == end;
}

bool holdsDate(const Description& facts) {
    return facts.content == Content::string &&
           (endsIn(facts.name, "Date") || endsIn(facts.name, "Time") || facts.name == "UpdatedAt");
}

void judgeDate(Reporter& reporter, const Position& element) {
    const Node* const text = holdsDate(element.shape->facts()) ? textOf(*element.node) : nullptr;
    if (text != nullptr && !text->text.empty() && !isDate(text->text)) {
        reporter.addHere("405", text->line, inQuotes(text->text) + " is not a date with the year first");
    }
}

/// Positive when the path from a over b to c turns left. In floating point, since integers could overflow.
double turn(const Point& a, const Point& b, const Point& c) {
    const auto difference = [](std::int64_t left, std::int64_t right) {
        return static_cast<double>(left - right);
    };
    return difference(b.x, a.x) * difference(c.y, a.y) - difference(b.y, a.y) * difference(c.x, a.x);
}

bool isInside(const Point& point, const std::array<Point, 3>& corners) {
    bool isLeft = false;
    bool isRight = false;
    for (std::size_t index = 0; index < corners.size(); ++index) {
        const double side = turn(corners.at(index), corners.at((index + 1) % corners.size()), point);
        isLeft = isLeft || side > 0;
        isRight = isRight || side < 0;
    }
    return !(isLeft && isRight);
}

std::optional<Point> chromaticityAt(const Position& element, std::initializer_list<std::string_view> names) {
    const auto position = find(element, names);
    return position ? chromaticityOf(*position) : std::nullopt;
}

void judgeWhite(Reporter& reporter, const Position& element) {
    const auto white = chromaticityAt(element, {"WhitePoint"});
    const auto red = chromaticityAt(element, {"Gamut", "Red"});
    const auto green = chromaticityAt(element, {"Gamut", "Green"});
    const auto blue = chromaticityAt(element, {"Gamut", "Blue"});
    if (white && red && green && blue && !isInside(*white, {*red, *green, *blue})) {
        reporter.addHere("406", find(element, {"WhitePoint"})->node->line,
                         "the white point is outside the triangle of the primaries");
    }
}

}  // namespace

void judgePlausibility(Reporter& reporter, const Position& element) {
    const Shape& shape = *element.shape;
    judgeTable(reporter, element);
    judgeDate(reporter, element);
    if (shape.children().empty()) {
        return;
    }
    judgeChromaticity(reporter, element);
    for (const auto& child : shape.children()) {
        if (child->facts().repetition == Description::Repetition::rows) {
            judgeIndexes(reporter, element, *child);
        } else if (child->facts().name.compare(0, 3, "Red") == 0) {
            judgeChannels(reporter, element, *child);
        }
    }
    if (shape.facts().name == "CandelaMap") {
        judgeMaps(reporter, element);
    } else if (shape.facts().name == "TargetSetting") {
        judgeWhite(reporter, element);
    }
}

}  // namespace lv::analysis
