#pragma once

#include <tests/samples/colorimetry.h>
#include <tests/samples/studio/Display.h>
#include <tests/samples/studio/Instrument.h>

#include <lvdata/lvdata.h>

namespace studio {

/// Tristimulus values as the library takes them.
[[nodiscard]] lv::colour xyzColour(const colorimetry::Triple& xyz);

/// What an instrument measures of a display: a grey ramp, ramps of the primaries, the secondaries.
[[nodiscard]] lv::MeasurementData rampMeasurements(const Display& display, Instrument& instrument);

/// What an instrument measures of a proof: a grid over all colours, and the patches of a print control strip.
[[nodiscard]] lv::MeasurementData proofMeasurements(const Display& display, Instrument& instrument);

/// What the three filters of the built-in sensor read on the ramps.
[[nodiscard]] lv::MeasurementDataSecondary sensorMeasurements(const Display& display, Instrument& sensor);

}  // namespace studio
