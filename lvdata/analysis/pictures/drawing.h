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

/// The pictures that can be asked for.
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

/// What a picture is asked for by.
struct PictureName {
    std::string_view name;  ///< "six-colours".
    PictureKind kind;       ///< Which one it is.
};

/// All pictures.
[[nodiscard]] const std::vector<PictureName>& pictureNames();

/// A picture that is asked for.
struct PictureRequest {
    PictureKind kind = PictureKind::gamut;  ///< Which one.
    std::string mode{};                     ///< The index of the colour mode; empty: see `chooseMode`. Not of maps.
    std::optional<colour::Plane> plane{};   ///< Of the gamut: u' and v' when there is no value.
    bool hasLimits = false;                 ///< Whether limits are to be drawn, of patches and history.
    std::string figure{};                   ///< The key of the figure of a history; empty: "white_delta_uv".
};

/// What is wrong with a request: "plane is for gamut only"; empty when all is well.
[[nodiscard]] std::string complaintAbout(const PictureRequest& request);

/// Why there is no picture.
struct PictureRefusal {
    std::string document{};  ///< The document that does not have what was asked for; empty: no document is to blame.
    std::string reason{};    ///< Why, in a few words.
};

/// Draws a picture of a monitor: of its latest document, a history of all.
///
/// \param snapshots  in the order of time, not empty
/// \param limits     those to draw; null: none
[[nodiscard]] std::variant<std::string, PictureRefusal>
drawPicture(const std::vector<Snapshot>& snapshots, const PictureRequest& request, const LimitSet* limits);

}  // namespace lv::analysis
