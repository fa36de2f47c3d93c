#pragma once

#include <tests/samples/studio/ColourMode.h>

#include <lvdata/lvdata.h>

namespace studio {

/// The calibration target of a colour mode, in both generations of elements.
[[nodiscard]] lv::TargetSetting targetSetting(const ColourMode& mode);

}  // namespace studio
