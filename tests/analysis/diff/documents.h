#pragma once

#include <string>

namespace lv::test {

/// A document of measurements with these rows.
[[nodiscard]] inline std::string measurementSeries(const std::string& rows) {
    return "<MeasurementData>" + rows + "</MeasurementData>";
}

/// A document that sets a gamma, in hundredths.
[[nodiscard]] inline std::string documentWithGamma(const std::string& value) {
    return "<ParameterSetting><Gamma Type='Value'><Value>" + value + "</Value></Gamma></ParameterSetting>";
}

}  // namespace lv::test
