#pragma once

#include <lvdata/records/CalibrationModeResult.h>
#include <lvdata/records/ColorModeSettings.h>

#include <vector>

namespace lv::analysis {

/// A colour mode: what is set up, and its result. One of the two may be null, but not both. Points into the records.
struct JoinedMode {
    const ColorModeSettingsObject* setting = nullptr;     ///< What is set up.
    const CalibrationModeResultObject* result = nullptr;  ///< The result of its calibration.
};

/// All modes, in the order of the settings; results without settings come last. Settings and results belong together
/// when they have the same index; if several have the same index, the first setting belongs to the first result, and so
/// on. Either list may be null, which stands for an empty list.
[[nodiscard]] std::vector<JoinedMode> joinedModes(const ColorModeSettings* settings,
                                                  const CalibrationModeResult* results);

}  // namespace lv::analysis
