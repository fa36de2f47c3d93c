#include <tests/analysis/any_record.h>
#include <tests/support/golden.h>

#include <lvdata/analysis/Document.h>
#include <lvdata/analysis/json/JSON.h>
#include <lvdata/records/AssetInfo.h>

#include <string>

namespace lv::test {
namespace {

using analysis::Document;
using analysis::fromJSON;

std::string compactOf(const std::string& xml) {
    const Document document(xml, catalogue());
    return analysis::toJSON(document.record(), catalogue(), {true}).text;
}

std::string prettyOf(const std::string& xml) {
    const Document document(xml, catalogue());
    return analysis::toJSON(document.record(), catalogue()).text;
}

/// The document of the record that a JSON text gives, without its root's own tag.
std::string xmlOf(const std::string& json) {
    const analysis::FromJSON result = fromJSON(json, catalogue());
    EXPECT_TRUE(result) << result.error->toString();
    return result ? result.record->toXMLString(false, false) : "";
}

/// A class of an application, with a root element of its own.
class Inventory : public AssetInfo {
public:
    XMLElement appendXMLElement(XMLNode& parent) const override { return appendRootXMLElement("Inventory", parent); }
};

}  // namespace

TEST(JSON, HasTheStructureOfTheDocument) {
    EXPECT_EQ(prettyOf("<CandelaMap><Uniformity><Values>1|2</Values></Uniformity></CandelaMap>"),
              "{\n"
              "  \"candela_map\": {\n"
              "    \"version\": 1,\n"
              "    \"minor_version\": 0,\n"
              "    \"uniformity\": {\n"
              "      \"values\": [1, 2],\n"
              "      \"updated_at\": \"\"\n"
              "    },\n"
              "    \"brightness\": {}\n"
              "  }\n"
              "}");
    EXPECT_EQ(compactOf("<ProfilePolicy><Create3DLut>true</Create3DLut><CreateLuminanceTag>false</CreateLuminanceTag>"
                        "</ProfilePolicy>"),
              R"({"profile_policy":{"version":2,"minor_version":0,"create3d_lut":true,"create_luminance_tag":false}})");
}

TEST(JSON, HasAttributesAndTextInOneObject) {
    EXPECT_EQ(compactOf("<ProfileData><RedTargetCurve Type='Formula'>2200000</RedTargetCurve>"
                        "<GreenTargetCurve Type='Lut'>0|500000|1000000</GreenTargetCurve>"
                        "<BlueTargetCurve Type='LStar'/></ProfileData>"),
              R"({"profile_data":{"version":2,"minor_version":0,"red_target_curve":{"type":"Formula","value":2.2},)"
              R"("green_target_curve":{"type":"Lut","value":[0,0.5,1]},"blue_target_curve":{"type":"LStar"}}})");
}

TEST(JSON, HasRowsAsArraysOfObjects) {
    const std::string row = "<Measurements><RGB>255|0|1</RGB><XYZ>-700000|0|12</XYZ></Measurements>";
    EXPECT_EQ(compactOf("<MeasurementData>" + row + "</MeasurementData>"),
              R"({"measurement_data":{"version":2,"minor_version":0,"measurements":[{"rgb":[255,0,1],)"
              R"("xyz":[-0.7,0,0.000012]}]}})");
    EXPECT_EQ(compactOf("<MeasurementData/>"), R"({"measurement_data":{"version":2,"minor_version":0}})");
    EXPECT_NE(prettyOf("<MeasurementData>" + row + row + "</MeasurementData>")
                  .find("    \"measurements\": [\n      {\n        \"rgb\": [255, 0, 1],\n        \"xyz\": [-0.7, 0, "
                        "0.000012]\n      },\n      {\n"),
              std::string::npos);
}

TEST(JSON, HasKeyedElementsAsAnObject) {
    const auto measured = [](const std::string& color) {
        return "<MeasuredXYZ Color='" + color + "'>1000000|2000000|3</MeasuredXYZ>";
    };
    const std::string curves = R"(,"red_target_curve":{},"green_target_curve":{},"blue_target_curve":{}}})";
    const std::string four = measured("Red") + measured("Green") + measured("Blue") + measured("White");
    EXPECT_EQ(compactOf("<ProfileData>" + four + measured("Black") + "</ProfileData>"),
              R"({"profile_data":{"version":2,"minor_version":0,"measured_xyz":{"red":[1,2,0.000003],)"
              R"("green":[1,2,0.000003],"blue":[1,2,0.000003],"white":[1,2,0.000003],"black":[1,2,0.000003]})" +
                  curves);
    EXPECT_EQ(compactOf("<ProfileData>" + four + "</ProfileData>"),
              R"({"profile_data":{"version":2,"minor_version":0)" + curves);
}

TEST(JSON, UsesTheQuantityThatCounts) {
    const auto firstEntry = [](const std::string& isHDR) {
        std::string table = "500000000";
        for (int entry = 1; entry < 256; ++entry) {
            table += "|1";
        }
        const std::string json = compactOf("<MonitorParameter><isHDRLUT>" + isHDR + "</isHDRLUT><RedLUT>" + table +
                                           "</RedLUT></MonitorParameter>");
        const std::size_t begin = json.find("\"red_lut\":[") + 11;
        return json.substr(begin, json.find(',', begin) - begin);
    };
    EXPECT_EQ(firstEntry("0"), "500");
    EXPECT_EQ(firstEntry("1"), "0.5");
}

TEST(JSON, KeepsIntegersWhoseFactorIsNotAPowerOfTen) {
    const std::string json = compactOf(
        "<TargetSetting><Gamma><Red Type='Lut'><Lut>0|65535</Lut></Red><Green Type='Lut24'><Lut24>16777215</Lut24>"
        "</Green></Gamma></TargetSetting>");
    EXPECT_NE(json.find(R"("red":{"type":"Lut","lut":[0,65535]},"green":{"type":"Lut24","lut24":[16777215]})"),
              std::string::npos)
        << json;
}

TEST(JSON, IsWhatItsDocumentationShows) {
    const std::string page = contentOf(LVDATA_DOCS_DIR "/json.md");
    const auto block = [&](const std::string& language) {
        const std::string fence = "```" + language + '\n';
        const std::size_t begin = page.find(fence) + fence.size();
        return page.substr(begin, page.find("\n```", begin) - begin);
    };
    EXPECT_EQ(prettyOf(block("xml")), block("json"));
    EXPECT_EQ(fromJSON(block("json"), catalogue()).record->toXMLString(false, true), block("xml") + '\n');
}

TEST(JSON, EscapesWhatJSONDoesNotTake) {
    AssetInfo asset;
    asset.asset1.set("\"\\\b\f\n\r\t\x01\x7f/\u00e9");
    const std::string json = analysis::toJSON(asset, catalogue(), {true}).text;
    EXPECT_EQ(json, "{\"asset_info\":{\"version\":1,\"minor_version\":0,\"asset1\":"
                    "\"\\\"\\\\\\b\\f\\n\\r\\t\\u0001\\u007f/\u00e9\"}}");
}

TEST(JSON, RefusesRecordsThatTheCatalogueDoesNotHave) {
    const analysis::JSONResult result = analysis::toJSON(Inventory(), catalogue());
    ASSERT_FALSE(result);
    EXPECT_EQ(result.error->toString(), "no record class has the root element of this record");
}

TEST(JSON, TakesKeysInAnyOrder) {
    EXPECT_EQ(xmlOf(R"({"measurement_data": {"measurements": [{"xyz": [1, 2, 3], "rgb": [1, 2, 3]}, {"pqr": [0,0,0]}],
                        "version": 9}})"),
              "<MeasurementData Version=\"9\" MinorVersion=\"0\"><Measurements><RGB>1|2|3</RGB>"
              "<XYZ>1000000|2000000|3000000</XYZ></Measurements><Measurements><PQR>0|0|0</PQR></Measurements>"
              "</MeasurementData>");
    EXPECT_EQ(xmlOf(R"({"profile_data": {"red_target_curve": {"value": 1.5, "type": "Formula"}}})"),
              xmlOf(R"({"profile_data": {"red_target_curve": {"type": "Formula", "value": 1.5}}})"));
}

