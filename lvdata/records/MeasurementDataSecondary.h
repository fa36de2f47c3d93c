#pragma once

#include <lvdata/export.h>
#include <lvdata/records/MeasurementData.h>

#include <string>

namespace lv {

/// A second series of measurements, in addition to `MeasurementData`: the same record with a different root element.
/// Neither record accepts the other's element. Version 2.0.
class LVDATA_EXPORT MeasurementDataSecondary : public MeasurementData {
public:
    /// The name of the root element, compared exactly.
    static constexpr const char* rootElementName = "MeasurementDataSecondary";

    /// The name of the root element that this series is written under and accepts: "MeasurementDataSecondary".
    [[nodiscard]] std::string getRootElementName() const override;

    /// Everything that a document of this record can contain, as a tree of its elements and attributes; the same for
    /// every record of the class.
    [[nodiscard]] static Description describe();
};

/// \name Equality
/// Two records are equal when all members that documents hold are equal, including flags and version numbers.
/// Values with clear flags are compared, too. Not compared: `writeHLGSystemGamma` and `parsed`.
/// @{
[[nodiscard]] LVDATA_EXPORT bool operator==(const MeasurementDataSecondary& left,
                                            const MeasurementDataSecondary& right);
[[nodiscard]] inline bool operator!=(const MeasurementDataSecondary& left, const MeasurementDataSecondary& right) {
    return !(left == right);
}

/// Series with different root elements cannot be compared.
bool operator==(const MeasurementData& left, const MeasurementDataSecondary& right) = delete;
bool operator==(const MeasurementDataSecondary& left, const MeasurementData& right) = delete;
bool operator!=(const MeasurementData& left, const MeasurementDataSecondary& right) = delete;
bool operator!=(const MeasurementDataSecondary& left, const MeasurementData& right) = delete;
/// @}

}  // namespace lv
