#pragma once

#include <lvdata/analysis/pictures/pictures.h>
#include <lvdata/analysis/pictures/svg/Legend.h>
#include <lvdata/analysis/pictures/svg/Panel.h>
#include <lvdata/analysis/pictures/svg/SVGWriter.h>
#include <lvdata/analysis/pictures/svg/shapes.h>
#include <lvdata/analysis/pictures/svg/text.h>

#include <string>
#include <string_view>

namespace lv::analysis {

/// The texts of a picture. They may contain unescaped texts of documents.
struct PictureTexts {
    std::string title{};        ///< What it is, such as "Tone response".
    std::string subtitle{};     ///< What it is about, such as the name of the mode; may be empty.
    std::string description{};  ///< What can be seen, in sentences with numbers.
};

/// The width of all pictures in pixels, at their natural size.
inline constexpr double pictureWidth = 720;

/// From the left edge to where panels begin: room for the labels of the vertical axis.
inline constexpr double panelLeft = 60;

/// From the top edge to where panels begin, under title, subtitle and legend.
inline constexpr double panelTop = 104;

/// Where a legend in a row has its middle.
inline constexpr double legendTop = 64;

/// From panels, or what else is farthest to the right, to the right edge.
inline constexpr double rightMargin = 20;

/// A picture that is being drawn: the root element, the style, the background and the title, into which the rest is
/// drawn.
class Picture {
public:
    /// Begins a picture of that height.
    Picture(const PictureForm& form, double height, const PictureTexts& texts);

    [[nodiscard]] svg::SVGWriter& svg() { return svg_; }  ///< What draws into it.

    /// The id of a part, which begins with that of the picture, or is the same in all pictures of a page.
    [[nodiscard]] std::string idOf(std::string_view part) const;

    /// Ends the picture and returns its text.
    [[nodiscard]] std::string finished();

private:
    void addSharedText(const svg::Point& at, std::string_view classes, const std::string& text);

    svg::SVGWriter svg_;
    std::string id_;
};

/// A picture that says why there is nothing to show.
[[nodiscard]] std::string emptyPicture(const PictureForm& form, const PictureTexts& texts, const std::string& reason);

/// A figure in a sentence: its value as `valueText` has it, or "n/a (reason)".
[[nodiscard]] std::string figureText(const Figure& figure, int decimals);

/// Why a figure has no value, or else the given reason.
[[nodiscard]] std::string reasonOf(const Figure& figure, const std::string& otherwise);

/// The name of a mode with when it was calibrated, for subtitles.
[[nodiscard]] std::string subtitleOf(const ModeFigures& mode);

/// "1 step", "2 steps": the number with the word that fits.
[[nodiscard]] std::string counted(std::size_t number, const std::string& one, const std::string& several);

}  // namespace lv::analysis
