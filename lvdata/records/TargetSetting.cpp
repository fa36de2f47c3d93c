#include <lvdata/core/detail/record.h>
#include <lvdata/core/detail/six_colours.h>
#include <lvdata/records/TargetSetting.h>
#include <lvdata/records/types.h>

namespace lv {
namespace {

using detail::anyOf;
using detail::HLGSwitch;
using detail::isSet;
using detail::notEmpty;
using detail::oneOf;
using detail::rule;

constexpr auto visitLevel = [](auto& io, auto& level) {
    const auto found = io.attribute("Type", level.type);
    io.writeWhen(oneOf(level.type, types::targetLevel::value)).value("Value", level.value);
    return found;
};

constexpr auto visitStandard = [](auto& io, auto& named) {
    const auto found = io.attribute("Type", named.type);
    io.writeWhen(oneOf(named.type, types::targetStandard::standard)).value("Standard", named.standard);
    return found;
};

template <class Io, class Chromaticity>
void visitChromaticity(Io& io, Chromaticity& chromaticity) {
    io.value("x", chromaticity.x, quantities::chromaticity);
    io.value("y", chromaticity.y, quantities::chromaticity);
}

constexpr auto visitWhitePoint = [](auto& io, auto& whitePoint) {
    const auto found = io.attribute("Type", whitePoint.type);
    io.writeWhen(oneOf(whitePoint.type, types::targetWhitePoint::temperature))
        .value("Temperature", whitePoint.temperature);
    auto coordinate = io.writeWhen(oneOf(whitePoint.type, types::targetWhitePoint::coordinate));
    visitChromaticity(coordinate, whitePoint);
    return found;
};

constexpr auto visitCurve = [](auto& io, auto& color) {
    io.attribute("Type", color.type);
    io.writeWhen(oneOf(color.type, types::targetCurve::formula)).value("Formula", color.formula, quantities::gamma);
    io.writeWhen(oneOf(color.type, types::targetCurve::lut)).value("Lut", color.lut, quantities::curveEntry16);
    io.writeWhen(oneOf(color.type, types::targetCurve::lut24)).value("Lut24", color.lut24, quantities::curveEntry24);
};

template <class Io, class Color>
Io visitGammaColor(const Io& io, const char* name, Color& color) {
    Io curve = io.element(name);
    visitCurve(curve, color);
    return curve;
}

template <class Io, class File>
void visitImportedLutFile(const Io& io, File& file) {
    io.writeWhen(notEmpty(file.fileName)).element("ImportedLutFile").value("FileName", file.fileName);
}

constexpr auto visitGamma = [](auto& io, auto& gamma) {
    auto any = visitGammaColor(io, "Red", gamma.red).exists();
    any |= visitGammaColor(io, "Green", gamma.green).exists();
    any |= visitGammaColor(io, "Blue", gamma.blue).exists();
    const std::string& type = gamma.red.type;
    io.writeWhen(oneOf(type, types::targetCurve::pq, types::targetCurve::hlg))
        .value("PQHLGClipping", gamma.pqhlgClipping);
    io.writeWhen(HLGSwitch()).value("HLGSystemGamma", gamma.hlgSystemGamma, quantities::hlgSystemGamma);
    visitImportedLutFile(io.writeWhen(oneOf(type, types::targetCurve::lut, types::targetCurve::lut24)),
                         gamma.importedLutFile);
    return any;
};

template <class Io, class Coordinate>
Io visitPrimary(const Io& io, const char* name, Coordinate& primary) {
    Io element = io.element(name);
    element.constant("Type", "Coordinate");
    visitChromaticity(element, primary);
    return element;
}

constexpr auto visitGamut = [](auto& io, auto& gamut) {
    const auto primaries = io.writeWhen(rule("no coordinate of the primaries is 0", !gamut.isNative(), gamut.red.x,
                                             gamut.red.y, gamut.green.x, gamut.green.y, gamut.blue.x, gamut.blue.y));
    visitPrimary(primaries, "Red", gamut.red);
    visitPrimary(primaries, "Green", gamut.green);
    visitPrimary(primaries, "Blue", gamut.blue);
    io.writeWhen(notEmpty(gamut.profileName)).value("ProfileName", gamut.profileName);
    io.element("GamutClipping").value("Value", gamut.gamutClipping);
    return io.exists();
};

constexpr auto visitBlackLevel = [](auto& io, auto& tint) {
    auto any = io.value("red", tint.red);
    any |= io.value("green", tint.green);
    any |= io.value("blue", tint.blue);
    return any;
};

constexpr auto visitSixColors = [](auto& io, auto& colors) {
    return detail::visitSixColours(io, colors, {"red", "green", "blue", "cyan", "magenta", "yellow"});
};

template <class Io, class Settings>
Io visitAdvancedSettings(const Io& io, Settings& settings) {
    Io element = io.element("AdvancedSettings");
    element.field("hue", settings.hue);
    element.field("saturation", settings.saturation);
    element.structure("blackLevel", settings.blackLevel, visitBlackLevel);
    const auto anyColors =
        anyOf(isSet(settings.sixColorsHue), isSet(settings.sixColorsSaturation), isSet(settings.sixColorsLightness));
    auto sixColors = element.writeWhen(anyColors).element("sixColors");
    sixColors.structure("hue", settings.sixColorsHue, visitSixColors);
    sixColors.structure("saturation", settings.sixColorsSaturation, visitSixColors);
    sixColors.structure("lightness", settings.sixColorsLightness, visitSixColors);
    return element;
}

template <class Io, class Property>
void visitOptionalAdvancedSettings(Io& io, Property& settings) {
    const auto found = visitAdvancedSettings(io.writeWhen(isSet(settings)), settings.value).exists();
    io.derive(settings.hasValue, found);
}

constexpr auto visit = [](auto& io, auto& self) {
    io.field("LumivaleVersion", self.lumivaleVersion);
    io.field("FineContrast", self.fineContrast);
    io.structure("Brightness", self.brightness, visitLevel);
    io.structure("BlackLevel", self.blackLevel, visitLevel);
    io.structure("WhitePoint", self.whitePoint, visitWhitePoint);
    io.structure("WhitePointV7", self.whitePointV7, visitStandard);
    io.structure("Gamma", self.gamma, visitGamma);
    io.structure("GammaV7", self.gammaV7, visitStandard);
    io.structure("Gamut", self.gamut, visitGamut);
    io.structure("GamutV7", self.gamutV7, visitStandard);
    io.writeWhen(isSet(self.grayBalance)).element("GrayBalance").field("Type", self.grayBalance);
    io.field("CreationType", self.creationType);
    visitOptionalAdvancedSettings(io, self.advancedSettings);
    io.field("OptimizeForLimited109", self.optimizeForLimited109);
};

}  // namespace

TargetSetting::TargetSetting() : DataObject(3, 2) {}

bool TargetSetting::parseXMLElement(XMLElement element) {
    return detail::parseRecord(*this, rootElementName, element, visit);
}

XMLElement TargetSetting::appendXMLElement(XMLNode& parent) const {
    return detail::appendRecord(*this, rootElementName, parent, visit);
}

Description TargetSetting::describe() {
    return detail::describeRecord<TargetSetting>(rootElementName, visit);
}

XMLElement TargetSetting::parseGammaElement(XMLElement& parent, const std::string& name,
                                            gamma_t::gamma_color& color) const {
    return visitGammaColor(detail::Reader(parent), name.c_str(), color).xmlElement();
}

XMLElement TargetSetting::appendGammaElement(XMLElement& parent, const std::string& name,
                                             const gamma_t::gamma_color& color) const {
    return visitGammaColor(detail::Writer(parent), name.c_str(), color).xmlElement();
}

XMLElement TargetSetting::parseGamutCoordinateElement(XMLElement& parent, const std::string& name,
                                                      gamut_t::coordinate& coordinate) const {
    return visitPrimary(detail::Reader(parent), name.c_str(), coordinate).xmlElement();
}

XMLElement TargetSetting::appendGamutCoordinateElement(XMLElement& parent, const std::string& name,
                                                       const gamut_t::coordinate& coordinate) const {
    return visitPrimary(detail::Writer(parent), name.c_str(), coordinate).xmlElement();
}

XMLElement TargetSetting::parseAdvancedSettingsElement(XMLElement& parent, advanced_settings_t& settings) const {
    return visitAdvancedSettings(detail::Reader(parent), settings).xmlElement();
}

XMLElement TargetSetting::appendAdvancedSettingElement(XMLElement& parent, const advanced_settings_t& settings) const {
    return visitAdvancedSettings(detail::Writer(parent), settings).xmlElement();
}

XMLElement TargetSetting::parseAdvancedSettingsSixColorsElement(
    XMLElement& sixColors, const std::string& name,
    property<advanced_settings_t::advanced_settings_six_colors_t>& target) const {
    detail::Reader io = detail::Reader(sixColors).element(name.c_str());
    io.group(target, visitSixColors);
    return io.xmlElement();
}

XMLElement TargetSetting::appendAdvancedSettingSixColorElement(
    XMLElement& sixColors, const std::string& name,
    const advanced_settings_t::advanced_settings_six_colors_t& values) const {
    detail::Writer io = detail::Writer(sixColors).element(name.c_str());
    visitSixColors(io, values);
    return io.xmlElement();
}

bool operator==(const TargetSetting::level_t& left, const TargetSetting::level_t& right) {
    return detail::areEqual(left, right, visitLevel);
}

bool operator==(const TargetSetting::standard_t& left, const TargetSetting::standard_t& right) {
    return detail::areEqual(left, right, visitStandard);
}

bool operator==(const TargetSetting::white_point_t& left, const TargetSetting::white_point_t& right) {
    return detail::areEqual(left, right, visitWhitePoint);
}

bool operator==(const TargetSetting::gamma_t::gamma_color& left, const TargetSetting::gamma_t::gamma_color& right) {
    return detail::areEqual(left, right, visitCurve);
}

bool operator==(const TargetSetting::gamma_t::imported_lut_file& left,
                const TargetSetting::gamma_t::imported_lut_file& right) {
    return detail::areEqual(left, right, [](auto& io, auto& file) { visitImportedLutFile(io, file); });
}

bool operator==(const TargetSetting::gamma_t& left, const TargetSetting::gamma_t& right) {
    return detail::areEqual(left, right, visitGamma);
}

bool operator==(const TargetSetting::gamut_t::coordinate& left, const TargetSetting::gamut_t::coordinate& right) {
    return detail::areEqual(left, right, [](auto& io, auto& primary) { visitChromaticity(io, primary); });
}

bool operator==(const TargetSetting::gamut_t& left, const TargetSetting::gamut_t& right) {
    return detail::areEqual(left, right, visitGamut);
}

bool operator==(const TargetSetting::black_level_t& left, const TargetSetting::black_level_t& right) {
    return detail::areEqual(left, right, visitBlackLevel);
}

bool operator==(const TargetSetting::advanced_settings_t::advanced_settings_six_colors_t& left,
                const TargetSetting::advanced_settings_t::advanced_settings_six_colors_t& right) {
    return detail::areEqual(left, right, visitSixColors);
}

bool operator==(const TargetSetting::advanced_settings_t& left, const TargetSetting::advanced_settings_t& right) {
    return detail::areEqual(left, right, [](auto& io, auto& settings) { visitAdvancedSettings(io, settings); });
}

bool operator==(const TargetSetting& left, const TargetSetting& right) {
    return detail::areEqualRecords(left, right, visit);
}

}  // namespace lv
