#include <lvdata/analysis/pictures/Picture.h>
#include <lvdata/analysis/pictures/hover.h>

#include <algorithm>
#include <array>
#include <cmath>

namespace lv::analysis {
namespace {

constexpr double left = 16;
constexpr double top = 60;
constexpr double width = pictureWidth - 2 * left;
constexpr double footHeight = 58;
constexpr std::size_t wrappedAt = 10;
constexpr double mostCells = 225;
constexpr std::size_t rampSteps = 9;
constexpr std::size_t mostSide = 100000;  // of a map in entries, so that products fit

/// How entries stand in the picture.
struct Grid {
    std::size_t columns;  // entries in a row
    std::size_t rows;     // of entries
    std::size_t block;    // entries of a cell in each direction
    double cellWidth;     // in pixels
    double cellHeight;    // in pixels

    [[nodiscard]] std::size_t cellColumns() const { return (columns + block - 1) / block; }
    [[nodiscard]] std::size_t cellRows() const { return (rows + block - 1) / block; }
    [[nodiscard]] double height() const { return static_cast<double>(cellRows()) * cellHeight; }
};

bool isShapeKnown(const MapFigures& map) {
    return map.gridWidth > 0 && map.gridWidth <= mostSide && map.gridWidth <= map.values.size();
}

/// The smallest blocks that leave few enough cells.
std::size_t blockOf(std::size_t columns, std::size_t rows) {
    std::size_t block = 1;
    while (std::ceil(static_cast<double>(columns) / static_cast<double>(block)) *
               std::ceil(static_cast<double>(rows) / static_cast<double>(block)) >
           mostCells) {
        ++block;
    }
    return block;
}

/// A long run of unknown shape is wrapped at more entries, so that the picture does not become a tower.
std::size_t columnsOf(const MapFigures& map) {
    if (isShapeKnown(map)) {
        return map.gridWidth;
    }
    const double side = std::ceil(std::sqrt(static_cast<double>(map.values.size())));
    return std::min(map.values.size(), std::max(wrappedAt, static_cast<std::size_t>(side)));
}

Grid gridOf(const MapFigures& map) {
    const std::size_t columns = columnsOf(map);
    const std::size_t rows = (map.values.size() + columns - 1) / columns;
    Grid grid{columns, rows, blockOf(columns, rows), 0, 0};
    grid.cellWidth = std::min(width / static_cast<double>(grid.cellColumns()), 138.0);
    const double most = 480 / static_cast<double>(grid.cellRows());
    grid.cellHeight = std::min({grid.cellWidth, most, 64.0});
    return grid;
}

/// A cell: one entry, or the mean of several.
struct Cell {
    std::size_t column = 0;  ///< Of its first entry.
    std::size_t row = 0;     ///< Of its first entry.
    std::size_t count = 0;   ///< Entries in it.
    double sum = 0;          ///< Of its entries.
    std::size_t index = 0;   ///< Of its first entry.

