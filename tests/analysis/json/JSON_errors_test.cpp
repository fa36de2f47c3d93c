#include <tests/analysis/any_record.h>

#include <lvdata/analysis/json/JSON.h>
#include <lvdata/records/AssetInfo.h>

#include <string>

// What is wrong with a JSON text is said with its line and its path.

namespace lv::test {
namespace {

std::string errorOf(const std::string& json) {
    const analysis::FromJSON result = analysis::fromJSON(json, catalogue());
    EXPECT_EQ(static_cast<bool>(result), !result.error);
    return result ? "accepted" : result.error->toString();
}

/// The error of an AssetInfo with these members.
std::string errorOfAsset(const std::string& members) {
    return errorOf("{\"asset_info\": {" + members + "}}");
}

std::string errorOfMeasurement(const std::string& row) {
    return errorOf("{\"measurement_data\":\n{\"measurements\": [{},\n{" + row + "}]}}");
}

std::string errorOfParameter(const std::string& members) {
    return errorOf("{\"monitor_parameter\": {" + members + "}}");
}

}  // namespace

TEST(JSONErrors, SayWhatIsNotJSON) {
    EXPECT_EQ(errorOf(""), "line 1: not JSON: unexpected end of input; expected '[', '{', or a literal");
    EXPECT_EQ(errorOf("{\n\"asset_info\": {\n"),
              "line 2: asset_info: not JSON: unexpected end of input; expected string literal");
    EXPECT_EQ(errorOf("{\"asset_info\":\nnul}"), "line 2: asset_info: not JSON: invalid literal");
    EXPECT_EQ(errorOf("{\"asset_info\": {}}\n}"), "line 2: not JSON: unexpected '}'; expected end of input");
    EXPECT_EQ(errorOfAsset("\"asset1\": \"\xff\""),
              "line 1: asset_info.asset1: not JSON: invalid string: ill-formed UTF-8 byte");
    EXPECT_EQ(errorOfAsset("\"asset1\": \"\\ud800\"").substr(0, 64),
              "line 1: asset_info.asset1: not JSON: invalid string: surrogate U");
    EXPECT_EQ(errorOfAsset("\"asset1\": \"a\n\"").substr(0, 73),
              "line 1: asset_info.asset1: not JSON: invalid string: control character U+");
    EXPECT_EQ(errorOfAsset("\"asset1\": \"\", "),
              "line 1: asset_info.asset1: not JSON: unexpected '}'; expected string literal");
}

TEST(JSONErrors, NameOneRecord) {
    EXPECT_EQ(errorOf("{}"), "line 1: there is no record");
    EXPECT_EQ(errorOf("[]"), "line 1: an object expected, not an array");
    EXPECT_EQ(errorOf("null"), "line 1: an object expected, not null");
    EXPECT_EQ(errorOf("{\"asset_info\": null}"), "line 1: asset_info: an object expected, not null");
    EXPECT_EQ(errorOf("{\"asset_inf\": {}}"), "line 1: asset_inf: unknown key, did you mean \"asset_info\"?");
    EXPECT_EQ(errorOf("{\"x\": {}}"), "line 1: x: unknown key");
    EXPECT_EQ(errorOf("{\"asset_info\": {},\n\"asset_info\": {}}"), "line 2: asset_info: only one record expected");
}

TEST(JSONErrors, SayWhichKeyIsUnknownOrTwice) {
    EXPECT_EQ(errorOfAsset("\n\"asset_1\": \"\""), "line 2: asset_info.asset_1: unknown key, did you mean \"asset1\"?");
    EXPECT_EQ(errorOfAsset("\n\n\"Asset1\": \"\""), "line 3: asset_info.Asset1: unknown key, did you mean \"asset1\"?");
    EXPECT_EQ(errorOfAsset("\"owner\": \"\""), "line 1: asset_info.owner: unknown key");
    EXPECT_EQ(errorOfAsset("\"asset1\": null,\n\"asset1\": \"\""), "line 2: asset_info.asset1: duplicate key");
    EXPECT_EQ(errorOf("{\"profile_data\": {\"measured_xyz\": {\"pink\": []}}}"),
              "line 1: profile_data.measured_xyz.pink: unknown key");
    EXPECT_EQ(errorOf("{\"profile_data\": {\"measured_xyz\": {\"limited109_redd\": []}}}"),
              "line 1: profile_data.measured_xyz.limited109_redd: unknown key, did you mean \"limited109_red\"?");
}

TEST(JSONErrors, CutLongKeysAndNumbers) {
    const std::string cut = std::string(60, 'a') + "...";
    EXPECT_EQ(errorOfAsset('"' + std::string(2000000, 'a') + "\": 1"), "line 1: asset_info." + cut + ": unknown key");
    EXPECT_EQ(errorOf("{\"" + std::string(61, 'a') + "\": 1}"), "line 1: " + cut + ": unknown key");
    EXPECT_EQ(errorOf("{\"" + std::string(60, 'a') + "\": 1}"), "line 1: " + std::string(60, 'a') + ": unknown key");
    EXPECT_EQ(errorOf("{\"" + std::string(59, 'a') + "\xC3\xA4\": 1}"),
              "line 1: " + std::string(59, 'a') + "...: unknown key");
    EXPECT_EQ(errorOfParameter("\"red_lut\": [1" + std::string(2000000, '0')),
              "line 1: monitor_parameter.red_lut[0]: number out of range");
}

TEST(JSONErrors, SayWhichTypeIsExpected) {
    EXPECT_EQ(errorOfAsset("\"asset1\": 12\n"), "line 1: asset_info.asset1: text expected, not a number");
    EXPECT_EQ(errorOfAsset("\"asset1\": {}"), "line 1: asset_info.asset1: text expected, not an object");
    EXPECT_EQ(errorOfAsset("\"asset1\": []"), "line 1: asset_info.asset1: text expected, not an array");
    EXPECT_EQ(errorOfAsset("\"asset1\": true"), "line 1: asset_info.asset1: text expected, not true or false");
    EXPECT_EQ(errorOfAsset("\"version\": \"1\""), "line 1: asset_info.version: a number expected, not text");
    EXPECT_EQ(errorOf("{\"profile_policy\": {\"create3d_lut\": 1}}"),
              "line 1: profile_policy.create3d_lut: true or false expected, not a number");
    EXPECT_EQ(errorOfMeasurement("\"rgb\": 1"),
              "line 3: measurement_data.measurements[1].rgb: an array expected, not a number");
    EXPECT_EQ(errorOfMeasurement("\"rgb\": [1, null]"),
              "line 3: measurement_data.measurements[1].rgb[1]: a number expected, not null");
    EXPECT_EQ(errorOfMeasurement("\"rgb\": [[1]]"),
              "line 3: measurement_data.measurements[1].rgb[0]: a number expected, not an array");
    EXPECT_EQ(errorOf("{\"measurement_data\": {\"measurements\": {}}}"),
              "line 1: measurement_data.measurements: an array expected, not an object");
    EXPECT_EQ(errorOf("{\"measurement_data\": {\"measurements\": [null]}}"),
              "line 1: measurement_data.measurements[0]: an object expected, not null");
    EXPECT_EQ(errorOf("{\"profile_data\": {\"measured_xyz\": []}}"),
              "line 1: profile_data.measured_xyz: an object expected, not an array");
    EXPECT_EQ(errorOf("{\"color_mode_settings\": {\"color_mode\": [{\"target\": {\"type\": \"Other\"}}]}}"),
              "line 1: color_mode_settings.color_mode[0].target.type: \"Lumivale\" expected");
}

TEST(JSONErrors, SayWhichTypeTheOtherKeysAskFor) {
    EXPECT_EQ(errorOf("{\"profile_data\": {\"red_target_curve\": {\n\"value\": [1],\n\"type\": \"Formula\"}}}"),
              "line 2: profile_data.red_target_curve.value: a number expected, not an array");
    EXPECT_EQ(errorOf("{\"profile_data\": {\"red_target_curve\": {\"type\": \"Lut\",\n\"value\": 1\n}}}"),
              "line 2: profile_data.red_target_curve.value: an array expected, not a number");
    EXPECT_EQ(errorOf("{\"profile_data\": {\"red_target_curve\": {\"value\": \"1\"}}}"),
              "line 1: profile_data.red_target_curve.value: a number or an array expected, not text");
}

TEST(JSONErrors, SayHowManyEntriesAreExpected) {
    EXPECT_EQ(errorOfMeasurement("\"rgb\": [1,\n2]"),
              "line 3: measurement_data.measurements[1].rgb: 3 entries expected, not 2");
    EXPECT_EQ(errorOf("{\"basic_data\": {\"correlation_target_white\": [1]}}"),
              "line 1: basic_data.correlation_target_white: 3 entries expected, not 1");
    EXPECT_EQ(errorOf("{\"profile_data\": {\"measured_xyz\": {\"red\": [1, 2, 3, 4]}}}"),
              "line 1: profile_data.measured_xyz.red: 3 entries expected, not 4");
    EXPECT_EQ(errorOfParameter("\n\"red_lut\":\n[1,\n2]"),
              "line 3: monitor_parameter.red_lut: 256 or 1024 entries expected, not 2");
}

TEST(JSONErrors, SayWhatIsOutOfRange) {
    EXPECT_EQ(errorOfAsset("\"version\": -1\n"), "line 1: asset_info.version: a number from 0 to 4294967295 expected");
    EXPECT_EQ(errorOfAsset("\"version\":\n4294967296"),
              "line 2: asset_info.version: a number from 0 to 4294967295 expected");
    EXPECT_EQ(errorOfAsset("\"version\": 1e400"), "line 1: asset_info.version: a number from 0 to 4294967295 expected");
    EXPECT_EQ(errorOfMeasurement("\"xyz\": [1,\n2147.483648,\n3]"),
              "line 4: measurement_data.measurements[1].xyz[1]: a number from -2147.483648 to 2147.483647 expected");
    EXPECT_EQ(errorOfAsset("\"asset1\": 1e400"), "line 1: asset_info.asset1: text expected, not a number");
    std::string table = "\"red_lut\": [";
    for (int entry = 0; entry < 255; ++entry) {
        table += "4.2,\n";
    }
    EXPECT_EQ(errorOfParameter(table + "4294.967295]"), "accepted");
    EXPECT_EQ(errorOfParameter(table + "4.3], \"is_hdrlut\": 1"),
              "line 256: monitor_parameter.red_lut[255]: a number from 0 to 4.294967295 expected");
}

TEST(JSONErrors, SayWhatXMLCannotCarry) {
    EXPECT_EQ(errorOfAsset("\"asset1\": \"a\\u0000\""), "line 1: asset_info.asset1: XML cannot carry a NUL character");
    EXPECT_EQ(errorOfAsset("\"asset1\": \"a\\u001f\""),
              "line 1: asset_info.asset1: XML cannot carry a control character");
    EXPECT_EQ(errorOfAsset("\"asset1\": \"a\\rb\""), "line 1: asset_info.asset1: XML cannot carry a carriage return");
    EXPECT_EQ(errorOfAsset("\"asset1\": \"a\\ufffe\""), "line 1: asset_info.asset1: XML cannot carry U+FFFE or U+FFFF");
    EXPECT_EQ(errorOfAsset("\"asset1\": \" \\n\\t\""),
              "line 1: asset_info.asset1: XML cannot carry whitespace-only text");
    EXPECT_EQ(errorOfAsset("\"asset1\": \" \\n\\t\\u007f\\ufffd\""), "accepted");
    EXPECT_EQ(errorOf("{\"calibration_mode_result\": {\"color_mode\": [{\"type\": \" \"}]}}"), "accepted");
}

TEST(JSONErrors, EndNestingAtOnce) {
    const std::string deep(10000000, '[');
    EXPECT_EQ(errorOf(deep), "line 1: an object expected, not an array");
    EXPECT_EQ(errorOf("{\"asset_info\": {\"asset1\": " + deep),
              "line 1: asset_info.asset1: text expected, not an array");
}

TEST(JSONErrors, AreReportedWhenWritingJSONToo) {
    lv::AssetInfo asset;
    asset.asset2.set("\xed\xa0\x80");
    const analysis::JSONResult result = analysis::toJSON(asset, catalogue());
    ASSERT_FALSE(result);
    EXPECT_EQ(result.error->toString(), "asset_info.asset2: JSON cannot carry bytes that are not UTF-8");
}

}  // namespace lv::test
