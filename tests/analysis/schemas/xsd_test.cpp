#include "XMLSchema.h"
#include "schema_documents.h"

#include <lvdata/analysis/schemas/xsd.h>

#include <gmock/gmock.h>

// XML Schemas accept what records print.

namespace lv::test {
namespace {

using testing::HasSubstr;
using testing::Not;

std::string xsdOf(const std::string& record) {
    return analysis::xsd(*catalogue().find(record)->shape);
}

std::size_t countOf(const std::string& piece, const std::string& text) {
    std::size_t count = 0;
    for (std::size_t at = text.find(piece); at != std::string::npos; at = text.find(piece, at + 1)) {
        ++count;
    }
    return count;
}

TEST(XSD, AcceptsTheStoredDocuments) {
    for (const analysis::Catalogue::Entry& entry : catalogue().entries()) {
        const XMLSchema schema(analysis::xsd(*entry.shape));
        for (const NamedDocument& document : storedDocuments(entry.facts->name)) {
            EXPECT_EQ(schema.refusalOf(document.text), "") << document.name;
        }
    }
}

TEST(XSD, AcceptsWhatRecordsPrintUnderAnyConditions) {
    for (const analysis::Catalogue::Entry& entry : catalogue().entries()) {
        const XMLSchema schema(analysis::xsd(*entry.shape));
        for (const DescribedNode& node : withDescendants(DescribedNode(*entry.facts))) {
            EXPECT_EQ(schema.refusalOf(printedWith(node, entry)), "") << node.name();
        }
    }
}

TEST(XSD, AcceptsTheLimitsOfNumbers) {
    const XMLSchema schema(xsdOf("MeasurementData"));
    const std::string before = R"(<MeasurementData Version="4294967295" MinorVersion="0"><Measurements><RGB>)";
    const std::string after = "</Measurements></MeasurementData>";
    EXPECT_EQ(schema.refusalOf(before + "0|4294967295|1000000000</RGB>" + after), "");
    EXPECT_EQ(schema.refusalOf(before + "9|99|4000000000</RGB><XYZ>-2147483648|2147483647|0</XYZ>" + after), "");
    EXPECT_NE(schema.refusalOf(before + "0|4294967296|0</RGB>" + after), "");
    EXPECT_NE(schema.refusalOf(before + "0|-1|0</RGB>" + after), "");
    EXPECT_NE(schema.refusalOf(before + "0|0|0</RGB><XYZ>0|2147483648|0</XYZ>" + after), "");
    EXPECT_NE(schema.refusalOf(before + "0|0|0</RGB><XYZ>0|-2147483649|0</XYZ>" + after), "");
}

TEST(XSD, AcceptsEmptyTextWhereRecordsPrintIt) {
    const XMLSchema schema(xsdOf("TargetSetting"));
    EXPECT_EQ(schema.refusalOf(R"(<TargetSetting Version="3" MinorVersion="2"><Gamma><Red Type="Lut"><Lut></Lut></Red>)"
                               R"(<Green Type=""/><Blue Type="HLG"/></Gamma></TargetSetting>)"),
              "");
}

TEST(XSD, AcceptsEachLengthThatCounts) {
    const XMLSchema schema(xsdOf("MonitorParameter"));
    const auto refusalAt = [&schema](std::size_t entries) {
        std::string lut = "0";
        for (std::size_t entry = 1; entry < entries; ++entry) {
            lut += "|0";
        }
        return schema.refusalOf(R"(<MonitorParameter Version="4" MinorVersion="0"><RedLUT>)" + lut +
                                "</RedLUT></MonitorParameter>");
    };
    EXPECT_EQ(refusalAt(256), "");
    EXPECT_EQ(refusalAt(1024), "");
    EXPECT_THAT(refusalAt(257), HasSubstr("RedLUT"));
    EXPECT_THAT(refusalAt(1023), HasSubstr("RedLUT"));
}

TEST(XSD, DescribesEachRecordOnce) {
    const std::string monitor = xsdOf("MonitorInfo");
    EXPECT_EQ(countOf("<xs:complexType name=\"BasicData\">", monitor), 1U);
    EXPECT_EQ(countOf(" type=\"BasicData\"", monitor), 2U);
    EXPECT_LT(monitor.size(), 100000U);
}

TEST(XSD, SaysUnitsAndConditionsInWords) {
    const std::string parameter = xsdOf("ParameterSetting");
    EXPECT_THAT(parameter, HasSubstr(R"(When ../@Type is "Percent": brightness in per cent; unit: %. )"
                                     R"(Written when ../@Type is "Candela" or "Percent".)"));
    EXPECT_THAT(parameter, HasSubstr("exponent of a tone curve, times 100."));
    EXPECT_THAT(xsdOf("MeasurementData"), HasSubstr("CIE XYZ tristimulus value, times 1000000; unit not recorded."));
    EXPECT_THAT(xsdOf("AssetInfo"), Not(HasSubstr("unit")));
}

}  // namespace
}  // namespace lv::test
