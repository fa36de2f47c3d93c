#pragma once

#include <lvdata/analysis/colour/gamut.h>
#include <lvdata/analysis/figures/History.h>
#include <lvdata/analysis/figures/LimitSet.h>
#include <lvdata/analysis/figures/MonitorFigures.h>
#include <lvdata/analysis/pictures/svg/SharedParts.h>

#include <optional>
#include <string>

/// Pictures of figures, as SVG (version 1.1 with CSS classes).
///
/// Each is complete and stands alone as a file: title and description for screen readers, colours that people with
/// colour vision deficiencies can tell apart, and dashes or symbols beside them, legible on light and dark pages
/// (`prefers-color-scheme`). The same figures give the same bytes. None is above 60 KB: what is finer than a pixel is
/// thinned. A picture without anything to draw says why in its place.
namespace lv::analysis {

/// How a picture is made.
struct PictureForm {
    /// What every id and the class of the root begin with, so that several pictures can stand in one page.
    std::string id = "picture";

    /// Whether the picture brings its own style sheet. A page that holds several brings `pictureStyleForPage()` once.
    bool hasStyle = true;

    /// Where parts go that other pictures of the page have, too; null: the picture is complete. Must outlive the call.
    /// The page holds `SharedParts::definitions()` and `pictureStyleForPage()`.
    svg::SharedParts* shared = nullptr;
};

/// The style sheet that pictures without one need.
[[nodiscard]] std::string pictureStyle();

/// The same for a page, which only browsers open.
[[nodiscard]] std::string pictureStyleForPage();

/// A chromaticity diagram: spectrum locus, measured triangle and white, target, and the reference spaces.
[[nodiscard]] std::string gamutPicture(const ModeFigures& mode, colour::Plane plane, const PictureForm& form = {});

/// Tone response with its target, and below it the gamma of each step.
[[nodiscard]] std::string tonePicture(const ModeFigures& mode, const PictureForm& form = {});

/// R, G and B of each grey step over their mean.
[[nodiscard]] std::string balancePicture(const ModeFigures& mode, const PictureForm& form = {});

/// The monitor's look-up tables, and below them their deviation from the diagonal.
[[nodiscard]] std::string tablesPicture(const ModeFigures& mode, const PictureForm& form = {});

/// ΔE00 of each patch as bars, with lines at the mean, the 95th percentile and the limits of the set (null: none).
[[nodiscard]] std::string patchesPicture(const ModeFigures& mode, const LimitSet* limits, const PictureForm& form = {});

/// A candela map with its numbers in the cells. Where the shape of the map is not known, it stands in one run that is
/// wrapped, and the picture says so.
[[nodiscard]] std::string mapPicture(const MapFigures& map, const PictureForm& form = {});

/// The adjustments of six colours as bars.
[[nodiscard]] std::string sixColoursPicture(const ModeFigures& mode, const PictureForm& form = {});

/// One figure over time, with the limit when there is one: along dates where all points have one, otherwise evenly.
[[nodiscard]] std::string historyPicture(const HistorySeries& series, const FigureLimit* limit,
                                         const PictureForm& form = {});

}  // namespace lv::analysis
