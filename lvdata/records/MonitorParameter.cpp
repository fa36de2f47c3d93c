#include <lvdata/core/detail/fixed_point.h>
#include <lvdata/core/detail/record.h>
#include <lvdata/core/detail/six_colours.h>
#include <lvdata/records/MonitorParameter.h>

namespace lv {
namespace {

constexpr double gammaFactor = 100.0;
constexpr double gainFactor = 1e6;
constexpr double matrixFactor = 1e6;
constexpr std::size_t matrixLength = 9;

double tableFactor(const MonitorParameter& self) {
    return self.isHDRLUT.value == 1 ? 1e9 : 1e6;
}

template <class Io, class Table>
void visitTable(Io& io, const char* name, Table& table) {
    io.array(name, table, {256, 1024});
}

template <class Io, class Group>
void visitColours(Io& io, Group& group, const detail::SixNames& names) {
    io.group(group, [&names](auto& inner, auto& colours) { return detail::visitSixColours(inner, colours, names); });
}

constexpr auto visit = [](auto& io, auto& self) {
    io.field("Brightness", self.brightness);
    io.field("Contrast", self.contrast);
    io.field("isHDRLUT", self.isHDRLUT);
    visitTable(io, "RedLUT", self.redLUT);
    visitTable(io, "GreenLUT", self.greenLUT);
    visitTable(io, "BlueLUT", self.blueLUT);
    io.field("HLGSystemGamma", self.hlgSystemGamma);
    io.field("HLGClipping", self.hlgClipping);
    visitColours(io, self.hue, {"RedHue", "GreenHue", "BlueHue", "CyanHue", "MagentaHue", "YellowHue"});
    visitColours(io, self.saturation,
                 {"RedSaturation", "GreenSaturation", "BlueSaturation", "CyanSaturation", "MagentaSaturation",
                  "YellowSaturation"});
    visitColours(
        io, self.lightness,
        {"RedLightness", "GreenLightness", "BlueLightness", "CyanLightness", "MagentaLightness", "YellowLightness"});
    io.field("RedGain", self.redGain);
    io.field("GreenGain", self.greenGain);
    io.field("BlueGain", self.blueGain);
    io.array("EmulationMatrix", self.emulationMatrix, {matrixLength});
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
    return detail::from_fixed(hlgSystemGamma.value, gammaFactor);
}

void MonitorParameter::hlgSystemGamma_x(double exponent) {
    hlgSystemGamma.set(detail::to_fixed<unsigned int>(exponent, gammaFactor));
}

double MonitorParameter::redGain_x() const {
    return detail::from_fixed(redGain.value, gainFactor);
}

void MonitorParameter::redGain_x(double gain) {
    redGain.set(detail::to_fixed<unsigned int>(gain, gainFactor));
}

double MonitorParameter::greenGain_x() const {
    return detail::from_fixed(greenGain.value, gainFactor);
}

void MonitorParameter::greenGain_x(double gain) {
    greenGain.set(detail::to_fixed<unsigned int>(gain, gainFactor));
}

double MonitorParameter::blueGain_x() const {
    return detail::from_fixed(blueGain.value, gainFactor);
}

void MonitorParameter::blueGain_x(double gain) {
    blueGain.set(detail::to_fixed<unsigned int>(gain, gainFactor));
}

std::vector<double> MonitorParameter::emulationMatrix_x() const {
    return detail::from_fixed(emulationMatrix.value, matrixFactor);
}

void MonitorParameter::emulationMatrix_x(const std::vector<double>& entries) {
    emulationMatrix.set(detail::to_fixed<int>(entries, matrixFactor));
}

}  // namespace lv
