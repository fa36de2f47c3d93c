#include <lvdata/lvdata.h>

#include <gtest/gtest.h>

namespace lv {
namespace {

/// A value differs from a default one as soon as a member does.
template <class T, class Change>
void expectSeen(Change change) {
    T changed;
    change(changed);
    const T fresh;
    EXPECT_TRUE(fresh == T());
    EXPECT_FALSE(fresh != T());
    EXPECT_FALSE(changed == fresh);
    EXPECT_TRUE(changed != fresh);
    const property<T> unset;
    EXPECT_TRUE((unset != property<T>{changed, false}));
    EXPECT_TRUE((unset != property<T>{fresh, true}));
    EXPECT_TRUE((unset == property<T>{fresh, false}));
}

template <class SixColours>
void expectSeenInSixColours() {
    expectSeen<SixColours>([](auto& colours) { colours.red = 1; });
    expectSeen<SixColours>([](auto& colours) { colours.green = 1; });
    expectSeen<SixColours>([](auto& colours) { colours.blue = 1; });
    expectSeen<SixColours>([](auto& colours) { colours.cyan = 1; });
    expectSeen<SixColours>([](auto& colours) { colours.magenta = 1; });
    expectSeen<SixColours>([](auto& colours) { colours.yellow = 1; });
}

TEST(Equality, SeesEveryMemberOfSixColours) {
    expectSeenInSixColours<MonitorParameter::six_colors_t>();
    expectSeenInSixColours<TargetSetting::advanced_settings_t::advanced_settings_six_colors_t>();
}

TEST(Equality, SeesEveryMemberOfTheStructuresOfParameterSetting) {
    expectSeen<ParameterSetting::brightness_t>([](auto& brightness) { brightness.type = "Candela"; });
    expectSeen<ParameterSetting::brightness_t>([](auto& brightness) { brightness.value = 1; });
    expectSeen<ParameterSetting::white_point_t>([](auto& whitePoint) { whitePoint.type = "Fixed"; });
    expectSeen<ParameterSetting::white_point_t>([](auto& whitePoint) { whitePoint.temperature = 1; });
    expectSeen<ParameterSetting::white_point_t>([](auto& whitePoint) { whitePoint.fixed = "D65"; });
    expectSeen<ParameterSetting::gamma_t>([](auto& gamma) { gamma.type = "Fixed"; });
    expectSeen<ParameterSetting::gamma_t>([](auto& gamma) { gamma.value = 220; });
    expectSeen<ParameterSetting::gamma_t>([](auto& gamma) { gamma.fixed = "PQ"; });
    expectSeen<ParameterSetting::gamma_t>([](auto& gamma) { gamma.pqhlgClipping = "1"; });
    expectSeen<ParameterSetting::gamma_t>([](auto& gamma) { gamma.hlgSystemGamma = 120; });
    expectSeen<ParameterSetting::gamut_t>([](auto& gamut) { gamut.type = "Fixed"; });
    expectSeen<ParameterSetting::gamut_t>([](auto& gamut) { gamut.fixed = "sRGB"; });
    expectSeen<ParameterSetting::gamut_t>([](auto& gamut) { gamut.clipping = 1; });
}

TEST(Equality, SeesEveryMemberOfTheStructuresOfProfileData) {
    expectSeen<ProfileData::xyz_set_t>([](auto& set) { set.red = {1}; });
    expectSeen<ProfileData::xyz_set_t>([](auto& set) { set.green = {1}; });
    expectSeen<ProfileData::xyz_set_t>([](auto& set) { set.blue = {1}; });
    expectSeen<ProfileData::xyz_set_t>([](auto& set) { set.white = {1}; });
    expectSeen<ProfileData::xyz_set_t>([](auto& set) { set.black = {1}; });
    expectSeen<ProfileData::target_curve>([](auto& curve) { curve.type = "Lut"; });
    expectSeen<ProfileData::target_curve>([](auto& curve) { curve.formula = 1; });
    expectSeen<ProfileData::target_curve>([](auto& curve) { curve.lut = {1}; });
}

TEST(Equality, SeesEveryMemberOfTheStructuresOfTargetSetting) {
    expectSeen<TargetSetting::level_t>([](auto& level) { level.type = "Value"; });
    expectSeen<TargetSetting::level_t>([](auto& level) { level.value = 1; });
    expectSeen<TargetSetting::standard_t>([](auto& named) { named.type = "Standard"; });
    expectSeen<TargetSetting::standard_t>([](auto& named) { named.standard = "D65"; });
    expectSeen<TargetSetting::white_point_t>([](auto& whitePoint) { whitePoint.type = "Coordinate"; });
    expectSeen<TargetSetting::white_point_t>([](auto& whitePoint) { whitePoint.temperature = 1; });
    expectSeen<TargetSetting::white_point_t>([](auto& whitePoint) { whitePoint.x = 1; });
    expectSeen<TargetSetting::white_point_t>([](auto& whitePoint) { whitePoint.y = 1; });
    expectSeen<TargetSetting::black_level_t>([](auto& tint) { tint.red = 1; });
    expectSeen<TargetSetting::black_level_t>([](auto& tint) { tint.green = 1; });
    expectSeen<TargetSetting::black_level_t>([](auto& tint) { tint.blue = 1; });
}

TEST(Equality, SeesEveryMemberOfToneCurves) {
    using Gamma = TargetSetting::gamma_t;
    expectSeen<Gamma::gamma_color>([](auto& color) { color.type = "Lut"; });
    expectSeen<Gamma::gamma_color>([](auto& color) { color.formula = 1; });
    expectSeen<Gamma::gamma_color>([](auto& color) { color.lut = {1}; });
    expectSeen<Gamma::gamma_color>([](auto& color) { color.lut24 = {1}; });
    expectSeen<Gamma::imported_lut_file>([](auto& file) { file.fileName = "a"; });
    expectSeen<Gamma>([](auto& gamma) { gamma.red.formula = 1; });
    expectSeen<Gamma>([](auto& gamma) { gamma.green.formula = 1; });
    expectSeen<Gamma>([](auto& gamma) { gamma.blue.formula = 1; });
    expectSeen<Gamma>([](auto& gamma) { gamma.pqhlgClipping = "1"; });
    expectSeen<Gamma>([](auto& gamma) { gamma.hlgSystemGamma = 1; });
    expectSeen<Gamma>([](auto& gamma) { gamma.importedLutFile.fileName = "a"; });
}

TEST(Equality, SeesEveryMemberOfGamuts) {
    using Gamut = TargetSetting::gamut_t;
    expectSeen<Gamut::coordinate>([](auto& primary) { primary.x = 1; });
    expectSeen<Gamut::coordinate>([](auto& primary) { primary.y = 1; });
    expectSeen<Gamut>([](auto& gamut) { gamut.red.x = 1; });
    expectSeen<Gamut>([](auto& gamut) { gamut.green.y = 1; });
    expectSeen<Gamut>([](auto& gamut) { gamut.blue.x = 1; });
    expectSeen<Gamut>([](auto& gamut) { gamut.profileName = "a"; });
    expectSeen<Gamut>([](auto& gamut) { gamut.gamutClipping = 1; });
}

TEST(Equality, SeesEveryMemberOfAdvancedSettings) {
    using Settings = TargetSetting::advanced_settings_t;
    expectSeen<Settings>([](auto& settings) { settings.hue.value = 1; });
    expectSeen<Settings>([](auto& settings) { settings.saturation.hasValue = true; });
    expectSeen<Settings>([](auto& settings) { settings.blackLevel.value.blue = 1; });
    expectSeen<Settings>([](auto& settings) { settings.blackLevel.hasValue = true; });
    expectSeen<Settings>([](auto& settings) { settings.sixColorsHue.value.red = 1; });
    expectSeen<Settings>([](auto& settings) { settings.sixColorsSaturation.hasValue = true; });
    expectSeen<Settings>([](auto& settings) { settings.sixColorsLightness.value.yellow = 1; });
}

TEST(Equality, SeesEveryMemberOfRowsAndMaps) {
    expectSeen<MeasurementDataObject>([](auto& row) { row.RGB = {1}; });
    expectSeen<MeasurementDataObject>([](auto& row) { row.CMYK = {1}; });
    expectSeen<MeasurementDataObject>([](auto& row) { row.XYZ = {1}; });
    expectSeen<MeasurementDataObject>([](auto& row) { row.CIELAB = {1}; });
    expectSeen<MeasurementDataObject>([](auto& row) { row.PQR = {1}; });
    expectSeen<ColorModeSettingsObject>([](auto& row) { row.type.value = "Standard"; });
    expectSeen<ColorModeSettingsObject>([](auto& row) { row.type.hasValue = true; });
    expectSeen<ColorModeSettingsObject>([](auto& row) { row.targetSetting.value.creationType.value = "a"; });
    expectSeen<CalibrationModeResultObject>([](auto& row) { row.hasBasicData = true; });
    expectSeen<CalibrationModeResultObject>([](auto& row) { row.basicData.software.value = "a"; });
    expectSeen<CalibrationModeResultObject>([](auto& row) { row.emulationLUT.present = true; });
    expectSeen<EmulationLUT>([](auto& table) { table.availability = 1; });
    expectSeen<EmulationLUT>([](auto& table) { table.index = 1; });
    expectSeen<EmulationLUT>([](auto& table) { table.name = "a"; });
    expectSeen<EmulationLUT>([](auto& table) { table.present = true; });
    expectSeen<CandelaMapEntry>([](auto& map) { map.values = {1}; });
    expectSeen<CandelaMapEntry>([](auto& map) { map.updatedAt = "a"; });
    expectSeen<CandelaMapEntry>([](auto& map) { map.valid = true; });
}

/// Nothing of them can be seen in a member that both have.
TEST(Equality, SeesTheNumberOfRowsOfLists) {
    MeasurementData longer;
    longer.objects.resize(2);
    MeasurementData shorter;
    shorter.objects.resize(1);
    EXPECT_NE(longer, shorter);
    EXPECT_NE(shorter, longer);
    EXPECT_NE(shorter, MeasurementData());
    EXPECT_NE(MeasurementData(), shorter);
}

TEST(Equality, IgnoresMembersThatAreNeverWritten) {
    MeasurementData parsed;
    parsed.parsed = true;
    EXPECT_EQ(parsed, MeasurementData());
    ProfileData withBlack;
    withBlack.measuredXYZLimited109.value.black = {1, 2, 3};
    EXPECT_EQ(withBlack, ProfileData());
    withBlack.measuredXYZ.value.black = {1, 2, 3};
    EXPECT_NE(withBlack, ProfileData());
}

}  // namespace
}  // namespace lv
