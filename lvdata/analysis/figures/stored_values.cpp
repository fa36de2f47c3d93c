#include <lvdata/analysis/figures/stored_values.h>

#include <cmath>

namespace lv::analysis {

Figure missing(const std::string& reason) {
    return {{}, reason};
}

Figure computed(double value) {
    return std::isfinite(value) ? Figure{value, ""} : missing("the result is beyond the range of numbers");
}

std::optional<colour::Chromaticity> chromaticityOf(const colour::Tristimulus& XYZ) {
    const double sum = XYZ[0] + XYZ[1] + XYZ[2];
    return sum > 0 ? std::optional(colour::Chromaticity{XYZ[0] / sum, XYZ[1] / sum}) : std::nullopt;
}

std::optional<colour::Tristimulus> tristimulusOf(const colour::Chromaticity& chromaticity, double Y) {
    const auto [x, y] = chromaticity;
    return y > 0 ? std::optional(colour::Tristimulus{x / y * Y, Y, (1 - x - y) / y * Y}) : std::nullopt;
}

MeasuredSet measuredSetOf(const CalibrationModeResultObject& result) {
    MeasuredSet set;
    if (!result.hasProfileData || !result.profileData.measuredXYZ.hasValue) {
        set.blackReason = "no complete set of MeasuredXYZ";
        return set;
    }
    const auto& stored = result.profileData.measuredXYZ.value;
    const auto& valid = result.hasValidMeasuredBlackValue;
    set.red = tristimulusOf(stored.red);
    set.green = tristimulusOf(stored.green);
    set.blue = tristimulusOf(stored.blue);
    set.white = tristimulusOf(stored.white);
    if (valid.hasValue && !valid.value) {
        set.blackReason = "the black measurement is marked as not valid";
    } else if (!(set.black = tristimulusOf(stored.black))) {
        set.blackReason = "no black was measured";
    }
    return set;
}

}  // namespace lv::analysis
