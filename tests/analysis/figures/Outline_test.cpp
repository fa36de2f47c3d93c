#include <lvdata/analysis/figures/Outline.h>

#include <lvdata/analysis/Document.h>

#include <gtest/gtest.h>

#include <string>

namespace {

using lv::analysis::OutlineForm;

std::string outlineOf(const std::string& text, const OutlineForm& form = {}) {
    static const lv::analysis::Catalogue catalogue;
    const lv::analysis::Document document(text, catalogue);
    const lv::analysis::Tree printed = document.printed();
    return lv::analysis::outline(*printed.root(), *document.entry().shape, form);
}

std::string assetOf(const std::string& text) {
    return outlineOf("<AssetInfo><Asset1>" + text + "</Asset1></AssetInfo>");
}

std::string mapOf(const std::string& values, const OutlineForm& form) {
    return outlineOf("<CandelaMap><Uniformity><Values>" + values + "</Values></Uniformity></CandelaMap>", form);
}

std::string measurementOf(const std::string& content, const OutlineForm& form = {}) {
    return outlineOf("<MeasurementData><Measurements>" + content + "</Measurements></MeasurementData>", form);
}

std::string row(const std::string& rgb) {
    return "<Measurements><RGB>" + rgb + "</RGB></Measurements>";
}

OutlineForm full() {
    OutlineForm form;
    form.full = true;
    return form;
}

OutlineForm gridOf(std::size_t width) {
    OutlineForm form;
    form.gridWidth = width;
    return form;
}

OutlineForm withYUnit(const std::string& unit) {
    OutlineForm form;
    form.yUnit = unit;
    return form;
}

OutlineForm withMapUnit(const std::string& unit) {
    OutlineForm form;
    form.mapUnit = unit;
    return form;
}

}  // namespace

TEST(Outline, HasTextsNumbersAndBooleans) {
    EXPECT_EQ(outlineOf("<ProfilePolicy><UpdateRule Type='AfterCalibration'><ProfileName>a b.icc</ProfileName>"
                        "</UpdateRule><ReflectBlackLevels>true</ReflectBlackLevels></ProfilePolicy>"),
              "ProfilePolicy\n"
              "  UpdateRule Type=AfterCalibration\n"
              "    ProfileName: a b.icc\n"
              "  ReflectBlackLevels: true\n");
    EXPECT_EQ(outlineOf("<BasicData><UsageHours>4294967295</UsageHours></BasicData>"),
              "BasicData\n  UsageHours: 4294967295\n");
    EXPECT_EQ(outlineOf("<MonitorParameter><RedHue>-2</RedHue></MonitorParameter>").substr(0, 29),
              "MonitorParameter\n  RedHue: -2");
}

TEST(Outline, HasElementsWithoutText) {
    EXPECT_EQ(outlineOf("<AssetInfo/>"), "AssetInfo\n");
    EXPECT_EQ(assetOf(""), "AssetInfo\n  Asset1\n");
}

TEST(Outline, HasOnlyWhatTheRecordKeeps) {
    EXPECT_EQ(outlineOf("<AssetInfo Owner='x'><!--c--><Other>y</Other><Asset2>z</Asset2></AssetInfo>"),
              "AssetInfo\n  Asset2: z\n");
}

TEST(Outline, LeavesVersionsOut) {
    EXPECT_EQ(outlineOf("<AssetInfo Version='7' MinorVersion='8'/>"), "AssetInfo\n");
}

TEST(Outline, HasFractionsAsExactDecimals) {
    EXPECT_EQ(measurementOf("<XYZ>95047000|1|-2147483648</XYZ>"),
              "MeasurementData\n  Measurements\n    XYZ: 95.047, 0.000001, -2147.483648\n");
    EXPECT_EQ(measurementOf("<CMYK>0|5|50|100</CMYK>"), "MeasurementData\n  Measurements\n    CMYK: 0, 0.05, 0.5, 1\n");
}

TEST(Outline, HasStoredIntegersWhereAFactorIsNotAPowerOfTen) {
    EXPECT_EQ(measurementOf("<RGB>0|128|255</RGB>"),
              "MeasurementData\n  Measurements\n    RGB: 0, 128, 255 in 1/255\n");
}

