#include <lvdata/analysis/pictures/hover.h>

#include <lvdata/analysis/pictures/svg/shapes.h>
#include <lvdata/analysis/pictures/svg/text.h>

#include <algorithm>
#include <cmath>
#include <limits>

namespace lv::analysis {
namespace {

constexpr double leastWidth = 24;  // WCAG 2.2, 2.5.8: targets of a pointer

/// Cells in rows from the upper left corner on.
struct Grid {
    svg::Box box;
    std::size_t columns;
    std::size_t rows;
    double width;   // of a cell
    double height;  // of a cell

    Grid(const svg::Box& whole, std::size_t inRow, std::size_t cells)
        : box(whole),
          columns(std::max<std::size_t>(inRow, 1)),
          rows(std::max<std::size_t>((cells + columns - 1) / columns, 1)),
          width(box.width / static_cast<double>(columns)),
          height(box.height / static_cast<double>(rows)) {}

    /// The line down the middle of a cell, which is as wide as the cell.
    [[nodiscard]] std::string pathAt(std::size_t cell) const {
        const double left = box.left + (static_cast<double>(cell % columns) + 0.5) * width;
        const double top = box.top + static_cast<double>(cell / columns) * height;
        return svg::startOfPath({left, top}) + 'v' + svg::coordinateText(height);
    }

    /// Its box, columns and rows, for the script of a page.
    [[nodiscard]] std::string text() const {
        return svg::coordinateText(box.left) + ',' + svg::coordinateText(box.top) + ',' +
               svg::coordinateText(box.width) + ',' + svg::coordinateText(box.height) + ',' + std::to_string(columns) +
               ',' + std::to_string(rows);
    }
};

/// The words between blanks; several blanks count as one.
std::vector<std::string> wordsOf(const std::string& text) {
    std::vector<std::string> words;
    for (std::size_t at = text.find_first_not_of(' '); at != std::string::npos; at = text.find_first_not_of(' ', at)) {
        const std::size_t end = std::min(text.find(' ', at), text.size());
        words.push_back(text.substr(at, end - at));
        at = end;
    }
    return words;
}

}  // namespace

std::size_t hoverColumns(const svg::Box& box) {
    return static_cast<std::size_t>(std::max(box.width / leastWidth, 1.0));
}

std::vector<std::string> nearestTexts(const svg::Box& box, const std::vector<HoverText>& texts) {
    const double count = static_cast<double>(hoverColumns(box));
    std::vector<std::string> nearest(hoverColumns(box));
    std::vector<double> distances(nearest.size(), std::numeric_limits<double>::infinity());
    for (const HoverText& each : texts) {
        if (!(each.place >= 0 && each.place <= 1)) {
            continue;
        }
        const auto column = static_cast<std::size_t>(std::min(std::floor(each.place * count), count - 1));
        const double distance = std::abs(each.place * count - (static_cast<double>(column) + 0.5));
        if (distance < distances[column]) {
            distances[column] = distance;
            nearest[column] = each.text;
        }
    }
    return nearest;
}

std::string withoutRepetitions(const std::vector<std::string>& texts) {
    std::string lines;
    std::vector<std::string> last;
    for (const std::string& text : texts) {
        const std::vector<std::string> words = wordsOf(text);
        for (std::size_t index = 0; index < words.size(); ++index) {
            const bool isRepeated = index > 0 && index < last.size() && words[index] == last[index];
            lines += (index > 0 ? " " : "") + (isRepeated ? "" : words[index]);
        }
        lines += &text == &texts.back() ? "" : "\n";
        last = words.empty() ? last : words;
    }
    return lines;
}

void addHoverCells(svg::SVGWriter& svg, const svg::Box& box, std::size_t columns,
                   const std::vector<std::string>& texts) {
    const Grid grid(box, columns, texts.size());
    if (svg.isForPage()) {
        svg.empty("g", {{"class", "lv-hover"}, {"data-grid", grid.text()}, {"data-texts", withoutRepetitions(texts)}});
        return;
    }
    svg.open("g", {{"class", "lv-hover"}, {"stroke-width", grid.width}});
    for (std::size_t index = 0; index < texts.size(); ++index) {
        if (!texts[index].empty()) {
            svg.titled("path", {{"d", grid.pathAt(index)}}, texts[index]);
        }
    }
    svg.close();
}

void addHoverColumns(svg::SVGWriter& svg, const svg::Box& box, const std::vector<std::string>& texts) {
    addHoverCells(svg, box, texts.size(), texts);
}

}  // namespace lv::analysis
