#include <lvdata/records/MeasurementDataSecondary.h>

namespace lv {

std::string MeasurementDataSecondary::getRootElementName() const {
    return rootElementName;
}

Description MeasurementDataSecondary::describe() {
    Description description = MeasurementData::describe();
    description.name = rootElementName;
    description.record = rootElementName;
    return description;
}

bool operator==(const MeasurementDataSecondary& left, const MeasurementDataSecondary& right) {
    return static_cast<const MeasurementData&>(left) == static_cast<const MeasurementData&>(right);
}

}  // namespace lv
