#include <tests/support/round_trip.h>
#include <tests/support/samples.h>

#include <gtest/gtest.h>

#include <lvdata/records/ColorModeSettings.h>

#include <array>
#include <string>

// Which of its nested records a row of each type writes, and that it reads all of them whatever its type.

namespace lv::test {
namespace {

struct ModeType {
    std::string text;
    bool writesParameters;
    bool writesTarget;
};

/// The types that the writer tells apart, and what is none of them.
const std::array everyType = {
    ModeType{"Standard", true, false},    ModeType{"SyncSignal", true, false},   ModeType{"Calibration", false, true},
    ModeType{"", false, false},           ModeType{"Vendor", false, false},      ModeType{"standard", false, false},
    ModeType{"STANDARD", false, false},   ModeType{"syncSignal", false, false},  ModeType{"Syncsignal", false, false},
    ModeType{"SYNCSIGNAL", false, false}, ModeType{"calibration", false, false}, ModeType{"CALIBRATION", false, false},
    ModeType{"Standard ", false, false},  ModeType{" SyncSignal", false, false}, ModeType{"Calibration1", false, false},
    ModeType{"Standar", false, false},    ModeType{"Lumivale", false, false}};

/// A subset of the nested records, by the bits of a number.
struct Records {
    explicit Records(unsigned int bits)
        : parameters((bits & 1U) != 0),
          target((bits & 2U) != 0),
          policy((bits & 4U) != 0) {}

    static constexpr unsigned int subsets = 8;

