#pragma once

#include <lvdata/export.h>
#include <lvdata/records/MeasurementData.h>

#include <string>

namespace lv {

/// A second series of measurements beside `MeasurementData`: the same record under a root element of its own. Neither
/// accepts the other's element.
class LVDATA_EXPORT MeasurementDataSecondary : public MeasurementData {
public:
    /// The name of the root element.
    static constexpr const char* rootElementName = "MeasurementDataSecondary";

    [[nodiscard]] std::string getRootElementName() const override;

    /// What a document of this record consists of.
    [[nodiscard]] static Description describe();
};

/// \name Equality
/// Two records are equal when all members that documents hold are, flags and version numbers included. Not compared:
/// `writeHLGSystemGamma` and `parsed`.
/// @{
[[nodiscard]] LVDATA_EXPORT bool operator==(const MeasurementDataSecondary& left,
                                            const MeasurementDataSecondary& right);
[[nodiscard]] inline bool operator!=(const MeasurementDataSecondary& left, const MeasurementDataSecondary& right) {
    return !(left == right);
}
/// @}

}  // namespace lv
