#include <lvdata/core/detail/colour_notation.h>
#include <lvdata/core/detail/record.h>
#include <lvdata/records/BasicData.h>

namespace lv {
namespace {

using detail::haveEntries;
using detail::isSet;
using detail::notEmpty;

template <class Io, class White>
void visitWhite(Io& io, const char* name, White& white) {
    io.always().writeWhen(haveEntries(detail::xyz.size(), white.value)).field(name, white, quantities::tristimulus);
}

template <class Io, class Property>
void visitExecutor(Io& io, Property& executorType) {
    io.writeWhen(isSet(executorType)).element("Executor").value("Type", executorType.value);
    io.derive(executorType.hasValue, notEmpty(executorType.value));
}

constexpr auto visit = [](auto& io, auto& self) {
    io.field("UsageHours", self.usageHours);
    io.field("UsageMinutes", self.usageMinutes);
    io.field("ColorSensorID", self.colorSensorID, quantities::identifier);
    io.field("ColorSensorName", self.colorSensorName);
    io.field("ColorSensorSerial", self.colorSensorSerial);
    io.field("ColorSensorCorrection", self.colorSensorCorrection);
    io.field("ReferenceColorSensorID", self.referenceColorSensorID, quantities::identifier);
    io.field("ReferenceColorSensorName", self.referenceColorSensorName);
    io.field("ReferenceColorSensorSerial", self.referenceColorSensorSerial);
    io.field("ColorSensorCorrelationID", self.colorSensorCorrelationID, quantities::identifier);
    io.field("ColorSensorCorrelationDate", self.colorSensorCorrelationDate);
    io.field("ColorSensorCorrelationMatrixID", self.colorSensorCorrelationMatrixID, quantities::identifier);
    io.field("UseColorSensorCorrelationMatrix", self.useColorSensorCorrelationMatrix);
    visitWhite(io, "CorrelationTargetWhite", self.correlationTargetWhite);
    visitWhite(io, "JustCalibratedWhite", self.justCalibratedWhite);
    io.field("ExCorrectionID", self.exCorrectionID, quantities::identifier);
    io.field("ExCorrectionName", self.exCorrectionName);
    io.field("BackLightLightingTime", self.backLightLightingTime);
    io.field("Software", self.software);
    io.field("executedDate", self.executedDate);
    io.field("DUEPriority", self.DUEPriority);
    visitExecutor(io, self.executorType);
};

}  // namespace

BasicData::BasicData() : DataObject(3, 0) {}

bool BasicData::parseXMLElement(XMLElement element) {
    return detail::parseRecord(*this, rootElementName, element, visit);
}

XMLElement BasicData::appendXMLElement(XMLNode& parent) const {
    return detail::appendRecord(*this, rootElementName, parent, visit);
}

Description BasicData::describe() {
    return detail::describeRecord<BasicData>(rootElementName, visit);
}

colour BasicData::correlationTargetWhite_x() const {
    return detail::to_colour(detail::xyz, correlationTargetWhite.value, quantities::tristimulus.factor);
}

void BasicData::correlationTargetWhite_x(const colour& white) {
    correlationTargetWhite.set(detail::from_colour<unsigned int>(detail::xyz, white, quantities::tristimulus.factor));
}

colour BasicData::justCalibratedWhite_x() const {
    return detail::to_colour(detail::xyz, justCalibratedWhite.value, quantities::tristimulus.factor);
}

void BasicData::justCalibratedWhite_x(const colour& white) {
    justCalibratedWhite.set(detail::from_colour<unsigned int>(detail::xyz, white, quantities::tristimulus.factor));
}

bool operator==(const BasicData& left, const BasicData& right) {
    return detail::areEqualRecords(left, right, visit);
}

}  // namespace lv
