#pragma once

#include <lvdata/lvdata.h>

namespace studio {

/// What the calibrations of the colour modes brought.
[[nodiscard]] lv::CalibrationModeResult calibrationModeResult();

/// What was measured in the standard mode, by the reference instrument and by the built-in sensor.
[[nodiscard]] lv::StandardModeResult standardModeResult();

/// Uniformity and brightness over the screen, 5 x 5 fields.
[[nodiscard]] lv::CandelaMap candelaMap();

}  // namespace studio
