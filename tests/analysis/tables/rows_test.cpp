#include <tests/analysis/tables/rows_of_tables.h>

#include <lvdata/analysis/figures/lines.h>

#include <gmock/gmock.h>

namespace lv::test {

using analysis::Table;
using nlohmann::json;
using testing::HasSubstr;

TEST(Tables, HaveARowForAMonitor) {
    const auto rows = rowsOf(Table::monitors, studioText());
    ASSERT_EQ(rows.size(), 1U);
    EXPECT_EQ(rows[0]["file"], "a.xml");
    EXPECT_EQ(rows[0]["uuid"], "6f1d2c9a-52c7-4b0e-9a57-0d3c5b7e4417");
    EXPECT_EQ(rows[0]["serial"], "27W-000417");
    EXPECT_EQ(rows[0]["mode_index"], nullptr);
    EXPECT_EQ(rows[0]["name"], "Studio wall");
    EXPECT_EQ(rows[0]["model"], "LV-27W");
    EXPECT_EQ(rows[0]["modes"], 5);
    EXPECT_EQ(rows[0]["calibrated_modes"], 3);
    EXPECT_EQ(rows[0]["last_calibration"], "2024-05-02T10:07:00");
}

TEST(Tables, HaveTheIntervalOfTheKindOfTheSchedule) {
    const auto intervals = [](const std::string& kind) {
        const auto rows = rowsOf(Table::monitors, scheduleOfKind(kind));
        return json::array({rows[0]["schedule_interval_months"], rows[0]["schedule_interval_weeks"],
                            rows[0]["schedule_interval_hours"]});
    };
    EXPECT_EQ(intervals("1"), json::parse("[3, null, null]"));
    EXPECT_EQ(intervals("2"), json::parse("[null, 5, null]"));
    EXPECT_EQ(intervals("3"), json::parse("[null, null, 7]"));
    EXPECT_EQ(intervals("31"), json::parse("[null, null, 7]"));
    EXPECT_EQ(intervals("32"), json::parse("[null, null, null]"));
}

TEST(Tables, HaveARowForEachMode) {
    const auto rows = rowsOf(Table::modes, studioText());
    ASSERT_EQ(rows.size(), 5U);
    EXPECT_EQ(rows[0]["type"], "Standard");
    EXPECT_EQ(rows[0]["mode_index"], 0);
    EXPECT_EQ(rows[0]["brightness"], 140);
    EXPECT_EQ(rows[0]["brightness_type"], "Candela");
    EXPECT_EQ(rows[0]["white_temperature"], 6500);
    EXPECT_EQ(rows[0]["gamma"], "2.2");
    EXPECT_EQ(rows[0]["gamut"], "sRGB");
    EXPECT_EQ(rows[0]["calibrated_time"], nullptr);
    EXPECT_EQ(rows[1]["brightness"], nullptr);
    EXPECT_EQ(rows[1]["gamma"], "SyncSignal");
    EXPECT_EQ(rows[2]["name"], "Photo");
    EXPECT_EQ(rows[2]["brightness"], 120);
    EXPECT_EQ(rows[2]["white_x"], 0.3127);
    EXPECT_EQ(rows[2]["white_y"], 0.329);
    EXPECT_EQ(rows[2]["white_temperature"], nullptr);
    EXPECT_EQ(rows[2]["gamma"], "2.2");
    EXPECT_EQ(rows[2]["gamut"], "Native");
    EXPECT_EQ(rows[2]["calibrated_time"], "2024-05-02T09:31:00");
}

TEST(Tables, JoinSettingsAndResultsByTheirIndex) {
    const auto result = [](const std::string& index, const std::string& name) {
        return "<ColorMode Type='R'>" + index + "<Name>" + name +
               "</Name><BasicData><UsageHours>7</UsageHours></BasicData></ColorMode>";
    };
    const auto rows = rowsOf(
        Table::modes, "<MonitorInfo><MonitorConfiguration><ColorModeSettings><ColorMode Type='S'><Index>2</Index>"
                      "<Name>s</Name></ColorMode></ColorModeSettings></MonitorConfiguration><CalibrationModeResult>" +
                          result("<Index>1</Index>", "first") + result("<Index>2</Index>", "second") +
                          result("<Index>2</Index>", "third") + result("", "fourth") +
                          "</CalibrationModeResult></MonitorInfo>");
    ASSERT_EQ(rows.size(), 4U);
    EXPECT_EQ(rows[0]["name"], "s");
    EXPECT_EQ(rows[0]["usage_hours"], 7);
    EXPECT_EQ(rows[1]["name"], "first");
    EXPECT_EQ(rows[1]["mode_index"], 1);
    EXPECT_EQ(rows[1]["type"], "R");
    EXPECT_EQ(rows[2]["name"], "third");
    EXPECT_EQ(rows[3]["name"], "fourth");
    EXPECT_EQ(rows[3]["mode_index"], nullptr);
}

TEST(Tables, JoinModesOfTheSameIndexInTheirOrder) {
    const auto mode = [](const std::string& name) {
        return "<ColorMode Type='S'><Index>2</Index><Name>" + name + "</Name></ColorMode>";
    };
    const auto result = [](const std::string& hours) {
        return "<ColorMode><Index>2</Index><BasicData><UsageHours>" + hours + "</UsageHours></BasicData></ColorMode>";
    };
    const auto rows =
        rowsOf(Table::modes, "<MonitorInfo><MonitorConfiguration><ColorModeSettings>" + mode("a") + mode("b") +
                                 "</ColorModeSettings></MonitorConfiguration><CalibrationModeResult>" + result("7") +
                                 result("8") + "</CalibrationModeResult></MonitorInfo>");
    ASSERT_EQ(rows.size(), 2U);
    EXPECT_EQ(rows[0]["name"], "a");
    EXPECT_EQ(rows[0]["usage_hours"], 7);
    EXPECT_EQ(rows[1]["name"], "b");
    EXPECT_EQ(rows[1]["usage_hours"], 8);
}

TEST(Tables, HaveTheFiguresOfAModeWithTheirDigits) {
    const auto rows = rowsOf(Table::modes, studioText());
    const json figures = json::parse(analysis::figuresJSON(
        analysis::monitorFigures(*analysis::monitorOf(analysis::Document(studioText(), catalogue()).record()))));
    ASSERT_EQ(rows.size(), figures["modes"].size());
    for (std::size_t mode = 0; mode < rows.size(); ++mode) {
        for (const char* const key : {"white_tristimulus_y", "white_cct", "white_delta_uv", "white_delta_e2000",
                                      "patches_delta_e2000_mean", "patches_delta_e2000_maximum"}) {
            EXPECT_EQ(rows[mode][key], figures["modes"][mode]["figures"][key]["measured"]) << mode << ' ' << key;
        }
    }
    EXPECT_EQ(rows[0]["patches_delta_e2000_mean"], nullptr);
    EXPECT_EQ(rows[4]["patches_delta_e2000_mean"], 1.10);
    EXPECT_EQ(rows[4]["white_cct"], 6497);
    EXPECT_THAT(csvOf(Table::modes, studioText()), HasSubstr(",1000.6680,6497,0.0001,0.08,1.10,5.37\r\n"));
}

TEST(Tables, HaveARowForEachPatch) {
    const auto rows = rowsOf(Table::patches,
                             "<MeasurementData><Measurements><RGB>255|0|1</RGB><XYZ>-700000|0|12</XYZ></Measurements>"
                             "<Measurements><CMYK>33|0|100|1</CMYK><CIELAB>1|2|-3</CIELAB><RGB>1|2</RGB></Measurements>"
                             "</MeasurementData>");
    ASSERT_EQ(rows.size(), 2U);
    EXPECT_EQ(rows[0]["rgb_r"], 255);
    EXPECT_EQ(rows[0]["xyz_x"], -0.7);
    EXPECT_EQ(rows[0]["xyz_z"], 0.000012);
    EXPECT_EQ(rows[0]["cmyk_c"], nullptr);
    EXPECT_EQ(rows[1]["patch"], 1);
    EXPECT_EQ(rows[1]["cmyk_c"], 0.33);
    EXPECT_EQ(rows[1]["cmyk_k"], 0.01);
    EXPECT_EQ(rows[1]["lab_b"], -0.000003);
    EXPECT_EQ(rows[1]["rgb_r"], nullptr);
    const auto ofStudio = rowsOf(Table::patches, studioText());
    ASSERT_FALSE(ofStudio.empty());
    EXPECT_EQ(ofStudio.front()["source"], "calibration_mode_result");
    EXPECT_EQ(ofStudio.front()["mode_index"], 2);
    EXPECT_EQ(ofStudio.back()["source"], "standard_mode_result_secondary");
    EXPECT_EQ(ofStudio.back()["mode_index"], nullptr);
}

TEST(Tables, SayWhichSensorMeasuredAPatch) {
    const std::string series = "<MeasurementData><Measurements><RGB>1|2|3</RGB></Measurements></MeasurementData>";
    const auto measuredBy = [&](const std::string& sensor) {
        return "<BasicData><ColorSensorSerial>" + sensor + "</ColorSensorSerial></BasicData>" + series;
    };
    const auto rows = rowsOf(Table::patches, "<MonitorInfo><CalibrationModeResult><ColorMode>" + measuredBy("007") +
                                                 "</ColorMode><ColorMode>" + series +
                                                 "</ColorMode>"
                                                 "</CalibrationModeResult><StandardModeResult>" +
                                                 measuredBy("8") + "</StandardModeResult></MonitorInfo>");
    ASSERT_EQ(rows.size(), 3U);
    EXPECT_EQ(rows[0]["sensor_serial"], "007");
    EXPECT_EQ(rows[1]["sensor_serial"], nullptr);
    EXPECT_EQ(rows[2]["sensor_serial"], "8");
}

TEST(Tables, HaveARowForEachEntryOfACurve) {
    std::string table = "1000000";
    for (int entry = 1; entry < 256; ++entry) {
        table += "|5";
    }
    const std::string start = "<MonitorParameter><BlueLUT>" + table + "</BlueLUT>";
    const auto rows = rowsOf(Table::curves, start + "</MonitorParameter>");
    ASSERT_EQ(rows.size(), 256U);
    EXPECT_EQ(rows[0]["kind"], "monitor_table");
    EXPECT_EQ(rows[0]["channel"], "blue");
    EXPECT_EQ(rows[0]["value"], 1);
    EXPECT_EQ(rows[255]["entry"], 255);
    EXPECT_EQ(rows[255]["value"], 0.000005);
    EXPECT_EQ(rowsOf(Table::curves, start + "<isHDRLUT>1</isHDRLUT></MonitorParameter>")[0]["value"], 0.001);

    const auto curves = rowsOf(Table::curves, "<ProfileData><RedTargetCurve Type='Lut'>0|500000</RedTargetCurve>"
                                              "<GreenTargetCurve Type='Formula'>2200000</GreenTargetCurve>"
                                              "<BlueTargetCurve Type='LStar'/></ProfileData>");
    ASSERT_EQ(curves.size(), 3U);
    EXPECT_EQ(curves[1]["entry"], 1);
    EXPECT_EQ(curves[1]["value"], 0.5);
    EXPECT_EQ(curves[2]["type"], "Formula");
    EXPECT_EQ(curves[2]["entry"], nullptr);
    EXPECT_EQ(curves[2]["value"], 2.2);
}

TEST(Tables, HaveARowForEachEntryOfAMap) {
    const auto rows =
        rowsOf(Table::maps, "<CandelaMap><Uniformity><Values>5|6</Values></Uniformity><Brightness><Values>7</Values>"
                            "<UpdatedAt>now</UpdatedAt></Brightness></CandelaMap>");
    ASSERT_EQ(rows.size(), 3U);
    EXPECT_EQ(rows[1]["kind"], "uniformity");
    EXPECT_EQ(rows[1]["entry"], 1);
    EXPECT_EQ(rows[1]["value"], 6);
    EXPECT_EQ(rows[2]["updated_at"], "now");
}

}  // namespace lv::test
