#include <tests/samples/studio/results.h>

#include <tests/samples/studio/ColourMode.h>
#include <tests/samples/studio/Display.h>
#include <tests/samples/studio/Instrument.h>
#include <tests/samples/studio/measurements.h>

#include <string>
#include <vector>

namespace studio {

using colorimetry::Triple;

namespace {

/// The tristimulus values of the five colours at this signal.
PrimaryColours measuredPrimaries(const Display& display, Instrument& instrument, double signal) {
    PrimaryColours measured;
    measured.red = xyzColour(instrument.measure(display.shows({signal, 0, 0})));
    measured.green = xyzColour(instrument.measure(display.shows({0, signal, 0})));
    measured.blue = xyzColour(instrument.measure(display.shows({0, 0, signal})));
    measured.white = xyzColour(instrument.measure(display.shows({signal, signal, signal})));
    measured.black = xyzColour(instrument.measure(display.shows({0, 0, 0})));
    return measured;
}

/// The light of a grey ramp to five digits.
std::vector<double> lightTable(ToneCurve curve) {
    constexpr int entries = 256;
    std::vector<double> table;
    table.reserve(entries);
    for (int index = 0; index < entries; ++index) {
        table.push_back(colorimetry::roundedTo(0.00001, lightOfGrey(curve, index / (entries - 1.0))));
    }
    return table;
}

lv::ProfileData::target_curve targetCurve(ToneCurve curve) {
    lv::ProfileData::target_curve result;
    switch (curve) {
    case ToneCurve::gamma:
        result.type = "Formula";
        result.formula_x(photoGamma);
        break;
    case ToneCurve::lightness:
        result.type = "LStar";
        break;
    case ToneCurve::hlg:
        result.type = "Lut";
        result.lut_x(lightTable(curve));
        break;
    }
    return result;
}

lv::ProfileData profileData(const ColourMode& mode, const PrimaryColours& measured) {
    lv::ProfileData profile;
    profile.description.set(std::string("Studio wall, ") + mode.name);
    profile.measuredXYZ_x(measured);
    profile.redTargetCurve.set(targetCurve(mode.curve));
    profile.greenTargetCurve.set(targetCurve(mode.curve));
    profile.blueTargetCurve.set(targetCurve(mode.curve));
    return profile;
}

/// With head room up to a signal of 109 %, the signal of 100 % shows less than the brightest the mode has.
constexpr double signalWithHeadRoom = 100.0 / 109.0;

lv::MonitorParameter monitorParameter(const ColourMode& mode, const Display& display) {
    const bool hdr = mode.curve == ToneCurve::hlg;
    const Triple gains = display.gains();
    lv::MonitorParameter parameter;
    parameter.brightness.set(hdr ? 255 : 63);
    parameter.contrast.set(100);
    parameter.isHDRLUT.set(hdr ? 1 : 0);  // before the tables: it chooses their scale
    parameter.redLUT_x(display.table(0));
    parameter.greenLUT_x(display.table(1));
    parameter.blueLUT_x(display.table(2));
    parameter.hue.set({0, 1, -1, 0, 0, 0});
    parameter.saturation.set({-2, 0, 1, 0, 0, -1});
    parameter.lightness.set({0, 0, 0, 1, -1, 0});
    parameter.redGain_x(gains[0]);
    parameter.greenGain_x(gains[1]);
    parameter.blueGain_x(gains[2]);
    parameter.limited109Setting.set(hdr ? 1 : 0);
    return parameter;
}

/// What the monitor needs for HLG beside its tables: the system gamma, and BT.2100 made out of the panel's primaries.
void addHLG(lv::MonitorParameter& parameter) {
    parameter.hlgSystemGamma_x(hlgSystemGamma);
    parameter.hlgClipping.set(1);
    parameter.emulationMatrix_x({0.9624, 0.0361, 0.0015, 0.0118, 0.9837, 0.0045, 0.0009, 0.0107, 0.9884});
}

/// The built-in sensor, and the instrument that it was correlated with.
lv::BasicData circumstances(const char* date, const Triple& target, const Triple& reached) {
    lv::BasicData data;
    data.usageHours.set(1204);
    data.usageMinutes.set(37);
    data.colorSensorID.set(17);
    data.colorSensorName.set("Built-in sensor");
    data.colorSensorSerial.set("B-000417");
    data.colorSensorCorrection.set(1);
    data.referenceColorSensorID.set(3);
    data.referenceColorSensorName.set("Reference spectroradiometer");
    data.referenceColorSensorSerial.set("S-3301");
    data.colorSensorCorrelationID.set(2);
    data.colorSensorCorrelationDate.set("2024-03-17");
    data.colorSensorCorrelationMatrixID.set(5);
    data.useColorSensorCorrelationMatrix.set("true");
    data.correlationTargetWhite_x(xyzColour(colorimetry::roundedTo(0.0001, target)));
    data.justCalibratedWhite_x(xyzColour(reached));
    data.exCorrectionID.set(0);
    data.exCorrectionName.set("None");
    data.backLightLightingTime.set(1190);
    data.software.set("Lumivale 7.2.0");
    data.executedDate.set(date);
    data.DUEPriority.set(1);
    data.executorType.set("User");
    return data;
}

lv::MeasurementData measurementsOf(const ColourMode& mode, const Display& display, Instrument& instrument) {
    return mode.curve == ToneCurve::lightness ? proofMeasurements(display, instrument)
                                              : rampMeasurements(display, instrument);
}

lv::CalibrationModeResultObject resultOf(const ColourMode& mode, Instrument& instrument) {
    const Display display(mode);
    const PrimaryColours measured = measuredPrimaries(display, instrument, 1.0);
    lv::CalibrationModeResultObject result;
    result.type.set("Calibration");
    result.index.set(mode.index);
    result.name.set(mode.name);
    result.calibratedTime.set(mode.calibratedTime);
    result.basicData = circumstances(mode.calibratedTime, display.shows({1, 1, 1}),
                                     {measured.white.X, measured.white.Y, measured.white.Z});
    result.hasBasicData = true;
    result.measurementData = measurementsOf(mode, display, instrument);
    result.hasMeasurementData = true;
    result.hasValidMeasuredBlackValue.set(true);
    result.monitorParameter = monitorParameter(mode, display);
    result.hasMonitorParameter = true;
    result.profileData = profileData(mode, measured);
    result.hasProfileData = true;
    return result;
}

lv::CalibrationModeResultObject broadcastResult(Instrument& instrument) {
    lv::CalibrationModeResultObject result = resultOf(broadcast, instrument);
    addHLG(result.monitorParameter);
    result.profileData.measuredXYZLimited109_x(measuredPrimaries(Display(broadcast), instrument, signalWithHeadRoom));
    return result;
}

lv::CalibrationModeResultObject proofResult(Instrument& instrument) {
    lv::CalibrationModeResultObject result = resultOf(proof, instrument);
    result.emulationLUT.availability = 1;
    result.emulationLUT.index = 3;
    result.emulationLUT.name = "Coated paper";
    result.emulationLUT.present = true;
    return result;
}

/// How bright a field of the screen is, in percent of the brightest: less towards the edges.
unsigned int uniformity(int row, int column) {
    const int down = row - 2;
    const int right = column - 2;
    return static_cast<unsigned int>(100 - down * down - right * right - (row > column ? 1 : 0));
}

lv::CandelaMapEntry mapOf(unsigned int centre, const char* updatedAt) {
    lv::CandelaMapEntry map;
    for (int row = 0; row < 5; ++row) {
        for (int column = 0; column < 5; ++column) {
            map.values.push_back(centre * uniformity(row, column) / 100);
        }
    }
    map.updatedAt = updatedAt;
    map.valid = true;
    return map;
}

}  // namespace

lv::CalibrationModeResult calibrationModeResult() {
    Instrument instrument(417);
    lv::CalibrationModeResult result;
    result.objects.push_back(resultOf(photo, instrument));
    result.objects.push_back(proofResult(instrument));
    result.objects.push_back(broadcastResult(instrument));
    return result;
}

lv::StandardModeResult standardModeResult() {
    const Display display(panel::uncalibrated);
    Instrument reference(3301);
    Instrument sensor(17);
    const Triple white = display.shows({1, 1, 1});
    lv::StandardModeResult result;
    result.measurementData = rampMeasurements(display, reference);
    result.hasMeasurementData = true;
    result.measurementDataSecondary = sensorMeasurements(display, sensor);
    result.hasMeasurementDataSecondary = true;
    result.maxWhite.set(static_cast<unsigned int>(panel::luminance));
    result.basicData = circumstances("2024-05-02T08:55:00", white, reference.measure(white));
    result.hasBasicData = true;
    return result;
}

lv::CandelaMap candelaMap() {
    lv::CandelaMap map;
    map.uniformity = mapOf(100, "2024-05-02T10:21:00");
    map.brightness = mapOf(static_cast<unsigned int>(panel::luminance), "2024-05-02T10:23:00");
    return map;
}

}  // namespace studio
