#pragma once

#include <lvdata/analysis/colour/gamut.h>
#include <lvdata/analysis/figures/History.h>
#include <lvdata/analysis/figures/LimitSet.h>

#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace lv::analysis {

/// The pictures that can be requested.
enum class PictureKind {
    gamut,       ///< `gamutPicture`
    tone,        ///< `tonePicture`
    balance,     ///< `balancePicture`
    lut,         ///< `tablesPicture`
    uniformity,  ///< `mapPicture` of the map of uniformity
    brightness,  ///< `mapPicture` of the map of brightness
    sixColours,  ///< `sixColoursPicture`
    patches,     ///< `patchesPicture`
    history,     ///< `historyPicture`
};

/// The name of a picture.
struct PictureName {
    std::string_view name;  ///< "six-colours".
    PictureKind kind;       ///< Which one it is.
};

/// All pictures.
[[nodiscard]] const std::vector<PictureName>& pictureNames();

/// A request for a picture.
struct PictureRequest {
    PictureKind kind = PictureKind::gamut;  ///< Which one.
    std::string mode{};                     ///< The index of the colour mode; empty: see `chooseMode`. Not of maps.
    std::optional<colour::Plane> plane{};   ///< For the gamut: u' and v' when there is no value.
    bool hasLimits = false;                 ///< Whether limits are drawn, for patches and history.
    std::string figure{};                   ///< The key of the figure of a history; empty: "white_delta_uv".
};

/// What is wrong with a request: "plane is for gamut only"; empty when the request is valid.
[[nodiscard]] std::string complaintAbout(const PictureRequest& request);

/// Why there is no picture.
struct PictureRefusal {
    std::string document{};  ///< The document that lacks what was requested; empty: no document is the cause.
    std::string reason{};    ///< Why, in a few words.
};

/// Draws a picture of a monitor: of its latest document, or a history of all documents.
///
/// \param snapshots  in the order of time, not empty
/// \param limits     those to draw; null: none
[[nodiscard]] std::variant<std::string, PictureRefusal>
drawPicture(const std::vector<Snapshot>& snapshots, const PictureRequest& request, const LimitSet* limits);

}  // namespace lv::analysis
