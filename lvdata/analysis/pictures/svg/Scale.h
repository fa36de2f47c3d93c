#pragma once

#include <lvdata/analysis/pictures/svg/geometry.h>

namespace lv::analysis::svg {

/// Where values lie in pixels: linear, and never outside the pixels.
class Scale {
public:
    /// From the range of values to that of pixels. Either can be reversed. If the range of values has no width, all
    /// values lie in the middle.
    Scale(Range values, Range pixels) : values_(values), pixels_(pixels) {}

    /// The pixel of a value; of one outside, the pixel of the nearer end; of NaN, the middle.
    [[nodiscard]] double at(double value) const;

    /// Whether a value lies in the range, including its ends and a tolerance for rounding. NaN does not.
    [[nodiscard]] bool holds(double value) const;

    [[nodiscard]] const Range& values() const { return values_; }  ///< The range of values.
    [[nodiscard]] const Range& pixels() const { return pixels_; }  ///< The range of pixels.

private:
    Range values_;
    Range pixels_;
};

/// The range of the values that were added.
class Extent {
public:
    /// Adds a value; NaN and infinities are ignored, and values beyond 1e200 are set to 1e200.
    void add(double value);

    /// Whether no value was added.
    [[nodiscard]] bool isEmpty() const { return isEmpty_; }

    /// From the least to the greatest value; 0 to 1 without any.
    [[nodiscard]] Range range() const { return range_; }

private:
    Range range_;
    bool isEmpty_ = true;
};

/// The range made wider on both sides by that part of its width, and at least as wide as given, around its middle.
[[nodiscard]] Range widened(Range range, double part, double leastWidth);

}  // namespace lv::analysis::svg
