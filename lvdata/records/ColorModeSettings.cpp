#include <lvdata/core/detail/record.h>
#include <lvdata/records/ColorModeSettings.h>
#include <lvdata/records/types.h>

namespace lv {
namespace {

using detail::oneOf;

template <class Io, class Property>
void visitTarget(const Io& io, Property& targetSetting) {
    auto target = io.element("Target");
    target.constant("Type", "Lumivale");
    target.always().record(targetSetting);
}

constexpr auto visitRow = [](auto& io, auto& row) {
    io.attribute("Type", row.type);
    const std::string& type = row.type.value;
    io.field("Index", row.index, quantities::identifier);
    io.field("Name", row.name);
    io.field("Availability", row.availability);
    io.always()
        .writeWhen(oneOf(type, types::colorMode::standard, types::colorMode::syncSignal))
        .record(row.parameterSetting);
    visitTarget(io.writeWhen(oneOf(type, types::colorMode::calibration)), row.targetSetting);
    io.always().record(row.profilePolicy);
    return io.exists();
};

constexpr auto visit = [](auto& io, auto& self) {
    io.rows("ColorMode", self, visitRow);
};

}  // namespace

ColorModeSettings::ColorModeSettings() : DataArrayObject(2, 0) {}

bool ColorModeSettings::parseXMLElement(XMLElement element) {
    return detail::parseRecord(*this, rootElementName, element, visit);
}

XMLElement ColorModeSettings::appendXMLElement(XMLNode& parent) const {
    return detail::appendRecord(*this, rootElementName, parent, visit);
}

Description ColorModeSettings::describe() {
    return detail::describeRecord<ColorModeSettings>(rootElementName, visit);
}

bool operator==(const ColorModeSettingsObject& left, const ColorModeSettingsObject& right) {
    return detail::areEqual(left, right, visitRow);
}

bool operator==(const ColorModeSettings& left, const ColorModeSettings& right) {
    return detail::areEqualRecords(left, right, visit);
}

}  // namespace lv
