#include <tests/support/DescribedNode.h>
#include <tests/support/conditions_of.h>

#include <lvdata/records/ColorModeSettings.h>
#include <lvdata/records/RecordClass.h>
#include <lvdata/records/types.h>

#include <map>
#include <set>
#include <string>

#include <gtest/gtest.h>

namespace lv::test {
namespace {

using Texts = std::set<std::string>;

/// The texts that types are compared with, by the element or attribute that has the type.
using TextsOfPlaces = std::map<std::string, Texts>;

void addComparedTexts(TextsOfPlaces& compared, const DescribedNode& node) {
    for (const Condition& condition : conditionsOf(*node)) {
        if (condition.kind == Condition::Kind::oneOf || condition.kind == Condition::Kind::noneOf) {
            compared[node.at(condition.subjects.front()).name()].insert(condition.texts.begin(), condition.texts.end());
        }
    }
}

TextsOfPlaces comparedTexts() {
    TextsOfPlaces compared;
    for (const RecordClass& record : RecordClasses()) {
        const Description description = record.describe();
        for (const DescribedNode& node : ownNodes(description)) {
            addComparedTexts(compared, node);
        }
    }
    return compared;
}

template <class... Constants>
Texts textsOf(Constants... constants) {
    return {std::string(constants)...};
}

template <class... Constants>
Texts numbersOf(Constants... constants) {
    return {std::to_string(constants)...};
}

const Texts targetCurveTypes = {types::targetCurve::formula, types::targetCurve::lut, types::targetCurve::lut24};

const TextsOfPlaces constants = {
    {"ColorModeSettings/ColorMode/@Type",
     textsOf(types::colorMode::standard, types::colorMode::syncSignal, types::colorMode::calibration)},
    {"MonitorParameter/isHDRLUT", numbersOf(types::tableScale::hdr)},
    {"ParameterSetting/Brightness/@Type",
     textsOf(types::brightness::candela, types::brightness::percent, types::brightness::syncSignal)},
    {"ParameterSetting/WhitePoint/@Type", textsOf(types::whitePoint::temperature, types::whitePoint::fixed)},
    {"ParameterSetting/Gamma/@Type", textsOf(types::gamma::value, types::gamma::fixed, types::gamma::syncSignal)},
    {"ParameterSetting/Gamma/Fixed", textsOf(types::fixedGamma::pq, types::fixedGamma::hlg)},
    {"ParameterSetting/Gamut/@Type", textsOf(types::gamut::fixed, types::gamut::syncSignal)},
    {"ProfileData/RedTargetCurve/@Type",
     textsOf(types::profileCurve::formula, types::profileCurve::lut, types::profileCurve::lStar)},
    {"ProfileData/GreenTargetCurve/@Type",
     textsOf(types::profileCurve::formula, types::profileCurve::lut, types::profileCurve::lStar)},
    {"ProfileData/BlueTargetCurve/@Type",
     textsOf(types::profileCurve::formula, types::profileCurve::lut, types::profileCurve::lStar)},
    {"SelfCalibrationSchedule/Type/@Type",
     numbersOf(types::schedule::everySomeMonths, types::schedule::everySomeWeeks, types::schedule::everySomeHours,
               types::schedule::once, types::schedule::everySomeHours1F, types::schedule::daily,
               types::schedule::weekly, types::schedule::monthly, types::schedule::quarterly,
               types::schedule::halfYearly, types::schedule::yearly)},
    {"TargetSetting/Brightness/@Type", textsOf(types::targetLevel::value)},
    {"TargetSetting/BlackLevel/@Type", textsOf(types::targetLevel::value)},
    {"TargetSetting/WhitePoint/@Type",
     textsOf(types::targetWhitePoint::temperature, types::targetWhitePoint::coordinate)},
    {"TargetSetting/WhitePointV7/@Type", textsOf(types::targetStandard::standard)},
    {"TargetSetting/GammaV7/@Type", textsOf(types::targetStandard::standard)},
    {"TargetSetting/GamutV7/@Type", textsOf(types::targetStandard::standard)},
    {"TargetSetting/Gamma/Red/@Type",
     textsOf(types::targetCurve::formula, types::targetCurve::lut, types::targetCurve::lut24, types::targetCurve::pq,
             types::targetCurve::hlg)},
    {"TargetSetting/Gamma/Green/@Type", targetCurveTypes},
    {"TargetSetting/Gamma/Blue/@Type", targetCurveTypes},
};

TEST(Types, EveryTextThatIsComparedIsAConstantOfItsGroup) {
    EXPECT_EQ(comparedTexts(), constants);
}

// What documents in use hold: the constants are made of letters and digits that nobody may change.
TEST(Types, HaveTheTextsOfDocuments) {
    const auto all = textsOf(types::colorMode::standard, types::colorMode::syncSignal, types::colorMode::calibration,
                             types::brightness::candela, types::brightness::percent, types::whitePoint::temperature,
                             types::whitePoint::fixed, types::gamma::value, types::targetWhitePoint::coordinate,
                             types::targetCurve::formula, types::targetCurve::lut, types::targetCurve::lut24,
                             types::targetCurve::pq, types::targetCurve::hlg, types::profileCurve::lStar);
    EXPECT_EQ(all, (Texts{"Standard", "SyncSignal", "Calibration", "Candela", "Percent", "Temperature", "Fixed",
                          "Value", "Coordinate", "Formula", "Lut", "Lut24", "PQ", "HLG", "LStar"}));
}

TEST(Types, AreAssignedToStringsAndComparedWithThem) {
    ColorModeSettingsObject mode;
    mode.type.set(types::colorMode::calibration);
    EXPECT_TRUE(mode.type.value == types::colorMode::calibration);
    mode.parameterSetting.value.gamma.value.type = types::gamma::value;
    EXPECT_TRUE(types::gamma::value == mode.parameterSetting.value.gamma.value.type);
    EXPECT_TRUE(mode.parameterSetting.value.gamma.value.type != types::gamma::fixed);
    mode.targetSetting.value.gammaV7.set({types::targetStandard::standard, "BT.1886"});
    EXPECT_EQ(mode.targetSetting.value.gammaV7.value.type, "Standard");
}

}  // namespace
}  // namespace lv::test
