#include <tests/samples/studio/measurements.h>

#include <tests/samples/measurement_row.h>

#include <array>
#include <vector>

namespace studio {

using colorimetry::Triple;

namespace {

constexpr Triple whiteSignals = {1.0, 1.0, 1.0};

/// Signals of 0 to 1 from 8-bit code values.
constexpr Triple signals(int red, int green, int blue) {
    return {red / 255.0, green / 255.0, blue / 255.0};
}

std::vector<Triple> rampPatches() {
    std::vector<Triple> patches;
    for (int code = 0; code <= 255; code += 5) {
        patches.push_back(signals(code, code, code));
    }
    for (int code = 17; code <= 255; code += 17) {
        patches.push_back(signals(code, 0, 0));
        patches.push_back(signals(0, code, 0));
        patches.push_back(signals(0, 0, code));
    }
    patches.insert(patches.end(), {signals(0, 255, 255), signals(255, 0, 255), signals(255, 255, 0)});
    return patches;
}

std::vector<Triple> gridPatches() {
    constexpr std::array codes = {0, 85, 170, 255};
    std::vector<Triple> patches;
    for (const int red : codes) {
        for (const int green : codes) {
            for (const int blue : codes) {
                patches.push_back(signals(red, green, blue));
            }
        }
    }
    return patches;
}

/// The solid inks and their overprints, and tints of every ink.
std::vector<std::array<double, 4>> inkPatches() {
    std::vector<std::array<double, 4>> patches = {{1, 1, 0, 0}, {1, 0, 1, 0}, {0, 1, 1, 0}, {1, 1, 1, 0}};
    for (const double tint : {0.25, 0.5, 0.75, 1.0}) {
        for (std::size_t ink = 0; ink < 4; ++ink) {
            patches.push_back({0, 0, 0, 0});
            patches.back().at(ink) = tint;
        }
    }
    return patches;
}

lv::MeasurementDataObject measurement(const Display& display, Instrument& instrument, const Triple& shown) {
    const Triple xyz = instrument.measure(display.shows(shown));
    const Triple lab = colorimetry::roundedTo(0.01, colorimetry::lab(xyz, display.shows(whiteSignals)));
    return measurementRow(shown, xyz, lab);
}

lv::MeasurementDataObject inkMeasurement(const Display& display, Instrument& instrument,
                                         const std::array<double, 4>& inks) {
    const auto& [cyan, magenta, yellow, black] = inks;
    const double paper = 1.0 - black;
    const Triple shown = {(1.0 - cyan) * paper, (1.0 - magenta) * paper, (1.0 - yellow) * paper};
    lv::colour colour;
    colour.cyan = cyan;
    colour.magenta = magenta;
    colour.yellow = yellow;
    colour.black = black;
    lv::MeasurementDataObject row = measurement(display, instrument, shown);
    row.CMYK_x(colour);
    return row;
}

/// What the filters of the built-in sensor make of tristimulus values: they only come near the observer's curves.
Triple filtered(const Triple& xyz) {
    constexpr colorimetry::Primaries filters = {{0.971, 0.018, 0.002}, {0.024, 0.985, 0.013}, {0.004, 0.006, 0.968}};
    return colorimetry::mixture(xyz, filters);
}

lv::MeasurementDataObject sensorReading(const Display& display, Instrument& sensor, const Triple& shown) {
    lv::colour colour = xyzColour(sensor.measure(filtered(display.shows(shown))));
    colour.red = shown[0];
    colour.green = shown[1];
    colour.blue = shown[2];
    lv::MeasurementDataObject row;
    row.RGB_x(colour);
    row.PQR_x(colour);
    return row;
}

}  // namespace

lv::colour xyzColour(const Triple& xyz) {
    lv::colour result;
    result.X = xyz[0];
    result.Y = xyz[1];
    result.Z = xyz[2];
    return result;
}

lv::MeasurementData rampMeasurements(const Display& display, Instrument& instrument) {
    lv::MeasurementData data;
    for (const Triple& shown : rampPatches()) {
        data.objects.push_back(measurement(display, instrument, shown));
    }
    return data;
}

lv::MeasurementData proofMeasurements(const Display& display, Instrument& instrument) {
    lv::MeasurementData data;
    for (const Triple& shown : gridPatches()) {
        data.objects.push_back(measurement(display, instrument, shown));
    }
    for (const std::array<double, 4>& inks : inkPatches()) {
        data.objects.push_back(inkMeasurement(display, instrument, inks));
    }
    return data;
}

lv::MeasurementDataSecondary sensorMeasurements(const Display& display, Instrument& sensor) {
    lv::MeasurementDataSecondary data;
    for (const Triple& shown : rampPatches()) {
        data.objects.push_back(sensorReading(display, sensor, shown));
    }
    return data;
}

}  // namespace studio
