#include <lvdata/core/detail/record.h>
#include <lvdata/core/detail/six_colours.h>
#include <lvdata/records/TargetSetting.h>

namespace lv {
namespace {

constexpr auto visitLevel = [](auto& io, auto& level) {
    const bool found = io.attribute("Type", level.type);
    io.writeWhen(level.type == "Value").value("Value", level.value);
    return found;
};

constexpr auto visitStandard = [](auto& io, auto& named) {
    const bool found = io.attribute("Type", named.type);
    io.writeWhen(named.type == "Standard").value("Standard", named.standard);
    return found;
};

template <class Io, class Chromaticity>
void visitChromaticity(Io& io, Chromaticity& chromaticity) {
    io.value("x", chromaticity.x);
    io.value("y", chromaticity.y);
}

constexpr auto visitWhitePoint = [](auto& io, auto& whitePoint) {
    const bool found = io.attribute("Type", whitePoint.type);
    io.writeWhen(whitePoint.type == "Temperature").value("Temperature", whitePoint.temperature);
    auto coordinate = io.writeWhen(whitePoint.type == "Coordinate");
    visitChromaticity(coordinate, whitePoint);
    return found;
};

template <class Io, class Color>
Io visitGammaColor(const Io& io, const char* name, Color& color) {
    Io curve = io.element(name);
    curve.attribute("Type", color.type);
    curve.writeWhen(color.type == "Formula").value("Formula", color.formula);
    curve.writeWhen(color.type == "Lut").value("Lut", color.lut);
    curve.writeWhen(color.type == "Lut24").value("Lut24", color.lut24);
    return curve;
}

constexpr auto visitGamma = [](auto& io, auto& gamma) {
    const bool red = visitGammaColor(io, "Red", gamma.red).exists();
    const bool green = visitGammaColor(io, "Green", gamma.green).exists();
    const bool blue = visitGammaColor(io, "Blue", gamma.blue).exists();
    const std::string& type = gamma.red.type;
    io.writeWhen(type == "PQ" || type == "HLG").value("PQHLGClipping", gamma.pqhlgClipping);
    io.writeWhen(io.writesHLGSystemGamma()).value("HLGSystemGamma", gamma.hlgSystemGamma);
    auto& file = gamma.importedLutFile;
    const bool imported = !file.fileName.empty() && (type == "Lut" || type == "Lut24");
    io.writeWhen(imported).element("ImportedLutFile").value("FileName", file.fileName);
    return red || green || blue;
};

template <class Io, class Coordinate>
Io visitPrimary(const Io& io, const char* name, Coordinate& primary) {
    Io element = io.element(name);
    element.constant("Type", "Coordinate");
    visitChromaticity(element, primary);
    return element;
}

constexpr auto visitGamut = [](auto& io, auto& gamut) {
    const auto primaries = io.writeWhen(!gamut.isNative());
    visitPrimary(primaries, "Red", gamut.red);
    visitPrimary(primaries, "Green", gamut.green);
    visitPrimary(primaries, "Blue", gamut.blue);
    io.writeWhen(!gamut.profileName.empty()).value("ProfileName", gamut.profileName);
    io.element("GamutClipping").value("Value", gamut.gamutClipping);
    return io.exists();
};

constexpr auto visitBlackLevel = [](auto& io, auto& tint) {
    bool any = io.value("red", tint.red);
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
    const bool anyColors =
        settings.sixColorsHue.hasValue || settings.sixColorsSaturation.hasValue || settings.sixColorsLightness.hasValue;
    auto sixColors = element.writeWhen(anyColors).element("sixColors");
    sixColors.structure("hue", settings.sixColorsHue, visitSixColors);
    sixColors.structure("saturation", settings.sixColorsSaturation, visitSixColors);
    sixColors.structure("lightness", settings.sixColorsLightness, visitSixColors);
    return element;
}

template <class Io, class Property>
void visitOptionalAdvancedSettings(Io& io, Property& settings) {
    const bool found = visitAdvancedSettings(io.writeWhen(settings.hasValue), settings.value).exists();
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
    io.writeWhen(self.grayBalance.hasValue).element("GrayBalance").field("Type", self.grayBalance);
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

}  // namespace lv