    [[nodiscard]] double mean() const { return sum / static_cast<double>(count); }
};

/// Entries that are not numbers are not counted.
Cell cellAt(const MapFigures& map, const Grid& grid, std::size_t cellColumn, std::size_t cellRow) {
    Cell cell{cellColumn * grid.block, cellRow * grid.block, 0, 0, 0};
    cell.index = cell.row * grid.columns + cell.column;
    for (std::size_t row = cell.row; row < std::min(cell.row + grid.block, grid.rows); ++row) {
        for (std::size_t column = cell.column; column < std::min(cell.column + grid.block, grid.columns); ++column) {
            const std::size_t index = row * grid.columns + column;
            if (index < map.values.size() && std::isfinite(map.values[index])) {
                cell.sum += map.values[index];
                ++cell.count;
            }
        }
    }
    return cell;
}

/// The number of digits after the point that distinguishes entries without noise.
int decimalsOf(const MapFigures& map) {
    const auto isWhole = [](double value) {
        return !std::isfinite(value) || value == std::floor(value);
    };
    return std::all_of(map.values.begin(), map.values.end(), isWhole) ? 0 : 1;
}

std::string withUnit(const std::string& text, const MapFigures& map) {
    return map.unit.empty() ? text : text + ' ' + svg::quotable(map.unit);
}

/// "+1.5 %", of one entry over that in the centre; empty where it is not known.
std::string deviationText(const MapFigures& map, const Grid& grid, const Cell& cell) {
    if (grid.block > 1 || cell.index >= map.againstCentre.size()) {
        return "";
    }
    const double deviation = map.againstCentre[cell.index] * 100;
    return (deviation > 0 ? "+" : "") + svg::valueText(deviation, 1) + " %";
}

std::string titleOf(const MapFigures& map, const Grid& grid, const Cell& cell) {
    const std::string value = withUnit(svg::valueText(cell.mean(), decimalsOf(map)), map);
    if (!isShapeKnown(map)) {
        const std::string number = std::to_string(cell.index + 1);
        return (cell.count > 1 ? "Around entry " : "Entry ") + number + ": " + value;
    }
    const std::string deviation = deviationText(map, grid, cell);
    return "Row " + std::to_string(cell.row + 1) + ", column " + std::to_string(cell.column + 1) + ": " +
           (cell.count > 1 ? "mean of " + std::to_string(cell.count) + " entries " : "") + value +
           (deviation.empty() ? "" : ", " + deviation + " of the centre");
}

svg::Range rangeOf(const MapFigures& map) {
    svg::Extent extent;
    for (const double value : map.values) {
        extent.add(value);
    }
    return extent.range();
}

/// The step of the ramp, the lightest where all entries are the same.
std::size_t rampStep(double value, const svg::Range& range) {
    const svg::Scale scale(range, {0, static_cast<double>(rampSteps) - 0.001});
    return range.last > range.first ? static_cast<std::size_t>(scale.at(value)) : rampSteps - 1;
}

/// A cell with its place.
struct PlacedCell {
    Cell cell{};
    svg::Box box{};
};

/// The cells that have entries, by their steps of the ramp.
std::array<std::vector<PlacedCell>, rampSteps> placedCells(const MapFigures& map, const Grid& grid) {
    const svg::Range range = rangeOf(map);
    std::array<std::vector<PlacedCell>, rampSteps> cells;
    for (std::size_t row = 0; row < grid.cellRows(); ++row) {
        for (std::size_t column = 0; column < grid.cellColumns(); ++column) {
            const Cell cell = cellAt(map, grid, column, row);
            if (cell.count > 0) {
                const svg::Box box{left + static_cast<double>(column) * grid.cellWidth,
                                   top + static_cast<double>(row) * grid.cellHeight, grid.cellWidth, grid.cellHeight};
                cells.at(rampStep(cell.mean(), range)).push_back({cell, box});
            }
        }
    }
    return cells;
}

/// The number of a cell, and its deviation from the centre below, where both fit.
void addCellTexts(svg::SVGWriter& svg, const MapFigures& map, const Grid& grid, const PlacedCell& placed) {
    constexpr double fontSize = 12;
    const svg::Box& box = placed.box;
    const std::string value = svg::valueText(placed.cell.mean(), decimalsOf(map));
    if (svg::textWidth(value, fontSize) > box.width - 4 || box.height < fontSize + 4) {
        return;
    }
    const std::string deviation = deviationText(map, grid, placed.cell);
    const bool hasBoth = !deviation.empty() && box.height >= 36 && svg::textWidth(deviation, fontSize) <= box.width - 4;
    const double middle = box.left + box.width / 2;
    const double line = box.top + box.height / 2 + (hasBoth ? -2 : 4);
    svg::addText(svg, {middle, line}, "", svg::Anchor::start, value);
    if (hasBoth) {
        svg::addText(svg, {middle, line + 15}, "lv-value", svg::Anchor::start, deviation);
    }
}

/// The cells of one step of the ramp, which are one path, with their texts.
void addStep(svg::SVGWriter& svg, const MapFigures& map, const Grid& grid, const std::vector<PlacedCell>& cells,
             const std::string& className) {
    std::vector<svg::Box> boxes;
    for (const PlacedCell& placed : cells) {
        boxes.push_back(placed.box);
    }
    svg::addBoxes(svg, boxes, className);
    svg.open("g", {{"class", className + 't'}});
    for (const PlacedCell& placed : cells) {
        addCellTexts(svg, map, grid, placed);
    }
    svg.close();
}

void addCells(svg::SVGWriter& svg, const MapFigures& map, const Grid& grid) {
    svg.open("g", {{"class", "lv-cells"}, {"text-anchor", "middle"}});
    std::size_t step = 0;
    for (const std::vector<PlacedCell>& cells : placedCells(map, grid)) {
        if (!cells.empty()) {
            addStep(svg, map, grid, cells, "lv-r" + std::to_string(step));
        }
        ++step;
    }
    svg.close();
}

void addHoverTexts(svg::SVGWriter& svg, const MapFigures& map, const Grid& grid) {
    std::vector<std::string> texts;
    for (std::size_t row = 0; row < grid.cellRows(); ++row) {
        for (std::size_t column = 0; column < grid.cellColumns(); ++column) {
            const Cell cell = cellAt(map, grid, column, row);
            texts.push_back(cell.count > 0 ? titleOf(map, grid, cell) : "");
        }
    }
    const double cellsWidth = static_cast<double>(grid.cellColumns()) * grid.cellWidth;
    addHoverCells(svg, {left, top, cellsWidth, grid.height()}, grid.cellColumns(), texts);
}

/// The colour scale with its ends, and notes about the map.
void addFoot(svg::SVGWriter& svg, const MapFigures& map, const Grid& grid) {
    const double y = top + grid.height() + 18;
    const double stepWidth = 20;
    const svg::Range range = rangeOf(map);
    const std::string least = svg::valueText(range.first, decimalsOf(map));
    const double rampLeft = left + svg::textWidth(least, 11) + 6;
    svg::addText(svg, {left, y + 10}, "lv-value", svg::Anchor::start, least);
    svg.open("g", {{"class", "lv-cells"}});
    for (std::size_t step = 0; step < rampSteps; ++step) {
        const svg::Box box{rampLeft + static_cast<double>(step) * stepWidth, y, stepWidth, 12};
        svg::addBoxes(svg, {box}, "lv-r" + std::to_string(step));
    }
    svg.close();
    const double rampRight = rampLeft + static_cast<double>(rampSteps) * stepWidth;
    const std::string greatest = withUnit(svg::valueText(range.last, decimalsOf(map)), map);
    svg::addText(svg, {rampRight + 6, y + 10}, "lv-value", svg::Anchor::start, svg::shortened(greatest, 200, 11));
    const std::string shape = isShapeKnown(map)
                                  ? (grid.block > 1 ? "Each cell is the mean of up to " +
                                                          std::to_string(grid.block * grid.block) + " entries."
                                                    : "")
                                  : "The shape of the map is not known: entries in stored order, " +
                                        std::to_string(grid.columns) + " in a row.";
    svg::addText(svg, {left, y + 30}, "lv-note", svg::Anchor::start, shape);
}

std::string descriptionOf(const MapFigures& map) {
    const int decimals = decimalsOf(map);
    std::string text = counted(map.values.size(), "entry", "entries") + ": least " + figureText(map.minimum, decimals) +
                       ", greatest " + figureText(map.maximum, decimals) + ", mean " + figureText(map.mean, 1) + '.';
    if (isShapeKnown(map)) {
        text += ' ' + std::to_string(map.gridWidth) + " entries in a row.";
    } else {
        text += " The shape of the map is not known, so the entries stand in stored order.";
    }
    if (map.greatestDeviation.value) {
        text += " Greatest deviation from the centre " + svg::valueText(*map.greatestDeviation.value * 100, 1) + " %.";
    }
    return text;
}

}  // namespace

std::string mapPicture(const MapFigures& map, const PictureForm& form) {
    const std::string name = map.name.empty() ? "Map" : std::string(map.name);
    const std::string updated = map.updatedAt.empty() ? "" : "Updated " + svg::quotable(map.updatedAt);
    const PictureTexts texts{name, updated, descriptionOf(map)};
    const auto isNumber = [](double value) {
        return std::isfinite(value);
    };
    if (std::none_of(map.values.begin(), map.values.end(), isNumber)) {
        return emptyPicture(form, texts, "no such map is recorded");
    }
    const Grid grid = gridOf(map);
    Picture picture(form, top + grid.height() + footHeight, texts);
    addCells(picture.svg(), map, grid);
    addFoot(picture.svg(), map, grid);
    addHoverTexts(picture.svg(), map, grid);
    return picture.finished();
}

}  // namespace lv::analysis
