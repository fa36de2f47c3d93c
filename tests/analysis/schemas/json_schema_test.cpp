#include "schema_documents.h"

#include <lvdata/analysis/schemas/json_schema.h>

#include <gmock/gmock.h>

// What JSON Schemas say, as text. Whether they accept what records print is tried in tests/schemas.

namespace lv::test {
namespace {

using testing::HasSubstr;

std::string schemaOf(const std::string& record) {
    return analysis::jsonSchema(*catalogue().find(record)->shape);
}

TEST(JSONSchema, NamesItselfWithoutAHost) {
    EXPECT_THAT(schemaOf("MonitorInfo"), HasSubstr(R"("$id": "urn:lvdata:schema:MonitorInfo:2.2",)"));
}

TEST(JSONSchema, HasTheRootElementAsItsOneKey) {
    EXPECT_THAT(schemaOf("AssetInfo"), HasSubstr("  \"required\": [\"asset_info\"],\n"
                                                 "  \"properties\": {\"asset_info\": {\"$ref\": "
                                                 "\"#/$defs/AssetInfo\"}},\n"));
}

TEST(JSONSchema, MovesThePointOfTheRange) {
    EXPECT_THAT(schemaOf("MonitorParameter"),
                HasSubstr(R"("red_gain": {"description": "Meaning: gain of a channel.", "type": "number", )"
                          R"("minimum": 0, "maximum": 4294.967295})"));
    EXPECT_THAT(schemaOf("MonitorParameter"),
                HasSubstr(R"("type": "number", "minimum": -2147.483648, "maximum": 2147.483647}, "minItems": 9)"));
}

TEST(JSONSchema, KeepsIntegersWhoseFactorIsNotAPowerOfTen) {
    EXPECT_THAT(schemaOf("MeasurementData"),
                HasSubstr(R"("rgb": {"description": "Meaning: RGB code value as a fraction of 255, times 255.", )"
                          R"("type": "array", "items": {"type": "integer", "minimum": 0, "maximum": 4294967295}, )"
                          R"("minItems": 3, "maxItems": 3})"));
}

TEST(JSONSchema, HasTheWidestRangeOfSeveralQuantities) {
    EXPECT_THAT(schemaOf("MonitorParameter"),
                HasSubstr(R"("blue_lut": {"description": "Meaning: look-up table entry as a fraction.", )"
                          R"("type": "array", "items": {"type": "number", "minimum": 0, "maximum": 4294.967295}, )"
                          R"("anyOf": [{"minItems": 256, "maxItems": 256}, {"minItems": 1024, "maxItems": 1024}]})"));
}

TEST(JSONSchema, HasAnObjectByKey) {
    EXPECT_THAT(schemaOf("ProfileData"), HasSubstr(R"("measured_xyz": {"$ref": "#/$defs/ProfileData.MeasuredXYZ"},)"));
    EXPECT_THAT(schemaOf("ProfileData"), HasSubstr(R"(        "limited109_red": {)"));
}

TEST(JSONSchema, HasConstantsAndAlternatives) {
    EXPECT_THAT(schemaOf("TargetSetting"), HasSubstr(R"("type": {"enum": ["Coordinate"]},)"));
    EXPECT_THAT(schemaOf("ProfileData"), HasSubstr(R"("value": {"anyOf": [{)"));
}

}  // namespace
}  // namespace lv::test
