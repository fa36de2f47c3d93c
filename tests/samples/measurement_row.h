#pragma once

#include <tests/samples/colorimetry.h>

#include <lvdata/records/MeasurementData.h>

/// A row of measurements: the signals that were shown, from 0 to 1, and what was measured for them.
inline lv::MeasurementDataObject measurementRow(const colorimetry::Triple& rgb, const colorimetry::Triple& xyz,
                                                const colorimetry::Triple& lab) {
    lv::colour colour;
    colour.red = rgb[0];
    colour.green = rgb[1];
    colour.blue = rgb[2];
    colour.X = xyz[0];
    colour.Y = xyz[1];
    colour.Z = xyz[2];
    colour.L = lab[0];
    colour.a = lab[1];
    colour.b = lab[2];
    lv::MeasurementDataObject row;
    row.RGB_x(colour);
    row.XYZ_x(colour);
    row.CIELAB_x(colour);
    return row;
}
