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

using Words = std::vector<std::string>;

/// The words between blanks; several blanks count as one.
Words wordsOf(const std::string& text) {
    Words words;
    for (std::size_t at = text.find_first_not_of(' '); at != std::string::npos; at = text.find_first_not_of(' ', at)) {
        const std::size_t end = std::min(text.find(' ', at), text.size());
        words.push_back(text.substr(at, end - at));
        at = end;
    }
    return words;
}

std::string joined(const Words& words) {
    std::string text;
    for (std::size_t index = 0; index < words.size(); ++index) {
        text += (index > 0 ? " " : "") + words[index];
    }
    return text;
}

/// The words of two texts that are the same in both, with empty ones in place of others.
Words common(const Words& left, const Words& right) {
    Words words;
    for (std::size_t index = 0; index < std::min(left.size(), right.size()); ++index) {
        words.push_back(left[index] == right[index] ? left[index] : "");
    }
    return words;
}

/// The words that all texts share, with empty ones for gaps. None if a text would have no other words.
Words formOf(const std::vector<Words>& texts) {
    Words form;
    bool isFirst = true;
    for (const Words& text : texts) {
        if (!text.empty()) {
            form = isFirst ? text : common(form, text);
            isFirst = false;
        }
    }
    return std::find(form.begin(), form.end(), "") == form.end() ? Words{} : form;
}

/// The words for the gaps of a form, and those after it.
Words ownWords(const Words& text, const Words& form) {
    Words own;
    for (std::size_t index = 0; index < text.size(); ++index) {
        if (index >= form.size() || form[index].empty()) {
            own.push_back(text[index]);
        }
    }
    return own;
}

/// The words, with empty ones instead of those that are the same in the previous text; the first word stays.
Words changed(Words words, const Words& last) {
    for (std::size_t index = 1; index < std::min(words.size(), last.size()); ++index) {
        words[index] = words[index] == last[index] ? "" : words[index];
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
    std::vector<Words> all;
    for (const std::string& text : texts) {
        all.push_back(wordsOf(text));
    }
    const Words form = formOf(all);
    std::string lines = joined(form);
    Words last;
    for (const Words& text : all) {
        const Words own = ownWords(text, form);
        lines += '\n' + joined(changed(own, last));
        last = own.empty() ? last : own;
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
