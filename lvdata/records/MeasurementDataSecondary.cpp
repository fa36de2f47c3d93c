#include <lvdata/records/MeasurementDataSecondary.h>

namespace lv {

std::string MeasurementDataSecondary::getRootElementName() const {
    return rootElementName;
}

}  // namespace lv
