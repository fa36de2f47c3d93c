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
};

}  // namespace lv