TEST(JSON, TakesTheQuantityThatALaterKeyChooses) {
    std::string table = "[0.5";
    for (int entry = 1; entry < 256; ++entry) {
        table += ", 1";
    }
    const auto firstOf = [&](const std::string& later) {
        const std::string xml = xmlOf("{\"monitor_parameter\": {\"red_lut\": " + table + "]" + later + "}}");
        const std::size_t begin = xml.find("<RedLUT>") + 8;
        return xml.substr(begin, xml.find('|', begin) - begin);
    };
    EXPECT_EQ(firstOf(""), "500000");
    EXPECT_EQ(firstOf(", \"is_hdrlut\": 0"), "500000");
    EXPECT_EQ(firstOf(", \"is_hdrlut\": 10e-1"), "500000000");
}

TEST(JSON, TakesNullAsAbsent) {
    EXPECT_EQ(xmlOf(R"({"asset_info": {"asset1": null, "asset2": ""}})"),
              "<AssetInfo Version=\"1\" MinorVersion=\"0\"><Asset2></Asset2></AssetInfo>");
    EXPECT_EQ(xmlOf(R"({"profile_data": {"measured_xyz": {"red": null}, "red_target_curve": null}})"),
              xmlOf(R"({"profile_data": {}})"));
}

TEST(JSON, SetsTheSwitchWhenAKeyIsThereThatItGoverns) {
    const auto switchOf = [](const std::string& json) {
        return fromJSON(json, catalogue()).record->writeHLGSystemGamma;
    };
    EXPECT_TRUE(switchOf(R"({"parameter_setting": {"gamma": {"hlg_system_gamma": 1.2}}})"));
    EXPECT_FALSE(switchOf(R"({"parameter_setting": {"gamma": {"hlg_system_gamma": null}}})"));
    EXPECT_FALSE(switchOf(R"({"parameter_setting": {}})"));
    EXPECT_FALSE(switchOf(R"({"monitor_parameter": {"hlg_system_gamma": 1.2}})"));
}

