#pragma once

#include <lvdata/analysis/pictures/pictures.h>

#include <string>
#include <vector>

namespace lv::test {

/// A picture with its name.
struct NamedPicture {
    std::string name{};  ///< For messages of tests.
    std::string text{};  ///< The SVG document.
};

/// All that pictures are drawn from.
struct AllFigures {
    analysis::ModeFigures mode{};      ///< Of the mode.
    analysis::MapFigures map{};        ///< A map.
    analysis::HistorySeries series{};  ///< A figure over time.
    analysis::LimitSet limits{};       ///< Limits for the patches.
    analysis::FigureLimit limit{};     ///< The limit of the figure.
};

/// Figures in which everything is there.
[[nodiscard]] AllFigures sampleFigures();

/// Figures with so many patches, steps, entries and points.
[[nodiscard]] AllFigures manyFigures(std::size_t count);

/// The sample with each number replaced.
[[nodiscard]] AllFigures figuresOf(double number);

/// The sample with each text of a document replaced.
[[nodiscard]] AllFigures figuresNamed(const std::string& text);

/// All pictures of them.
[[nodiscard]] std::vector<NamedPicture> everyPicture(const AllFigures& figures, const analysis::PictureForm& form = {});

}  // namespace lv::test
