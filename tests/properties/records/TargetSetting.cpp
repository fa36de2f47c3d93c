#include <tests/properties/records.h>

namespace lv::test {
namespace {

using Settings = TargetSetting::advanced_settings_t;
using SixColours = Settings::advanced_settings_six_colors_t;
using GammaColour = TargetSetting::gamma_t::gamma_color;
using Primary = TargetSetting::gamut_t::coordinate;

void loseInLevel(TargetSetting::level_t& level) {
    keepWhen(level.type == "Value", level.value);
}

void loseInStandard(TargetSetting::standard_t& named) {
    keepWhen(named.type == "Standard", named.standard);
}

void loseInWhitePoint(TargetSetting::white_point_t& whitePoint) {
    keepWhen(whitePoint.type == "Temperature", whitePoint.temperature);
    keepWhen(whitePoint.type == "Coordinate", whitePoint.x);
    keepWhen(whitePoint.type == "Coordinate", whitePoint.y);
}

void loseInGamma(TargetSetting::gamma_t& gamma, bool hlgSwitch) {
    for (GammaColour* colour : {&gamma.red, &gamma.green, &gamma.blue}) {
        keepWhen(colour->type == "Formula", colour->formula);
        keepWhen(colour->type == "Lut", colour->lut);
        keepWhen(colour->type == "Lut24", colour->lut24);
    }
    const std::string& type = gamma.red.type;
    keepWhen(type == "PQ" || type == "HLG", gamma.pqhlgClipping);
    keepWhen(hlgSwitch, gamma.hlgSystemGamma);
    keepWhen(type == "Lut" || type == "Lut24", gamma.importedLutFile.fileName);
}

/// One coordinate of 0 loses them all.
void loseInGamut(TargetSetting::gamut_t& gamut) {
    bool allCount = true;
    for (const Primary* primary : {&gamut.red, &gamut.green, &gamut.blue}) {
        allCount = allCount && primary->x != 0 && primary->y != 0;
    }
    for (Primary* primary : {&gamut.red, &gamut.green, &gamut.blue}) {
        keepWhen(allCount, *primary);
    }
}

void readLevel(const Found& element, property<TargetSetting::level_t>& level) {
    level.hasValue = element.attribute("Type", level.value.type);
    element("Value", level.value.value);
}

void readStandard(const Found& element, property<TargetSetting::standard_t>& named) {
    named.hasValue = element.attribute("Type", named.value.type);
    element("Standard", named.value.standard);
}

void readWhitePoint(const Found& element, property<TargetSetting::white_point_t>& whitePoint) {
    whitePoint.hasValue = element.attribute("Type", whitePoint.value.type);
    element("Temperature", whitePoint.value.temperature);
    element("x", whitePoint.value.x);
    element("y", whitePoint.value.y);
}

void readGammaColour(const Found& element, GammaColour& colour) {
    element.attribute("Type", colour.type);
    element("Formula", colour.formula);
    element("Lut", colour.lut);
    element("Lut24", colour.lut24);
}

void readGamma(const Found& element, property<TargetSetting::gamma_t>& gamma) {
    gamma.hasValue = element.child("Red").exists() || element.child("Green").exists() || element.child("Blue").exists();
    readGammaColour(element.child("Red"), gamma.value.red);
    readGammaColour(element.child("Green"), gamma.value.green);
    readGammaColour(element.child("Blue"), gamma.value.blue);
    element("PQHLGClipping", gamma.value.pqhlgClipping);
    element("HLGSystemGamma", gamma.value.hlgSystemGamma);
    element.child("ImportedLutFile")("FileName", gamma.value.importedLutFile.fileName);
}

void readPrimary(const Found& element, Primary& primary) {
    element("x", primary.x);
    element("y", primary.y);
}

void readGamut(const Found& element, property<TargetSetting::gamut_t>& gamut) {
    gamut.hasValue = element.exists();
    readPrimary(element.child("Red"), gamut.value.red);
    readPrimary(element.child("Green"), gamut.value.green);
    readPrimary(element.child("Blue"), gamut.value.blue);
    element("ProfileName", gamut.value.profileName);
    element.child("GamutClipping")("Value", gamut.value.gamutClipping);
}

void readBlackLevel(const Found& element, property<TargetSetting::black_level_t>& tint) {
    bool any = element("red", tint.value.red);
    any = element("green", tint.value.green) || any;
    any = element("blue", tint.value.blue) || any;
    tint.hasValue = any;
}

void readSix(const Found& element, property<SixColours>& colours) {
    bool any = element("red", colours.value.red);
    any = element("green", colours.value.green) || any;
    any = element("blue", colours.value.blue) || any;
    any = element("cyan", colours.value.cyan) || any;
    any = element("magenta", colours.value.magenta) || any;
    any = element("yellow", colours.value.yellow) || any;
    colours.hasValue = any;
}

void readAdvancedSettings(const Found& element, property<Settings>& settings) {
    settings.hasValue = element.exists();
    element("hue", settings.value.hue);
    element("saturation", settings.value.saturation);
    readBlackLevel(element.child("blackLevel"), settings.value.blackLevel);
    const Found sixColours = element.child("sixColors");
    readSix(sixColours.child("hue"), settings.value.sixColorsHue);
    readSix(sixColours.child("saturation"), settings.value.sixColorsSaturation);
    readSix(sixColours.child("lightness"), settings.value.sixColorsLightness);
}

}  // namespace

void members(Members& visit, TargetSetting::level_t& level) {
    visit(level.type, attribute({"Value"}));
    visit(level.value);
}

void members(Members& visit, TargetSetting::standard_t& named) {
    visit(named.type, attribute({"Standard"}));
    visit(named.standard);
}

void members(Members& visit, TargetSetting::white_point_t& whitePoint) {
    visit(whitePoint.type, attribute({"Temperature", "Coordinate"}));
    visit.all(whitePoint.temperature, whitePoint.x, whitePoint.y);
}

void members(Members& visit, GammaColour& colour) {
    visit(colour.type, attribute({"Formula", "Lut", "Lut24", "PQ", "HLG"}));
    visit.all(colour.formula, colour.lut, colour.lut24);
}

void members(Members& visit, TargetSetting::gamma_t& gamma) {
    visit.all(gamma.red, gamma.green, gamma.blue);
    visit.all(gamma.pqhlgClipping, gamma.hlgSystemGamma, gamma.importedLutFile.fileName);
}

void members(Members& visit, Primary& primary) {
    visit.all(primary.x, primary.y);
}

void members(Members& visit, TargetSetting::gamut_t& gamut) {
    visit.all(gamut.red, gamut.green, gamut.blue, gamut.profileName, gamut.gamutClipping);
}

void members(Members& visit, TargetSetting::black_level_t& tint) {
    visit.all(tint.red, tint.green, tint.blue);
}

void members(Members& visit, SixColours& colours) {
    visit.all(colours.red, colours.green, colours.blue, colours.cyan, colours.magenta, colours.yellow);
}

void members(Members& visit, Settings& settings) {
    visit.all(settings.hue, settings.saturation, settings.blackLevel);
    visit.all(settings.sixColorsHue, settings.sixColorsSaturation, settings.sixColorsLightness);
}

void members(Members& visit, TargetSetting& record) {
    membersOfBase(visit, record);
    visit.all(record.lumivaleVersion, record.fineContrast, record.brightness, record.blackLevel);
    visit.all(record.whitePoint, record.whitePointV7, record.gamma, record.gammaV7, record.gamut, record.gamutV7);
    visit.all(record.grayBalance, record.creationType, record.advancedSettings, record.optimizeForLimited109);
}

void lose(TargetSetting& record, bool hlgSwitch) {
    loseInLevel(record.brightness.value);
    loseInLevel(record.blackLevel.value);
    loseInWhitePoint(record.whitePoint.value);
    loseInStandard(record.whitePointV7.value);
    loseInGamma(record.gamma.value, hlgSwitch);
    loseInStandard(record.gammaV7.value);
    loseInGamut(record.gamut.value);
    loseInStandard(record.gamutV7.value);
    loseInGeneral(record);
}

void read(const Found& element, TargetSetting& record) {
    element("LumivaleVersion", record.lumivaleVersion);
    element("FineContrast", record.fineContrast);
    readLevel(element.child("Brightness"), record.brightness);
    readLevel(element.child("BlackLevel"), record.blackLevel);
    readWhitePoint(element.child("WhitePoint"), record.whitePoint);
    readStandard(element.child("WhitePointV7"), record.whitePointV7);
    readGamma(element.child("Gamma"), record.gamma);
    readStandard(element.child("GammaV7"), record.gammaV7);
    readGamut(element.child("Gamut"), record.gamut);
    readStandard(element.child("GamutV7"), record.gamutV7);
    element.child("GrayBalance")("Type", record.grayBalance);
    element("CreationType", record.creationType);
    readAdvancedSettings(element.child("AdvancedSettings"), record.advancedSettings);
    element("OptimizeForLimited109", record.optimizeForLimited109);
}

}  // namespace lv::test
