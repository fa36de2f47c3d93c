#include <lvdata/core/detail/array_lengths.h>
#include <lvdata/core/detail/fixed_point.h>
#include <lvdata/core/detail/record.h>
#include <lvdata/core/detail/six_colours.h>
#include <lvdata/records/MonitorParameter.h>
#include <lvdata/records/types.h>

namespace lv {
namespace {

using detail::choose;
using detail::oneOf;
using detail::when;

auto quantityOfTables(const MonitorParameter& self) {
    return choose(quantities::tableEntry,
                  when(oneOf(self.isHDRLUT.value, types::tableScale::hdr), quantities::hdrTableEntry));
}

std::uint32_t tableFactor(const MonitorParameter& self) {
    return self.tableQuantity().factor;
}

template <class Io, class Self, class Table>
void visitTable(Io& io, const char* name, const Self& self, Table& table) {
    io.array(name, table, detail::tableLengths, quantityOfTables(self));
}

template <class Io, class Group>
void visitColours(Io& io, Group& group, const detail::SixNames& names) {
    io.group(group, [&names](auto& inner, auto& colours) { return detail::visitSixColours(inner, colours, names); });
}

constexpr detail::SixNames hueNames = {"RedHue", "GreenHue", "BlueHue", "CyanHue", "MagentaHue", "YellowHue"};

constexpr auto visit = [](auto& io, auto& self) {
    io.field("Brightness", self.brightness);
    io.field("Contrast", self.contrast);
    io.field("isHDRLUT", self.isHDRLUT);
    visitTable(io, "RedLUT", self, self.redLUT);
    visitTable(io, "GreenLUT", self, self.greenLUT);
    visitTable(io, "BlueLUT", self, self.blueLUT);
    io.field("HLGSystemGamma", self.hlgSystemGamma, quantities::hlgSystemGamma);
    io.field("HLGClipping", self.hlgClipping);
    visitColours(io, self.hue, hueNames);
    visitColours(io, self.saturation,
                 {"RedSaturation", "GreenSaturation", "BlueSaturation", "CyanSaturation", "MagentaSaturation",
                  "YellowSaturation"});
    visitColours(
        io, self.lightness,
        {"RedLightness", "GreenLightness", "BlueLightness", "CyanLightness", "MagentaLightness", "YellowLightness"});
    io.field("RedGain", self.redGain, quantities::gain);
    io.field("GreenGain", self.greenGain, quantities::gain);
    io.field("BlueGain", self.blueGain, quantities::gain);
    io.array("EmulationMatrix", self.emulationMatrix, detail::matrixLengths, quantities::matrixEntry);
    io.field("Limited109Setting", self.limited109Setting);
};

}  // namespace

MonitorParameter::MonitorParameter() : DataObject(4, 0) {}

bool MonitorParameter::parseXMLElement(XMLElement element) {
    return detail::parseRecord(*this, rootElementName, element, visit);
}

XMLElement MonitorParameter::appendXMLElement(XMLNode& parent) const {
    return detail::appendRecord(*this, rootElementName, parent, visit);
}

Description MonitorParameter::describe() {
    return detail::describeRecord<MonitorParameter>(rootElementName, visit);
}

const Quantity& MonitorParameter::tableQuantity() const {
    return quantityOfTables(*this).chosen();
}

std::vector<double> MonitorParameter::redLUT_x() const {
    return detail::from_fixed(redLUT.value, tableFactor(*this));
}

void MonitorParameter::redLUT_x(const std::vector<double>& values) {
    redLUT.set(detail::to_fixed<unsigned int>(values, tableFactor(*this)));
}

std::vector<double> MonitorParameter::greenLUT_x() const {
    return detail::from_fixed(greenLUT.value, tableFactor(*this));
}

void MonitorParameter::greenLUT_x(const std::vector<double>& values) {
    greenLUT.set(detail::to_fixed<unsigned int>(values, tableFactor(*this)));
}

std::vector<double> MonitorParameter::blueLUT_x() const {
    return detail::from_fixed(blueLUT.value, tableFactor(*this));
}

void MonitorParameter::blueLUT_x(const std::vector<double>& values) {
    blueLUT.set(detail::to_fixed<unsigned int>(values, tableFactor(*this)));
}

double MonitorParameter::hlgSystemGamma_x() const {
    return detail::from_fixed(hlgSystemGamma.value, quantities::hlgSystemGamma.factor);
}

void MonitorParameter::hlgSystemGamma_x(double exponent) {
    hlgSystemGamma.set(detail::to_fixed<unsigned int>(exponent, quantities::hlgSystemGamma.factor));
}

double MonitorParameter::redGain_x() const {
    return detail::from_fixed(redGain.value, quantities::gain.factor);
}

void MonitorParameter::redGain_x(double gain) {
    redGain.set(detail::to_fixed<unsigned int>(gain, quantities::gain.factor));
}

double MonitorParameter::greenGain_x() const {
    return detail::from_fixed(greenGain.value, quantities::gain.factor);
}

void MonitorParameter::greenGain_x(double gain) {
    greenGain.set(detail::to_fixed<unsigned int>(gain, quantities::gain.factor));
}

double MonitorParameter::blueGain_x() const {
    return detail::from_fixed(blueGain.value, quantities::gain.factor);
}

void MonitorParameter::blueGain_x(double gain) {
    blueGain.set(detail::to_fixed<unsigned int>(gain, quantities::gain.factor));
}

std::vector<double> MonitorParameter::emulationMatrix_x() const {
    return detail::from_fixed(emulationMatrix.value, quantities::matrixEntry.factor);
}

void MonitorParameter::emulationMatrix_x(const std::vector<double>& entries) {
    emulationMatrix.set(detail::to_fixed<int>(entries, quantities::matrixEntry.factor));
}

bool operator==(const MonitorParameter::six_colors_t& left, const MonitorParameter::six_colors_t& right) {
    return detail::areEqual(left, right,
                            [](auto& io, auto& colours) { detail::visitSixColours(io, colours, hueNames); });
}

bool operator==(const MonitorParameter& left, const MonitorParameter& right) {
    return detail::areEqualRecords(left, right, visit);
}

}  // namespace lv
