#include <lvdata/core/detail/record.h>
#include <lvdata/records/ColorModeSettings.h>

namespace lv {
namespace {

template <class Io, class Property>
void visitTarget(const Io& io, Property& targetSetting) {
    auto target = io.element("Target");
    target.constant("Type", "Lumivale");
    target.always().record(targetSetting);
}

constexpr auto visitRow = [](auto& io, auto& row) {
    io.attribute("Type", row.type);
    const std::string& type = row.type.value;
    io.field("Index", row.index);
    io.field("Name", row.name);
    io.field("Availability", row.availability);
    io.always().writeWhen(type == "Standard" || type == "SyncSignal").record(row.parameterSetting);
    visitTarget(io.writeWhen(type == "Calibration"), row.targetSetting);
    io.always().record(row.profilePolicy);
    return true;
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

}  // namespace lv
