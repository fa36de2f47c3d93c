#include <lvdata/core/ParsedDocument.h>
#include <lvdata/records/CorrelationInfo.h>
#include <lvdata/records/MeasurementData.h>
#include <lvdata/records/MonitorInfo.h>
#include <lvdata/records/MonitorParameter.h>

#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace lv {
namespace {

using Outcome = ParseResult::Outcome;

const std::string parameterText =
    "<MonitorParameter><Brightness>5</Brightness><RedLUT>1|2|3</RedLUT></MonitorParameter>";

TEST(ParsedDocument, IsReadIntoARecord) {
    ParsedDocument document(parameterText);
    EXPECT_TRUE(document.parseResult());
    EXPECT_EQ(document.rootElementName(), "MonitorParameter");
    MonitorParameter parameter;
    const ParseResult result = document.read(parameter);
    EXPECT_EQ(result.outcome, Outcome::done);
    EXPECT_EQ(result.reason, "");
    EXPECT_EQ(result.line, 0);
    EXPECT_EQ(parameter.brightness.value, 5U);
    EXPECT_EQ(parameter.redLUT.value, (std::vector<unsigned int>{1, 2, 3}));
}

TEST(ParsedDocument, IsReadIntoAnyNumberOfRecords) {
    ParsedDocument document(parameterText);
    for (int round = 0; round < 3; ++round) {
        MonitorParameter parameter;
        EXPECT_TRUE(document.read(parameter));
        EXPECT_EQ(parameter.redLUT.value, (std::vector<unsigned int>{1, 2, 3}));
    }
}

TEST(ParsedDocument, DoesNotNeedTheText) {
    std::string text = parameterText;
    ParsedDocument document(text);
    text.assign(text.size(), 'x');
    MonitorParameter parameter;
    EXPECT_TRUE(document.read(parameter));
    EXPECT_EQ(parameter.redLUT.value, (std::vector<unsigned int>{1, 2, 3}));
}

/// Expects that nothing is read, for that reason.
void expectRefused(const std::string& text, Outcome outcome, const std::string& reason, int line) {
    SCOPED_TRACE(text);
    CorrelationInfo record;
    record.referenceSensorID.set("before");
    const ParseResult result = record.parseXML(text);
    EXPECT_FALSE(result);
    EXPECT_EQ(result.outcome, outcome);
    EXPECT_EQ(result.reason, reason);
    EXPECT_EQ(result.line, line);
    EXPECT_EQ(record.referenceSensorID, (property<std::string>{"before", true}));
    EXPECT_FALSE(record.parseXMLString(text));
    EXPECT_EQ(ParsedDocument(text).read(record).outcome, outcome);
}

TEST(ParseXML, SaysWhyATextIsRefused) {
    expectRefused("<CorrelationInfo>\n<a>\n</b></CorrelationInfo>", Outcome::notXML, "mismatched element", 2);
    expectRefused("no markup", Outcome::notXML, "parsing text", 1);
    expectRefused("", Outcome::nothingThere, "empty document", 0);
    expectRefused(" \n ", Outcome::nothingThere, "empty document", 0);
    expectRefused("<!-- only a comment -->", Outcome::nothingThere, "no root element", 0);
    expectRefused("<!-- -->\n\n<Other/>", Outcome::rootElementRefused, "Other", 3);
    expectRefused("<correlationInfo/>", Outcome::rootElementRefused, "correlationInfo", 1);
}

TEST(ParseXML, SaysThatItIsDone) {
    CorrelationInfo record;
    EXPECT_TRUE(record.parseXML("<CorrelationInfo><ReferenceSensorID>7</ReferenceSensorID></CorrelationInfo>"));
    EXPECT_EQ(record.referenceSensorID, (property<std::string>{"7", true}));
}

TEST(ParsedDocument, WithoutARootElementHasNoRootElementName) {
    for (const char* const text : {"", "<!-- -->", "<a>"}) {
        EXPECT_EQ(ParsedDocument(text).rootElementName(), "");
        EXPECT_FALSE(ParsedDocument(text).parseResult());
    }
}

/// A NUL ends the value of an attribute for the XML library, and what follows may look like the rest of the tag.
TEST(ParseXML, ArraysAfterAnAttributeWithANulAreTheirOwn) {
    for (const char* const nul : {"&#0;", "&#;", "&#x;", "&#x0;", "&#00;"}) {
        for (const char* const element : {"'>4|5|6</RGB>", "' />", "'>4|5|&#54;</RGB>", "' x='1'>4</RGB>"}) {
            const std::string text = std::string("<MeasurementData><Measurements><RGB a='") + nul + ">1|2|3</" +
                                     element + "<XYZ>7|8|9</XYZ></Measurements></MeasurementData>";
            MeasurementData parsed;
            ASSERT_TRUE(parsed.parseXMLString(text)) << text;
            XMLDocument document;
            MeasurementData expected;
            ASSERT_TRUE(document.parseXMLString(text) && expected.parseXMLElement(document.rootElement())) << text;
            EXPECT_EQ(parsed.objects.at(0).RGB, expected.objects.at(0).RGB) << text;
            EXPECT_EQ(parsed.objects.at(0).XYZ, (std::vector<int>{7, 8, 9}));
        }
    }
}

/// Asks for nothing in a document.
class Undemanding : public DataObject {
public:
    Undemanding() : DataObject(1, 0) {}
    bool parseXMLElement(XMLElement element) override {
        wasAsked = true;
        return !element.isValid();
    }
    XMLElement appendXMLElement(XMLNode& /*parent*/) const override { return nullptr; }

    bool wasAsked = false;
};

TEST(ParseXML, OnlyAWellFormedDocumentReachesTheRecordEvenWithoutElements) {
    Undemanding record;
    EXPECT_TRUE(record.parseXML("<!-- -->"));
    EXPECT_TRUE(record.wasAsked);
    Undemanding other;
    EXPECT_EQ(other.parseXML("<a>").outcome, Outcome::notXML);
    EXPECT_EQ(other.parseXML("").outcome, Outcome::nothingThere);
    EXPECT_FALSE(other.wasAsked);
    EXPECT_EQ(other.parseXML("<a/>").outcome, Outcome::rootElementRefused);
}

/// A record that keeps its own text.
TEST(ParseXML, TheTextMayBeAStringOfTheRecordItself) {
    const std::string table(20000, '1');
    MonitorInfo monitor;
    monitor.uuid.set(
        "<MonitorInfo><UUID>a</UUID><CalibrationModeResult><ColorMode><MonitorParameter><RedLUT>1|22|333|" + table +
        "</RedLUT></MonitorParameter></ColorMode></CalibrationModeResult></MonitorInfo>");
    ASSERT_TRUE(monitor.parseXMLString(monitor.uuid.value));
    EXPECT_EQ(monitor.uuid.value, "a");
    const auto& parameter = monitor.calibrationModeResult.value.objects.at(0).monitorParameter;
    EXPECT_EQ(parameter.redLUT.value, (std::vector<unsigned int>{1, 22, 333, 4294967295U}));
}

}  // namespace
}  // namespace lv