TEST(Outline, HasUnitsThatTheRecordSays) {
    const auto brightness = [](const std::string& type) {
        const std::string text = outlineOf("<ParameterSetting><Brightness Type='" + type +
                                           "'><Value>120</Value></Brightness></ParameterSetting>");
        return text.substr(0, text.find("  WhitePoint"));
    };
    EXPECT_EQ(brightness("Candela"), "ParameterSetting\n  Brightness Type=Candela\n    Value: 120 candela\n");
    EXPECT_EQ(brightness("Percent"), "ParameterSetting\n  Brightness Type=Percent\n    Value: 120 %\n");
}

TEST(Outline, HasNoUnitsThatTheRecordDoesNotSay) {
    EXPECT_EQ(outlineOf("<TargetSetting><Brightness Type='Value'><Value>120</Value></Brightness></TargetSetting>"),
              "TargetSetting\n  Brightness Type=Value\n    Value: 120\n");
    EXPECT_EQ(mapOf("1|2", {}), "CandelaMap\n  Uniformity\n    Values: 1, 2\n    UpdatedAt\n  Brightness\n");
}

TEST(Outline, HasTheUsersUnitOfYWhereXYZIs) {
    EXPECT_EQ(measurementOf("<XYZ>1000000|2000000|3000000</XYZ><CIELAB>1000000|0|0</CIELAB><PQR>1|2|3</PQR>",
                            withYUnit("cd/m²")),
              "MeasurementData\n  Measurements\n    XYZ: 1, 2, 3 cd/m²\n    CIELAB: 1, 0, 0\n"
              "    PQR: 0.000001, 0.000002, 0.000003\n");
    EXPECT_EQ(measurementOf("<XYZ>1|1|1</XYZ>", withYUnit("a\nb")),
              "MeasurementData\n  Measurements\n    XYZ: 0.000001, 0.000001, 0.000001 a\\x0Ab\n");
}

TEST(Outline, HasTheUsersUnitOfMapsWhereMapsAre) {
    EXPECT_EQ(mapOf("1|2", withMapUnit("%")),
              "CandelaMap\n  Uniformity\n    Values: 1, 2 %\n    UpdatedAt\n  Brightness\n");
    EXPECT_EQ(measurementOf("<XYZ>1000000|2000000|3000000</XYZ>", withMapUnit("%")),
              "MeasurementData\n  Measurements\n    XYZ: 1, 2, 3\n");
}

TEST(Outline, HasTheFirstAndTheLastEntryOfLongArrays) {
    EXPECT_EQ(mapOf("1|2|3|4|5|6|7|8|9", {}),
              "CandelaMap\n  Uniformity\n    Values: 1, 2, 3, 4, 5, 6, 7, 8, 9\n    UpdatedAt\n  Brightness\n");
    EXPECT_EQ(mapOf("1|2|3|4|5|6|7|8|9|10", withMapUnit("%")),
              "CandelaMap\n  Uniformity\n    Values: 1, 2, 3, ..., 10 % (10 entries)\n    UpdatedAt\n  Brightness\n");
}

TEST(Outline, HasAllEntriesWhenAskedTo) {
    EXPECT_EQ(mapOf("1|2|3|4|5|6|7|8|9|10", full()),
              "CandelaMap\n  Uniformity\n    Values: 1, 2, 3, 4, 5, 6, 7, 8, 9, 10\n    UpdatedAt\n  Brightness\n");
}

TEST(Outline, HasTheFirstRowsOfLists) {
    const std::string three = row("1|1|1") + row("2|2|2") + row("3|3|3");
    const std::string shown = "MeasurementData\n"
                              "  Measurements\n    RGB: 1, 1, 1 in 1/255\n"
                              "  Measurements\n    RGB: 2, 2, 2 in 1/255\n"
                              "  Measurements\n    RGB: 3, 3, 3 in 1/255\n";
    EXPECT_EQ(outlineOf("<MeasurementData>" + three + "</MeasurementData>"), shown);
    EXPECT_EQ(outlineOf("<MeasurementData>" + three + row("4|4|4") + row("5|5|5") + "</MeasurementData>"),
              shown + "  and 2 more (--full)\n");
    EXPECT_EQ(outlineOf("<MeasurementData>" + three + row("4|4|4") + "</MeasurementData>", full()),
              shown + "  Measurements\n    RGB: 4, 4, 4 in 1/255\n");
}

TEST(Outline, HasMapsAsGrids) {
    EXPECT_EQ(mapOf("9|10|11|100", gridOf(2)),
              "CandelaMap\n  Uniformity\n    Values: 4 entries\n        9  10\n       11 100\n    UpdatedAt\n"
              "  Brightness\n");
}

