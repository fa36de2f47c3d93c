#include <tests/analysis/any_record.h>

#include <lvdata/analysis/json/JSON.h>

#include <string>

// What a JSON text says and its record does not print.

namespace lv::test {
namespace {

analysis::Findings lossesOf(const std::string& json) {
    const analysis::FromJSON result = analysis::fromJSON(json, catalogue());
    EXPECT_TRUE(result) << result.error->toString();
    return result.losses;
}

/// One line for each, beginning with its rule.
std::string linesOf(const analysis::Findings& losses) {
    std::string lines;
    for (const analysis::Finding& loss : losses.listed) {
        EXPECT_EQ(loss.line, 0);
        lines += std::string(loss.rule->id) + ' ' + loss.path + '\n';
    }
    return lines;
}

}  // namespace

TEST(JSONLosses, AreValuesThatDoNotBelongToTheTypeBesideThem) {
    const std::string begin = R"({"color_mode_settings": {"color_mode": [{"type": ")";
    const std::string end = R"(", "target": {"type": "Lumivale"}}]}})";
    EXPECT_EQ(linesOf(lossesOf(begin + "Calibration" + end)), "");
    const analysis::Findings losses = lossesOf(begin + "Calibraton" + end);
    EXPECT_EQ(losses.countFrom(analysis::Severity::warning), losses.listed.size());
    EXPECT_EQ(linesOf(losses), "305 /ColorModeSettings/ColorMode[1]/Target\n");
}

TEST(JSONLosses, LeaveOutWhatIsOnlyAdded) {
    const analysis::Findings losses = lossesOf(R"({"asset_info": {"version": 7, "asset1": "one"}})");
    EXPECT_EQ(linesOf(losses), "");
    EXPECT_EQ(losses.count(), 0U);
}

}  // namespace lv::test
