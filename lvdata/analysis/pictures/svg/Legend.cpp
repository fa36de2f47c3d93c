#include <lvdata/analysis/pictures/svg/Legend.h>

#include <lvdata/analysis/pictures/svg/text.h>

#include <algorithm>

namespace lv::analysis::svg {
namespace {

constexpr double sampleWidth = 26;
constexpr double gap = 7;
constexpr double rowHeight = 20;
constexpr double baseline = 4;
constexpr double fontSize = 12;
constexpr double side = 12;  // of a filled square

void addSample(SVGWriter& svg, const Point& at, const LegendEntry& entry) {
    const double middle = at.x + sampleWidth / 2;
    if (!entry.line.empty()) {
        addLine(svg, at, {at.x + sampleWidth, at.y}, {entry.line, ""});
    }
    if (entry.mark.empty()) {
        return;
    }
    if (entry.symbol) {
        addSymbol(svg, {middle, at.y}, *entry.symbol, {entry.mark, ""});
    } else {
        addBox(svg, {middle - side / 2, at.y - side / 2, side, side}, {entry.mark, ""});
    }
}

/// One entry; the result is how wide it is.
double addEntry(SVGWriter& svg, const Point& at, double width, const LegendEntry& entry) {
    const std::string label = shortened(cleaned(entry.label), width - sampleWidth - gap, fontSize);
    addSample(svg, at, entry);
    addText(svg, {at.x + sampleWidth + gap, at.y + baseline}, "", Anchor::start, label);
    return sampleWidth + gap + textWidth(label, fontSize);
}

}  // namespace

void addLegendColumn(SVGWriter& svg, const Point& at, double width, const std::vector<LegendEntry>& entries) {
    SVGWriter part = svg.newPart();
    double y = at.y;
    for (const LegendEntry& entry : entries) {
        addEntry(part, {at.x, y}, width, entry);
        y += rowHeight;
    }
    svg.share(part);
}

void addLegendRow(SVGWriter& svg, const Point& at, double width, const std::vector<LegendEntry>& entries) {
    SVGWriter part = svg.newPart();
    double x = at.x;
    for (const LegendEntry& entry : entries) {
        const double left = at.x + width - x;
        if (left > 2 * sampleWidth) {
            x += addEntry(part, {x, at.y}, left, entry) + 2 * gap;
        }
    }
    svg.share(part);
}

}  // namespace lv::analysis::svg
