#include <lvdata/core/detail/fixed_point.h>
#include <lvdata/core/detail/record.h>
#include <lvdata/records/ParameterSetting.h>
#include <lvdata/records/types.h>

namespace lv {
namespace {

using detail::choose;
using detail::HLGSwitch;
using detail::noneOf;
using detail::oneOf;
using detail::when;

constexpr auto visitBrightness = [](auto& io, auto& brightness) {
    io.attribute("Type", brightness.type);
    const std::string& type = brightness.type;
    const auto quantity = choose(quantities::number, when(oneOf(type, types::brightness::candela), quantities::candela),
                                 when(oneOf(type, types::brightness::percent), quantities::percent));
    io.readWhen(noneOf(type, types::brightness::syncSignal))
        .writeWhen(oneOf(type, types::brightness::candela, types::brightness::percent))
        .value("Value", brightness.value, quantity);
    return io.exists();
};

constexpr auto visitWhitePoint = [](auto& io, auto& whitePoint) {
    io.attribute("Type", whitePoint.type);
    const std::string& type = whitePoint.type;
    io.writeWhen(oneOf(type, types::whitePoint::temperature)).value("Temperature", whitePoint.temperature);
    io.writeWhen(oneOf(type, types::whitePoint::fixed)).value("Fixed", whitePoint.fixed);
    return io.exists();
};

constexpr auto visitGamma = [](auto& io, auto& gamma) {
    io.attribute("Type", gamma.type);
    const std::string& type = gamma.type;
    auto values = io.readWhen(noneOf(type, types::gamma::syncSignal));
    values.writeWhen(oneOf(type, types::gamma::value)).value("Value", gamma.value, quantities::gamma);
    auto fixed = values.writeWhen(oneOf(type, types::gamma::fixed));
    fixed.value("Fixed", gamma.fixed);
    fixed.writeWhen(oneOf(gamma.fixed, types::fixedGamma::hlg, types::fixedGamma::pq))
        .value("PQHLGClipping", gamma.pqhlgClipping);
    values.writeWhen(HLGSwitch()).value("HLGSystemGamma", gamma.hlgSystemGamma, quantities::hlgSystemGamma);
    return io.exists();
};

constexpr auto visitGamut = [](auto& io, auto& gamut) {
    io.attribute("Type", gamut.type);
    const std::string& type = gamut.type;
    io.readWhen(noneOf(type, types::gamut::syncSignal))
        .writeWhen(oneOf(type, types::gamut::fixed))
        .value("Fixed", gamut.fixed);
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
    return detail::from_fixed(value, quantities::gamma.factor);
}

void ParameterSetting::gamma_t::value_x(double exponent) {
    value = detail::to_fixed<unsigned int>(exponent, quantities::gamma.factor);
}

double ParameterSetting::gamma_t::hlgSystemGamma_x() const {
    return detail::from_fixed(hlgSystemGamma, quantities::hlgSystemGamma.factor);
}

void ParameterSetting::gamma_t::hlgSystemGamma_x(double exponent) {
    hlgSystemGamma = detail::to_fixed<unsigned int>(exponent, quantities::hlgSystemGamma.factor);
}

ParameterSetting::ParameterSetting() : DataObject(2, 0) {}

bool ParameterSetting::parseXMLElement(XMLElement element) {
    return detail::parseRecord(*this, rootElementName, element, visit);
}

XMLElement ParameterSetting::appendXMLElement(XMLNode& parent) const {
    return detail::appendRecord(*this, rootElementName, parent, visit);
}

Description ParameterSetting::describe() {
    return detail::describeRecord<ParameterSetting>(rootElementName, visit);
}

bool operator==(const ParameterSetting::brightness_t& left, const ParameterSetting::brightness_t& right) {
    return detail::areEqual(left, right, visitBrightness);
}

bool operator==(const ParameterSetting::white_point_t& left, const ParameterSetting::white_point_t& right) {
    return detail::areEqual(left, right, visitWhitePoint);
}

bool operator==(const ParameterSetting::gamma_t& left, const ParameterSetting::gamma_t& right) {
    return detail::areEqual(left, right, visitGamma);
}

bool operator==(const ParameterSetting::gamut_t& left, const ParameterSetting::gamut_t& right) {
    return detail::areEqual(left, right, visitGamut);
}

bool operator==(const ParameterSetting& left, const ParameterSetting& right) {
    return detail::areEqualRecords(left, right, visit);
}

}  // namespace lv