    bool parameters;
    bool target;
    bool policy;
};

std::string typeAttribute(const std::string& type) {
    return " Type=\"" + type + '"';
}

/// An element "Target" with these attributes around that text.
std::string targetElement(const std::string& attributes, const std::string& content) {
    return "<Target" + attributes + '>' + content + "</Target>";
}

/// A nested record as a list whose switch has that value writes it.
template <class Record>
std::string recordText(Record record, bool hlgSwitch) {
    record.writeHLGSystemGamma = hlgSwitch;
    return compact(record);
}

/// The element of a row of that type with these records in it, as far as the type writes them.
std::string rowText(const ModeType& type, const ColorModeSettingsObject& row, bool hlgSwitch) {
    const std::string parameters = recordText(row.parameterSetting.value, hlgSwitch);
    const std::string target = targetElement(typeAttribute("Lumivale"), recordText(row.targetSetting.value, hlgSwitch));
    return "<ColorMode" + typeAttribute(type.text) + '>' + (type.writesParameters ? parameters : "") +
           (type.writesTarget ? target : "") + compact(row.profilePolicy.value) + "</ColorMode>";
}

ColorModeSettings listOf(const ColorModeSettingsObject& row, bool hlgSwitch = false) {
    ColorModeSettings list;
    list.writeHLGSystemGamma = hlgSwitch;
    list.objects = {row};
    return list;
}

/// A row with the sample's nested records, their flags as told.
ColorModeSettingsObject rowWith(const Records& flags) {
    ColorModeSettingsObject row;
    row.parameterSetting = {filled<ParameterSetting>(), flags.parameters};
    row.targetSetting = {filled<TargetSetting>(), flags.target};
    row.profilePolicy = {filled<ProfilePolicy>(), flags.policy};
    return row;
}

/// What reading the elements of these records gives.
ColorModeSettingsObject rowReadWith(const Records& present) {
    ColorModeSettingsObject row;
    row.parameterSetting.hasValue = present.parameters;
    row.targetSetting.hasValue = present.target;
    row.profilePolicy.hasValue = present.policy;
    row.parameterSetting.value = present.parameters ? filledAndParsedBack<ParameterSetting>() : ParameterSetting();
    row.targetSetting.value = present.target ? filledAndParsedBack<TargetSetting>() : TargetSetting();
    row.profilePolicy.value = present.policy ? filledAndParsedBack<ProfilePolicy>() : ProfilePolicy();
    return row;
}

/// The elements of these records.
std::string elementsOf(const Records& present) {
    return (present.parameters ? compact(filled<ParameterSetting>()) : "") +
           (present.target ? targetElement(typeAttribute("Lumivale"), compact(filled<TargetSetting>())) : "") +
           (present.policy ? compact(filled<ProfilePolicy>()) : "");
}

/// The row that an element with these attributes and children gives.
ColorModeSettingsObject rowFrom(const std::string& attributes, const std::string& children) {
    const auto list = parsedFrom<ColorModeSettings>("<ColorMode" + attributes + '>' + children + "</ColorMode>");
    EXPECT_EQ(list.objects.size(), 1U);
    return list.objects.empty() ? ColorModeSettingsObject() : list.objects.front();
}

TEST(ColorModeSettingsTypes, TypeAloneChoosesTheRecordsThatAreWrittenRegardlessOfTheirFlags) {
    for (const ModeType& type : everyType) {
        for (unsigned int bits = 0; bits < Records::subsets; ++bits) {
            for (const bool hlgSwitch : {false, true}) {
                ColorModeSettingsObject row = rowWith(Records(bits));
                row.type.set(type.text);
                EXPECT_EQ(compact(listOf(row, hlgSwitch)), written<ColorModeSettings>(rowText(type, row, hlgSwitch)))
                    << type.text << bits;
            }
        }
    }
}

TEST(ColorModeSettingsTypes, TextOfAnUnsetTypeIsWrittenAndDecidesTheRecordsAsWell) {
    for (const ModeType& type : everyType) {
        ColorModeSettingsObject row = rowWith(Records(7));
        row.type = {type.text, false};
        EXPECT_EQ(compact(listOf(row)), written<ColorModeSettings>(rowText(type, row, false))) << type.text;
    }
}

TEST(ColorModeSettingsTypes, UnsetRecordsAreWrittenWithTheirDefaults) {
    for (const ModeType& type : everyType) {
        ColorModeSettingsObject row;
        row.type.set(type.text);
        EXPECT_EQ(compact(listOf(row)), written<ColorModeSettings>(rowText(type, ColorModeSettingsObject(), false)))
            << type.text;
    }
}

TEST(ColorModeSettingsTypes, DefaultRowOfTypeStandardCarriesParametersAndPolicyAndNoTarget) {
    ColorModeSettingsObject row;
    row.type.set("Standard");
    EXPECT_EQ(compact(listOf(row)),
              written<ColorModeSettings>(R"(<ColorMode Type="Standard">)"
                                         R"(<ParameterSetting Version="2" MinorVersion="0"><Brightness Type=""/>)"
                                         R"(<WhitePoint Type=""/><Gamma Type=""/><Gamut Type=""><Clipping>0)"
                                         R"(</Clipping></Gamut></ParameterSetting>)"
                                         R"(<ProfilePolicy Version="2" MinorVersion="0"/></ColorMode>)"));
}

TEST(ColorModeSettingsTypes, DefaultRowOfTypeCalibrationCarriesTargetAndPolicyAndNoParameters) {
    ColorModeSettingsObject row;
    row.type.set("Calibration");
    EXPECT_EQ(compact(listOf(row)),
              written<ColorModeSettings>(R"(<ColorMode Type="Calibration"><Target Type="Lumivale">)"
                                         R"(<TargetSetting Version="3" MinorVersion="2"/></Target>)"
                                         R"(<ProfilePolicy Version="2" MinorVersion="0"/></ColorMode>)"));
}

TEST(ColorModeSettingsTypes, RowOfUnknownTypeCarriesIndexNameAvailabilityAndPolicy) {
    auto row = filled<ColorModeSettings>().objects.front();
    row.type.value = "Vendor";
    EXPECT_EQ(compact(listOf(row)),
              written<ColorModeSettings>(
                  "<ColorMode Type=\"Vendor\"><Index>14</Index><Name>name 15</Name><Availability>16</Availability>" +
                  compact(filled<ProfilePolicy>()) + "</ColorMode>"));
}

TEST(ColorModeSettingsTypes, EveryTypeReadsAllRecords) {
    for (const ModeType& type : everyType) {
        for (unsigned int bits = 0; bits < Records::subsets; ++bits) {
            ColorModeSettingsObject expected = rowReadWith(Records(bits));
            expected.type.set(type.text);
            const auto row = rowFrom(typeAttribute(type.text), elementsOf(Records(bits)));
            EXPECT_EQ(describe(row), describe(expected)) << type.text << bits;
        }
    }
}

TEST(ColorModeSettingsTypes, RowWithoutATypeReadsAllRecords) {
    for (unsigned int bits = 0; bits < Records::subsets; ++bits) {
        const auto row = rowFrom("", elementsOf(Records(bits)));
        EXPECT_EQ(describe(row), describe(rowReadWith(Records(bits)))) << bits;
    }
}

TEST(ColorModeSettingsTypes, RoundTripDropsTheRecordsThatDoNotBelongToTheType) {
    for (const ModeType& type : everyType) {
        const auto list = listOf(rowFrom(typeAttribute(type.text), elementsOf(Records(7))), true);
        ColorModeSettingsObject expected = rowReadWith(Records(7));
        expected.type.set(type.text);
        expected.parameterSetting = type.writesParameters ? expected.parameterSetting : property<ParameterSetting>();
        expected.targetSetting = type.writesTarget ? expected.targetSetting : property<TargetSetting>();
        const auto back = parsed<ColorModeSettings>(compact(list)).objects;
        ASSERT_EQ(back.size(), 1U);
        EXPECT_EQ(describe(back[0]), describe(expected)) << type.text;
    }
}

TEST(ColorModeSettingsTypes, RecordsThatARoundTripGainsHoldTheirDefaultsAndAreSet) {
    for (const ModeType& type : everyType) {
        const auto list = listOf(rowFrom(typeAttribute(type.text), ""));
        const auto back = parsed<ColorModeSettings>(compact(list)).objects.at(0);
        EXPECT_EQ(back.parameterSetting.hasValue, type.writesParameters) << type.text;
        EXPECT_EQ(back.targetSetting.hasValue, type.writesTarget) << type.text;
        EXPECT_TRUE(back.profilePolicy.hasValue) << type.text;
        EXPECT_EQ(compact(back.targetSetting.value), compact(TargetSetting())) << type.text;
    }
}

TEST(ColorModeSettingsTypes, TypeOfTheTargetIsNotLookedAt) {
    for (const char* attributes : {"", R"( Type="")", R"( Type="Other")", R"( Type="lumivale")", R"( type="x")"}) {
        const auto row = rowFrom("", targetElement(attributes, compact(filled<TargetSetting>())));
        EXPECT_EQ(describe(row), describe(rowReadWith(Records(2)))) << attributes;
    }
}

TEST(ColorModeSettingsTypes, TypeOfTheTargetIsAlwaysWrittenTheSame) {
    auto row = rowFrom(R"( Type="Calibration")", targetElement(R"( Type="Other")", "<TargetSetting/>"));
    const std::string text = compact(listOf(row));
    EXPECT_NE(text.find(R"(<Target Type="Lumivale"><TargetSetting )"), std::string::npos) << text;
}

TEST(ColorModeSettingsTypes, RecordsAreFoundOnlyInTheirOwnPlace) {
    const std::string parameters = compact(filled<ParameterSetting>());
    const std::string target = compact(filled<TargetSetting>());
    const std::string policy = compact(filled<ProfilePolicy>());
    for (const std::string& misplaced :
         {target, targetElement("", parameters), targetElement("", policy),
          targetElement("", targetElement("", target)), "<Other>" + parameters + policy + "</Other>",
          "<target>" + target + "</target>", targetElement("", "")}) {
        EXPECT_EQ(describe(rowFrom("", misplaced)), describe(ColorModeSettingsObject())) << misplaced;
    }
}

TEST(ColorModeSettingsTypes, RecordWhoseNameDiffersInCaseIsNotFound) {
    const auto row = rowFrom(R"( Type="Standard")", "<parameterSetting/><profilepolicy/><PROFILEPOLICY/>" +
                                                        targetElement("", "<targetSetting/>"));
    EXPECT_FALSE(row.parameterSetting.hasValue);
    EXPECT_FALSE(row.targetSetting.hasValue);
    EXPECT_FALSE(row.profilePolicy.hasValue);
}

TEST(ColorModeSettingsTypes, FirstOfRepeatedRecordsIsTheOneThatIsRead) {
    const std::string empty = "<ParameterSetting/><ProfilePolicy/>" + targetElement("", "<TargetSetting/>");
    const auto row = rowFrom("", empty + elementsOf(Records(7)));
    EXPECT_EQ(describe(row), describe(rowFrom("", empty)));
    EXPECT_EQ(describe(rowFrom("", elementsOf(Records(7)) + empty)), describe(rowReadWith(Records(7))));
}

TEST(ColorModeSettingsTypes, FirstTargetIsTheOneThatIsLookedInto) {
    const auto row = rowFrom("", "<Target/>" + elementsOf(Records(2)));
    EXPECT_EQ(describe(row), describe(ColorModeSettingsObject()));
}

TEST(ColorModeSettingsTypes, EmptyRecordIsFound) {
    const auto row = rowFrom("", "<ParameterSetting/><ProfilePolicy/>" + targetElement("", "<TargetSetting/>"));
    EXPECT_TRUE(row.parameterSetting.hasValue);
    EXPECT_TRUE(row.targetSetting.hasValue);
    EXPECT_TRUE(row.profilePolicy.hasValue);
    EXPECT_EQ(row.parameterSetting.value.version, (property<unsigned int>{2, false}));
    EXPECT_EQ(row.targetSetting.value.version, (property<unsigned int>{3, false}));
}

}  // namespace
}  // namespace lv::test
