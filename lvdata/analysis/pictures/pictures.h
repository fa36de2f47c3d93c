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
/// Each is a complete file: title and description for screen readers, colours that people with colour vision
/// deficiencies can distinguish, dashes or symbols in addition, legible on light and dark pages
/// (`prefers-color-scheme`). The same figures give the same bytes. No picture exceeds 60 KB: detail finer than a pixel
/// is removed. If there is nothing to draw, the picture says why.
namespace lv::analysis {

/// The form of a picture.
struct PictureForm {
    /// The prefix of every id and of the class of the root, so that one page can have several pictures.
    std::string id = "picture";

    /// Whether the picture includes its own style sheet. A page with several pictures includes `pictureStyleForPage()`
    /// once.
    bool hasStyle = true;

    /// Collects parts that other pictures of the page have, too; null: the picture is complete. Must outlive the call.
    /// The page holds `SharedParts::definitions()` and `pictureStyleForPage()`.
    svg::SharedParts* shared = nullptr;
};

/// The style sheet that pictures without one need.
[[nodiscard]] std::string pictureStyle();

/// The same for a page, which is opened only by browsers.
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

/// A candela map with its numbers in the cells. If the shape of the map is not known, the entries are shown as one
/// wrapped sequence, and the picture says so.
[[nodiscard]] std::string mapPicture(const MapFigures& map, const PictureForm& form = {});

/// The adjustments of six colours as bars.
[[nodiscard]] std::string sixColoursPicture(const ModeFigures& mode, const PictureForm& form = {});

/// One figure over time, with the limit when there is one: by date if all points have one, otherwise evenly spaced.
[[nodiscard]] std::string historyPicture(const HistorySeries& series, const FigureLimit* limit,
                                         const PictureForm& form = {});

}  // namespace lv::analysis
