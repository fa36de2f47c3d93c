#pragma once

#include <tests/support/Member.h>
#include <tests/support/six_colours.h>

#include <lvdata/records/TargetSetting.h>

namespace lv::test {

inline void members(MemberList& list, TargetSetting::level_t& level) {
    list.add("type", level.type);
    list.add("value", level.value);
}

inline void members(MemberList& list, TargetSetting::standard_t& named) {
    list.add("type", named.type);
    list.add("standard", named.standard);
}

inline void members(MemberList& list, TargetSetting::white_point_t& whitePoint) {
    list.add("type", whitePoint.type);
    list.add("temperature", whitePoint.temperature);
    list.add("x", whitePoint.x);
    list.add("y", whitePoint.y);
}

inline void members(MemberList& list, TargetSetting::gamma_t::gamma_color& color) {
    list.add("type", color.type);
    list.add("formula", color.formula);
    list.add("lut", color.lut);
    list.add("lut24", color.lut24);
}

inline void members(MemberList& list, TargetSetting::gamma_t::imported_lut_file& file) {
    list.add("fileName", file.fileName);
}

inline void members(MemberList& list, TargetSetting::gamma_t& gamma) {
    list.add("red", gamma.red);
    list.add("green", gamma.green);
    list.add("blue", gamma.blue);
    list.add("pqhlgClipping", gamma.pqhlgClipping);
    list.add("hlgSystemGamma", gamma.hlgSystemGamma);
    list.add("importedLutFile", gamma.importedLutFile);
}

inline void members(MemberList& list, TargetSetting::gamut_t::coordinate& primary) {
    list.add("x", primary.x);
    list.add("y", primary.y);
}

inline void members(MemberList& list, TargetSetting::gamut_t& gamut) {
    list.add("red", gamut.red);
    list.add("green", gamut.green);
    list.add("blue", gamut.blue);
    list.add("profileName", gamut.profileName);
    list.add("gamutClipping", gamut.gamutClipping);
}

inline void members(MemberList& list, TargetSetting::black_level_t& tint) {
    list.add("red", tint.red);
    list.add("green", tint.green);
    list.add("blue", tint.blue);
}

inline void members(MemberList& list, TargetSetting::advanced_settings_t::advanced_settings_six_colors_t& colours) {
    membersOfSixColours(list, colours);
}

inline void members(MemberList& list, TargetSetting::advanced_settings_t& settings) {
    list.add("hue", settings.hue);
    list.add("saturation", settings.saturation);
    list.add("blackLevel", settings.blackLevel);
    list.add("sixColorsHue", settings.sixColorsHue);
    list.add("sixColorsSaturation", settings.sixColorsSaturation);
    list.add("sixColorsLightness", settings.sixColorsLightness);
}

inline void members(MemberList& list, TargetSetting& record) {
    list.addBase(record);
    list.add("lumivaleVersion", record.lumivaleVersion);
    list.add("fineContrast", record.fineContrast);
    list.add("brightness", record.brightness);
    list.add("blackLevel", record.blackLevel);
    list.add("whitePoint", record.whitePoint);
    list.add("whitePointV7", record.whitePointV7);
    list.add("gamma", record.gamma);
    list.add("gammaV7", record.gammaV7);
    list.add("gamut", record.gamut);
    list.add("gamutV7", record.gamutV7);
    list.add("grayBalance", record.grayBalance);
    list.add("creationType", record.creationType);
    list.add("advancedSettings", record.advancedSettings);
    list.add("optimizeForLimited109", record.optimizeForLimited109);
}

}  // namespace lv::test
