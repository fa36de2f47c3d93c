#pragma once

#include <lvdata/analysis/colour/rgb.h>
#include <lvdata/analysis/figures/stored_values.h>
#include <lvdata/analysis/figures/target_curves.h>

#include <array>
#include <optional>
#include <string>

namespace lv::analysis {

/// The columns of the matrix are what full red, green and blue add to black, scaled so that their sum is the white.
struct Channels {
    std::optional<colour::Matrix> matrix{};
    std::string reason{};  ///< Why there is no matrix; otherwise empty.
};

/// There is no matrix when a colour is missing, when the primaries cannot make the white, or when the white is not
/// brighter than black. A missing black counts as 0.
[[nodiscard]] Channels channelsOf(const MeasuredSet& set);

/// A model of a display without errors: the colours that it would show.
class DisplayModel {
public:
    /// \param channels  what full red, green and blue add to black
    /// \param black     the colour that it shows for 0, 0, 0
    /// \param curves    the tone curves of the three channels
    /// \param isAbsolute  whether Y is known to be in cd/m²
    DisplayModel(const colour::Matrix& channels, const colour::Tristimulus& black,
                 const std::array<ToneCurve, 3>& curves, bool isAbsolute);

    /// The colour that it shows for signals of 0 to 1, or why that is not known.
    struct Prediction {
        std::optional<colour::Tristimulus> XYZ{};
        std::string reason{};
    };
    [[nodiscard]] Prediction predict(const std::array<double, 3>& signals) const;

    /// The colour that it shows for 1, 1, 1.
    [[nodiscard]] const colour::Tristimulus& white() const { return white_; }

private:
    struct Lights {
        std::array<double, 3> values{};
        std::string reason{};
    };
    [[nodiscard]] Lights lightsOf(const std::array<double, 3>& signals) const;
    [[nodiscard]] Lights hlgLightsOf(const std::array<double, 3>& signals) const;

    colour::Matrix channels_;
    colour::Tristimulus black_;
    colour::Tristimulus white_;
    std::array<ToneCurve, 3> curves_;
    ToneRange range_;
};

}  // namespace lv::analysis