TEST(Outline, HasAShortLastRowInAGridWhoseWidthDoesNotDivide) {
    OutlineForm form = gridOf(3);
    form.mapUnit = "cd/m²";
    EXPECT_EQ(mapOf("1|2|3|4", form),
              "CandelaMap\n  Uniformity\n    Values: 4 entries, cd/m²\n      1 2 3\n      4\n    UpdatedAt\n"
              "  Brightness\n");
    EXPECT_EQ(mapOf("1", form),
              "CandelaMap\n  Uniformity\n    Values: 1 entry, cd/m²\n      1\n    UpdatedAt\n  Brightness\n");
}

TEST(Outline, HasNoGridOfOtherArrays) {
    EXPECT_EQ(measurementOf("<RGB>0|128|255</RGB>", gridOf(2)),
              "MeasurementData\n  Measurements\n    RGB: 0, 128, 255 in 1/255\n");
}

TEST(Outline, HasKeyedElementsWithTheirKeys) {
    const std::string text = outlineOf(
        "<ProfileData><MeasuredXYZ Color='White'>1000000|2000000|3000000</MeasuredXYZ>"
        "<MeasuredXYZ Color='Red'>1|2|3</MeasuredXYZ><MeasuredXYZ Color='Green'>1|2|3</MeasuredXYZ>"
        "<MeasuredXYZ Color='Blue'>1|2|3</MeasuredXYZ><MeasuredXYZ Color='Black'>0|0|0</MeasuredXYZ></ProfileData>",
        withYUnit("nt"));
    EXPECT_EQ(text.substr(0, text.find("  RedTargetCurve")),
              "ProfileData\n"
              "  MeasuredXYZ Color=Red: 0.000001, 0.000002, 0.000003 nt\n"
              "  MeasuredXYZ Color=Green: 0.000001, 0.000002, 0.000003 nt\n"
              "  MeasuredXYZ Color=Blue: 0.000001, 0.000002, 0.000003 nt\n"
              "  MeasuredXYZ Color=White: 1, 2, 3 nt\n"
              "  MeasuredXYZ Color=Black: 0, 0, 0 nt\n");
}

TEST(Outline, TakesATextForWhatItsTypeSays) {
    const std::string text = outlineOf("<ProfileData><RedTargetCurve Type='Formula'>2200000</RedTargetCurve>"
                                       "<GreenTargetCurve Type='Lut'>0|500000</GreenTargetCurve>"
                                       "<BlueTargetCurve Type='LStar'/></ProfileData>");
    EXPECT_EQ(text.substr(text.find("  RedTargetCurve")), "  RedTargetCurve Type=Formula: 2.2\n"
                                                          "  GreenTargetCurve Type=Lut: 0, 0.5\n"
                                                          "  BlueTargetCurve Type=LStar\n");
}

TEST(Outline, TakesTheScaleThatAnotherElementDecides) {
    std::string entries = "500000000";
    for (int entry = 1; entry < 256; ++entry) {
        entries += "|500000000";
    }
    const auto table = [&](const std::string& isHDR) {
        const std::string text = outlineOf("<MonitorParameter><isHDRLUT>" + isHDR + "</isHDRLUT><RedLUT>" + entries +
                                           "</RedLUT></MonitorParameter>");
        return text.substr(text.find("RedLUT"));
    };
    EXPECT_EQ(table("0"), "RedLUT: 500, 500, 500, ..., 500 (256 entries)\n");
    EXPECT_EQ(table("1"), "RedLUT: 0.5, 0.5, 0.5, ..., 0.5 (256 entries)\n");
}

TEST(Outline, ShowsTextsOnOneLine) {
    EXPECT_EQ(assetOf("a&#10;b&#27;[2J"), "AssetInfo\n  Asset1: a\\x0Ab\\x1B[2J\n");
    EXPECT_EQ(assetOf("\xFF\u2028"), "AssetInfo\n  Asset1: \\xFF\\xE2\\x80\\xA8\n");
    EXPECT_EQ(assetOf("Größe"), "AssetInfo\n  Asset1: Größe\n");
}

TEST(Outline, ShowsAttributesOnOneLine) {
    EXPECT_EQ(outlineOf("<TargetSetting><BlackLevel Type='a&#10;b'/></TargetSetting>"),
              "TargetSetting\n  BlackLevel Type=a\\x0Ab\n");
}
