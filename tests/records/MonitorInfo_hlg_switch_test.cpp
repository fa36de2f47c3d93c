#include <tests/support/round_trip.h>
#include <tests/support/samples.h>

#include <gtest/gtest.h>

#include <lvdata/records/MonitorInfo.h>
#include <lvdata/xml/XMLDocument.h>

#include <string>
#include <vector>

// The switch `writeHLGSystemGamma` on its way from the record that is printed down to the parameters and targets.

namespace lv::test {
namespace {

using Texts = std::vector<std::string>;

/// One switch per record on the way down, by the bits of a number.
struct Switches {
    explicit Switches(unsigned int bits)
        : info((bits & 1U) != 0),
          configuration((bits & 2U) != 0),
          modes((bits & 4U) != 0),
          standard((bits & 8U) != 0),
          syncSignal((bits & 16U) != 0),
          calibration((bits & 32U) != 0) {}

    static constexpr unsigned int combinations = 64;

    bool info;
    bool configuration;
    bool modes;
    bool standard;     ///< of the parameters in the first row
    bool syncSignal;   ///< of the parameters in the second row
    bool calibration;  ///< of the target in the third row
};

constexpr unsigned int standardRow = 0;
constexpr unsigned int syncSignalRow = 1;
constexpr unsigned int calibrationRow = 2;

constexpr unsigned int none = 0;
constexpr unsigned int all = Switches::combinations - 1;

/// A row whose records hold these gammas; their switches are set.
ColorModeSettingsObject rowOf(const std::string& type, unsigned int inParameters, unsigned int inTarget) {
    ColorModeSettingsObject row;
    row.type.set(type);
    row.parameterSetting.value.writeHLGSystemGamma = true;
    row.parameterSetting.value.gamma.value.hlgSystemGamma = inParameters;
    row.parameterSetting.hasValue = true;
    row.targetSetting.value.writeHLGSystemGamma = true;
    row.targetSetting.value.gamma.value.hlgSystemGamma = inTarget;
    row.targetSetting.value.gamma.hasValue = true;
    row.targetSetting.hasValue = true;
    return row;
}

/// Three rows whose gammas are 101, 102 and 103 where they can be written; those of 999 belong to no row's type.
ColorModeSettings modesWith(const Switches& switches) {
    ColorModeSettings modes;
    modes.writeHLGSystemGamma = switches.modes;
    modes.objects = {rowOf("Standard", 101, 999), rowOf("SyncSignal", 102, 999), rowOf("Calibration", 999, 103)};
    modes.objects[standardRow].parameterSetting.value.writeHLGSystemGamma = switches.standard;
    modes.objects[syncSignalRow].parameterSetting.value.writeHLGSystemGamma = switches.syncSignal;
    modes.objects[calibrationRow].targetSetting.value.writeHLGSystemGamma = switches.calibration;
    return modes;
}

MonitorConfiguration configurationWith(const Switches& switches) {
    MonitorConfiguration configuration;
    configuration.writeHLGSystemGamma = switches.configuration;
    configuration.colorModeSettings.set(modesWith(switches));
    return configuration;
}

MonitorInfo monitorWith(const Switches& switches) {
    MonitorInfo info;
    info.writeHLGSystemGamma = switches.info;
    info.monitorConfiguration.set(configurationWith(switches));
    return info;
}

/// The texts of all elements "HLGSystemGamma", in document order.
Texts gammasIn(const std::string& document) {
    const std::string start = "<HLGSystemGamma>";
    Texts found;
    for (auto at = document.find(start); at != std::string::npos; at = document.find(start, at + 1)) {
        const auto text = at + start.size();
        found.push_back(document.substr(text, document.find('<', text) - text));
    }
    return found;
}

Texts when(bool condition, const Texts& texts) {
    return condition ? texts : Texts();
}

const Texts everyGamma = {"101", "102", "103"};

TEST(MonitorInfoHLGSwitch, SwitchOfTheMonitorOverridesThoseOfNestedRecords) {
    for (unsigned int bits = 0; bits < Switches::combinations; ++bits) {
        const Switches switches(bits);
        const std::string text = compact(monitorWith(switches));
        EXPECT_EQ(gammasIn(text), when(switches.info, everyGamma)) << bits;
        EXPECT_EQ(text, compact(monitorWith(Switches(switches.info ? all : none)))) << bits;
    }
}

TEST(MonitorInfoHLGSwitch, SwitchOfTheConfigurationDecidesWhenThatIsPrinted) {
    for (unsigned int bits = 0; bits < Switches::combinations; ++bits) {
        const Switches switches(bits);
        const std::string text = compact(monitorWith(switches).monitorConfiguration.value);
        EXPECT_EQ(gammasIn(text), when(switches.configuration, everyGamma)) << bits;
        EXPECT_EQ(text, compact(configurationWith(Switches(switches.configuration ? all : none)))) << bits;
    }
}

TEST(MonitorInfoHLGSwitch, SwitchOfTheColorModesDecidesWhenTheyArePrinted) {
    for (unsigned int bits = 0; bits < Switches::combinations; ++bits) {
        const Switches switches(bits);
        const std::string text = compact(monitorWith(switches).monitorConfiguration.value.colorModeSettings.value);
        EXPECT_EQ(gammasIn(text), when(switches.modes, everyGamma)) << bits;
        EXPECT_EQ(text, compact(modesWith(Switches(switches.modes ? all : none)))) << bits;
    }
}

TEST(MonitorInfoHLGSwitch, OwnSwitchOfParametersAndTargetsDecidesWhenTheyArePrinted) {
    for (unsigned int bits = 0; bits < Switches::combinations; ++bits) {
        const Switches switches(bits);
        const auto info = monitorWith(switches);
        const auto& rows = info.monitorConfiguration.value.colorModeSettings.value.objects;
        const auto& standard = rows[standardRow].parameterSetting.value;
        const auto& syncSignal = rows[syncSignalRow].parameterSetting.value;
        const auto& calibration = rows[calibrationRow].targetSetting.value;
        EXPECT_EQ(gammasIn(compact(standard)), when(switches.standard, {"101"})) << bits;
        EXPECT_EQ(gammasIn(compact(syncSignal)), when(switches.syncSignal, {"102"})) << bits;
        EXPECT_EQ(gammasIn(compact(calibration)), when(switches.calibration, {"103"})) << bits;
    }
}

TEST(MonitorInfoHLGSwitch, PrintingChangesNoMemberOfAnyRecordAtAnyLevel) {
    for (unsigned int bits = 0; bits < Switches::combinations; ++bits) {
        const auto info = monitorWith(Switches(bits));
        const auto& configuration = info.monitorConfiguration.value;
        const auto& modes = configuration.colorModeSettings.value;
        const std::string before = describe(info);
        for (const auto& [declaration, pretty] : everyPrintForm) {
            for (const DataObject* record :
                 {static_cast<const DataObject*>(&info), static_cast<const DataObject*>(&configuration),
                  static_cast<const DataObject*>(&modes)}) {
                EXPECT_NE(record->toXMLString(declaration, pretty), "");
                EXPECT_EQ(describe(info), before) << bits;
            }
        }
        EXPECT_EQ(before, describe(monitorWith(Switches(bits))));
    }
}

TEST(MonitorInfoHLGSwitch, AppendingToADocumentOrAnElementAppliesTheSwitchAndChangesNoMember) {
    for (unsigned int bits = 0; bits < Switches::combinations; ++bits) {
        const Switches switches(bits);
        const auto info = monitorWith(switches);
        XMLDocument document;
        XMLElement outer = document.appendChild("Outer");
        info.appendXMLElement(outer);
        info.appendXMLElement(document);
        EXPECT_EQ(document.toXMLString(false, false), "<Outer>" + compact(info) + "</Outer>" + compact(info));
        EXPECT_EQ(gammasIn(compact(info)), when(switches.info, everyGamma));
        EXPECT_EQ(describe(info), describe(monitorWith(switches))) << bits;
    }
}

TEST(MonitorInfoHLGSwitch, FlagsOfTheNestedRecordsDoNotStopTheSwitch) {
    for (unsigned int flags = 0; flags < 16; ++flags) {
        auto info = monitorWith(Switches(1));
        auto& modes = info.monitorConfiguration.value.colorModeSettings;
        info.monitorConfiguration.hasValue = (flags & 1U) != 0;
        modes.hasValue = (flags & 2U) != 0;
        for (ColorModeSettingsObject& row : modes.value.objects) {
            row.parameterSetting.hasValue = (flags & 4U) != 0;
            row.targetSetting.hasValue = (flags & 8U) != 0;
        }
        EXPECT_EQ(gammasIn(compact(info)), everyGamma) << flags;
    }
}

TEST(MonitorInfoHLGSwitch, SwitchOfOnePrintingDoesNotAffectTheNext) {
    auto info = monitorWith(Switches(none));
    for (const bool value : {true, false, true, false}) {
        info.writeHLGSystemGamma = value;
        EXPECT_EQ(gammasIn(compact(info)), when(value, everyGamma));
        EXPECT_EQ(gammasIn(compact(info.monitorConfiguration.value)), Texts());
        EXPECT_EQ(gammasIn(compact(info.monitorConfiguration.value.colorModeSettings.value)), Texts());
    }
}

TEST(MonitorInfoHLGSwitch, CopyHasASwitchOfItsOwn) {
    const auto original = monitorWith(Switches(none));
    MonitorInfo copy = original;
    copy.writeHLGSystemGamma = true;
    EXPECT_EQ(gammasIn(compact(copy)), everyGamma);
    EXPECT_EQ(gammasIn(compact(original)), Texts());
}

TEST(MonitorInfoHLGSwitch, RowsOfOtherTypesWriteNoGamma) {
    for (const char* type : {"", "Vendor", "standard", "CALIBRATION"}) {
        auto info = monitorWith(Switches(all));
        info.monitorConfiguration.value.colorModeSettings.value.objects = {rowOf(type, 999, 999)};
        EXPECT_EQ(gammasIn(compact(info)), Texts()) << type;
    }
}

TEST(MonitorInfoHLGSwitch, DefaultParametersWriteAGammaOfZeroAndADefaultTargetNone) {
    MonitorInfo info;
    info.writeHLGSystemGamma = true;
    auto& rows = info.monitorConfiguration.value.colorModeSettings.value.objects;
    rows = std::vector<ColorModeSettingsObject>(2);
    rows[0].type.set("SyncSignal");
    rows[1].type.set("Calibration");
    EXPECT_EQ(gammasIn(compact(info)), (Texts{"0"}));
}

TEST(MonitorInfoHLGSwitch, MonitorParameterWritesItsGammaByItsFlagAndNotByAnySwitch) {
    for (unsigned int bits = 0; bits < 32; ++bits) {
        MonitorInfo info;
        info.writeHLGSystemGamma = (bits & 1U) != 0;
        auto& result = info.calibrationModeResult.value;
        result.writeHLGSystemGamma = (bits & 2U) != 0;
        CalibrationModeResultObject row;
        row.hasMonitorParameter = (bits & 4U) != 0;
        row.monitorParameter.writeHLGSystemGamma = (bits & 8U) != 0;
        row.monitorParameter.hlgSystemGamma = {104, (bits & 16U) != 0};
        result.objects = {row};
        const Texts expected = when(row.hasMonitorParameter && row.monitorParameter.hlgSystemGamma.hasValue, {"104"});
        const std::string before = describe(info);
        EXPECT_EQ(gammasIn(compact(info)), expected) << bits;
        EXPECT_EQ(gammasIn(compact(result)), expected) << bits;
        EXPECT_EQ(describe(info), before) << bits;
    }
}

TEST(MonitorInfoHLGSwitch, GammasOfParametersTargetsAndMonitorParameterAreIndependent) {
    auto info = monitorWith(Switches(1));
    CalibrationModeResultObject row;
    row.hasMonitorParameter = true;
    row.monitorParameter.hlgSystemGamma.set(104);
    info.calibrationModeResult.value.objects = {row};
    EXPECT_EQ(gammasIn(compact(info)), (Texts{"101", "102", "103", "104"}));
    info.writeHLGSystemGamma = false;
    EXPECT_EQ(gammasIn(compact(info)), (Texts{"104"}));
}

TEST(MonitorInfoHLGSwitch, ParsingReadsTheGammasRegardlessOfTheSwitchAndChangesNoSwitch) {
    const std::string document = compact(monitorWith(Switches(all)));
    for (unsigned int bits = 0; bits < 8; ++bits) {
        const Switches switches(bits);
        auto info = monitorWith(switches);
        info.monitorConfiguration.value.colorModeSettings.value.objects.clear();
        ASSERT_TRUE(info.parseXMLString(document));
        const auto& modes = info.monitorConfiguration.value.colorModeSettings.value;
        ASSERT_EQ(modes.objects.size(), 3U);
        EXPECT_EQ(modes.objects[standardRow].parameterSetting.value.gamma.value.hlgSystemGamma, 101U);
        EXPECT_EQ(modes.objects[calibrationRow].targetSetting.value.gamma.value.hlgSystemGamma, 103U);
        EXPECT_EQ(info.writeHLGSystemGamma, switches.info);
        EXPECT_EQ(info.monitorConfiguration.value.writeHLGSystemGamma, switches.configuration);
        EXPECT_EQ(modes.writeHLGSystemGamma, switches.modes);
        EXPECT_FALSE(modes.objects[standardRow].parameterSetting.value.writeHLGSystemGamma);
        EXPECT_FALSE(modes.objects[calibrationRow].targetSetting.value.writeHLGSystemGamma);
    }
}

TEST(MonitorInfoHLGSwitch, RoundTripWithoutTheSwitchDropsTheGammas) {
    auto info = parsed<MonitorInfo>(compact(monitorWith(Switches(all))));
    const auto back = parsed<MonitorInfo>(compact(info));
    const auto& rows = back.monitorConfiguration.value.colorModeSettings.value.objects;
    ASSERT_EQ(rows.size(), 3U);
    EXPECT_EQ(rows[standardRow].parameterSetting.value.gamma.value.hlgSystemGamma, 0U);
    EXPECT_EQ(rows[syncSignalRow].parameterSetting.value.gamma.value.hlgSystemGamma, 0U);
    EXPECT_EQ(rows[calibrationRow].targetSetting.value.gamma.value.hlgSystemGamma, 0U);
}

}  // namespace
}  // namespace lv::test
