#include <lvdata/core/detail/fixed_point.h>
#include <lvdata/core/detail/record.h>
#include <lvdata/records/ParameterSetting.h>

namespace lv {
namespace {

constexpr double gammaFactor = 100.0;

constexpr auto visitBrightness = [](auto& io, auto& brightness) {
    io.attribute("Type", brightness.type);
    const std::string& type = brightness.type;
    io.readWhen(type != "SyncSignal")
        .writeWhen(type == "Candela" || type == "Percent")
        .value("Value", brightness.value);
    return io.exists();
};

constexpr auto visitWhitePoint = [](auto& io, auto& whitePoint) {
    io.attribute("Type", whitePoint.type);
    const std::string& type = whitePoint.type;
    io.writeWhen(type == "Temperature").value("Temperature", whitePoint.temperature);
    io.writeWhen(type == "Fixed").value("Fixed", whitePoint.fixed);
    return io.exists();
};

constexpr auto visitGamma = [](auto& io, auto& gamma) {
    io.attribute("Type", gamma.type);
    const std::string& type = gamma.type;
    auto values = io.readWhen(type != "SyncSignal");
    values.writeWhen(type == "Value").value("Value", gamma.value);
    auto fixed = values.writeWhen(type == "Fixed");
    fixed.value("Fixed", gamma.fixed);
    const bool clips = gamma.fixed == "HLG" || gamma.fixed == "PQ";
    fixed.writeWhen(clips).value("PQHLGClipping", gamma.pqhlgClipping);
    values.writeWhen(io.writesHLGSystemGamma()).value("HLGSystemGamma", gamma.hlgSystemGamma);
    return io.exists();
};

constexpr auto visitGamut = [](auto& io, auto& gamut) {
    io.attribute("Type", gamut.type);
    const std::string& type = gamut.type;
    io.readWhen(type != "SyncSignal").writeWhen(type == "Fixed").value("Fixed", gamut.fixed);
    io.value("Clipping", gamut.clipping);
    return io.exists();
};

constexpr auto visit = [](auto& io, auto& self) {
    io.always().structure("Brightness", self.brightness, visitBrightness);
    io.always().structure("WhitePoint", self.whitePoint, visitWhitePoint);
    io.always().structure("Gamma", self.gamma, visitGamma);
    io.always().structure("Gamut", self.gamut, visitGamut);
    io.field("Limited109Setting", self.limited109Setting);
};

}  // namespace

double ParameterSetting::gamma_t::value_x() const {
    return detail::from_fixed(value, gammaFactor);
}

void ParameterSetting::gamma_t::value_x(double exponent) {
    value = detail::to_fixed<unsigned int>(exponent, gammaFactor);
}

double ParameterSetting::gamma_t::hlgSystemGamma_x() const {
    return detail::from_fixed(hlgSystemGamma, gammaFactor);
}

void ParameterSetting::gamma_t::hlgSystemGamma_x(double exponent) {
    hlgSystemGamma = detail::to_fixed<unsigned int>(exponent, gammaFactor);
}

ParameterSetting::ParameterSetting() : DataObject(2, 0) {}

bool ParameterSetting::parseXMLElement(XMLElement element) {
    return detail::parseRecord(*this, rootElementName, element, visit);
}

XMLElement ParameterSetting::appendXMLElement(XMLNode& parent) const {
    return detail::appendRecord(*this, rootElementName, parent, visit);
}

}  // namespace lv
