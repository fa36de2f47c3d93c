// Makes sample documents of examples/data: "make_samples MonitorParameter" prints one of them, without an argument the
// program lists their names. All numbers are computed, and rounded to the steps of the device they would come from, so
// that every machine prints the same text.

#include <tests/samples/colorimetry.h>
#include <tests/samples/measurement_row.h>

#include <lvdata/lvdata.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <iostream>
#include <iterator>
#include <string>
#include <vector>

namespace {

using colorimetry::roundedTo;
using colorimetry::Triple;
using colorimetry::tristimulus;

// ---- A monitor's adjustment values, as a calibration to HLG leaves them.

/// A curve of 1024 entries that turns the panel's own gamma into the one aimed at, held in 16 bits.
std::vector<double> calibrationCurve(double nativeGamma, double gain) {
    constexpr std::size_t entries = 1024;
    constexpr double targetGamma = 2.4;
    std::vector<double> curve;
    for (std::size_t index = 0; index < entries; ++index) {
        const double input = static_cast<double>(index) / (entries - 1);
        curve.push_back(roundedTo(1.0 / 65535, gain * std::pow(input, targetGamma / nativeGamma)));
    }
    return curve;
}

lv::MonitorParameter monitorParameter() {
    lv::MonitorParameter parameter;
    parameter.brightness.set(148);
    parameter.contrast.set(100);
    parameter.isHDRLUT.set(1);  // before the tables: it determines their scale
    parameter.redLUT_x(calibrationCurve(2.218, 1.0));
    parameter.greenLUT_x(calibrationCurve(2.204, 0.984));
    parameter.blueLUT_x(calibrationCurve(2.187, 0.957));
    parameter.hlgSystemGamma_x(1.2);
    parameter.hlgClipping.set(1);
    parameter.hue.set({1, -2, 0, 1, 0, -1});
    parameter.saturation.set({-3, 2, 0, 1, -1, 0});
    parameter.lightness.set({0, 1, -1, 0, 0, 2});
    parameter.redGain_x(1.0);
    parameter.greenGain_x(0.991402);
    parameter.blueGain_x(0.978215);
    parameter.emulationMatrix_x({0.9624, 0.0361, 0.0015, 0.0118, 0.9837, 0.0045, 0.0009, 0.0107, 0.9884});
    parameter.limited109Setting.set(0);
    return parameter;
}

// ---- What a colorimeter would measure on a wide-gamut panel.

constexpr double whiteLuminance = 120.0;  // cd/m2
constexpr double blackLuminance = 0.12;   // cd/m2, what the panel leaks everywhere
constexpr double panelGamma = 2.2;

constexpr Triple whitePoint = tristimulus(0.3127, 0.3290);  // D65
constexpr Triple blackPoint = tristimulus(0.2891, 0.2984);  // bluish, as most panels leak

constexpr colorimetry::Primaries primaries = {
    tristimulus(0.6802, 0.3116),
    tristimulus(0.2094, 0.7013),
    tristimulus(0.1490, 0.0548),
};

/// XYZ of linear RGB, white having Y = 1.
Triple panelXYZ(const Triple& linear) {
    const auto& [red, green, blue] = colorimetry::partsOf(whitePoint, primaries);
    return colorimetry::mixture({linear[0] * red, linear[1] * green, linear[2] * blue}, primaries);
}

/// The measured colour of three code values in cd/m2, to the 0.0001 that the instrument shows.
Triple measured(const std::array<int, 3>& codes) {
    Triple linear{};
    std::transform(codes.begin(), codes.end(), linear.begin(),
                   [](int code) { return std::pow(code / 255.0, panelGamma); });
    const Triple shown = colorimetry::scaled(whiteLuminance - blackLuminance, panelXYZ(linear));
    return roundedTo(0.0001, colorimetry::sum(shown, colorimetry::scaled(blackLuminance, blackPoint)));
}

/// CIELAB of tristimulus values against the panel's white, to two digits.
Triple lab(const Triple& xyz) {
    return roundedTo(0.01, colorimetry::lab(xyz, colorimetry::scaled(whiteLuminance, whitePoint)));
}

/// The row of a shown colour, three code values.
lv::MeasurementDataObject measurement(const std::array<int, 3>& codes) {
    const Triple xyz = measured(codes);
    return measurementRow({codes[0] / 255.0, codes[1] / 255.0, codes[2] / 255.0}, xyz, lab(xyz));
}

/// A grey ramp, a ramp of each primary, and the secondary colours.
lv::MeasurementData measurementData() {
    lv::MeasurementData data;
    for (int code = 0; code <= 255; code += 17) {
        data.objects.push_back(measurement({code, code, code}));
    }
    for (int code = 51; code <= 255; code += 51) {
        data.objects.push_back(measurement({code, 0, 0}));
        data.objects.push_back(measurement({0, code, 0}));
        data.objects.push_back(measurement({0, 0, code}));
    }
    data.objects.push_back(measurement({0, 255, 255}));
    data.objects.push_back(measurement({255, 0, 255}));
    data.objects.push_back(measurement({255, 255, 0}));
    return data;
}

int print(const lv::DataObject& record) {
    std::cout << record.toXMLString(true, true);
    return 0;
}

}  // namespace

int main(int argc, char** argv) {
    const std::vector<std::string> arguments(argv, std::next(argv, argc));
    const std::string name = arguments.size() > 1 ? arguments[1] : "";
    if (name == "MonitorParameter") {
        return print(monitorParameter());
    }
    if (name == "MeasurementData") {
        return print(measurementData());
    }
    std::cout << "MonitorParameter\nMeasurementData\n";
    return name.empty() ? 0 : 2;
}