TEST(JSON, IsUnchangedByRepeatedRoundTrips) {
    std::string json =
        R"({"measurement_data":{"version":2,"minor_version":0,"measurements":[{"rgb":[255,0,1],)"
        R"("cmyk":[0.33,0.29,0,1],"xyz":[-0.7,-0.3,-2147.483648],"cielab":[0.000001,-0.000001,2147.483647],)"
        R"("pqr":[0.1,0.2,-0.3]}]}})";
    const std::string first = json;
    for (int round = 0; round < 1000; ++round) {
        json = analysis::toJSON(*fromJSON(json, catalogue()).record, catalogue(), {true}).text;
    }
    EXPECT_EQ(json, first);
}

TEST(JSON, KeepsAListOfAHundredThousandRows) {
    constexpr int rows = 100000;
    std::string json = R"({"measurement_data":{"version":2,"minor_version":0,"measurements":[)";
    for (int row = 0; row < rows; ++row) {
        json += row == 0 ? "" : ",";
        json += R"({"xyz":[0.1,0.2,0.3]})";
    }
    json += "]}}";
    const analysis::FromJSON result = fromJSON(json, catalogue());
    ASSERT_TRUE(result) << result.error->toString();
    EXPECT_EQ(analysis::toJSON(*result.record, catalogue(), {true}).text, json);
}

}  // namespace lv::test
