#include <tests/core/ApplicationRecord.h>

#include <lvdata/core/ParsedDocument.h>
#include <lvdata/records/CalibrationModeResult.h>
#include <lvdata/records/MeasurementData.h>
#include <lvdata/records/MonitorParameter.h>
#include <lvdata/records/TargetSetting.h>
#include <lvdata/xml/XMLDocument.h>

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include <tinyxml2.h>

// Classes of an application that change a document while it is read: records read what the document then holds,
// although the library reads untouched documents in a faster way.

namespace lv::test {
namespace {

/// Hands the element on to a record that it holds, after it has changed the document.
class HandingOn : public ApplicationRecord {
public:
    XMLElement appendXMLElement(XMLNode& /*parent*/) const override { return nullptr; }

    bool parseXMLElement(XMLElement element) override {
        auto* const table = static_cast<tinyxml2::XMLNode*>(element.getElement("RedLUT").get());
        table->ToElement()->SetText("7|7|7");
        return moves ? held.parseXMLElement(std::move(element)) : held.parseXMLElement(element);
    }

    bool moves = false;
    MonitorParameter held;
};

TEST(ApplicationClassesParsing, AHeldRecordReadsWhatWasChanged) {
    for (const bool moves : {false, true}) {
        HandingOn object;
        object.moves = moves;
        ASSERT_TRUE(object.parseXMLString("<MonitorParameter><RedLUT>1|2|3</RedLUT></MonitorParameter>"));
        EXPECT_EQ(object.held.redLUT.value, (std::vector<unsigned int>{7, 7, 7}));
    }
}

/// Prints a record into the very element that it is asked to read.
class PrintingIntoTheElement : public ApplicationRecord {
public:
    bool parseXMLElement(XMLElement element) override {
        correlation("S").appendXMLElement(element);
        return element.getElement("CorrelationInfo").getElement("ReferenceSensorID").isValid();
    }
    XMLElement appendXMLElement(XMLNode& /*parent*/) const override { return nullptr; }
};

TEST(ApplicationClassesParsing, AnElementBeingReadCanBeAppendedTo) {
    EXPECT_TRUE(PrintingIntoTheElement().parseXMLString("<r/>"));
}

/// Puts another document in the place of the one that it is asked to read, and refuses it.
class ReplacingWhatIsRead : public ApplicationRecord {
public:
    explicit ReplacingWhatIsRead(std::string text) : text_(std::move(text)) {}
    bool parseXMLElement(XMLElement element) override {
        auto* const node = static_cast<tinyxml2::XMLNode*>(element.get());
        XMLDocument(static_cast<tinyxml2::XMLNode*>(node->GetDocument())).parseXMLString(text_);
        return false;
    }
    XMLElement appendXMLElement(XMLNode& /*parent*/) const override { return nullptr; }

private:
    std::string text_;
};

TEST(ApplicationClassesParsing, ADocumentReplacedWhileReadIsReportedByItsFirstRootElement) {
    for (const char* const text : {"<Other/>", "<Other"}) {
        const ParseResult result = ReplacingWhatIsRead(text).parseXML("<!-- -->\n<First/>");
        EXPECT_EQ(result.outcome, ParseResult::Outcome::rootElementRefused);
        EXPECT_EQ(result.reason, "First");
        EXPECT_EQ(result.line, 2);
    }
}

/// Calls the operations of a record that take an element by reference, on one that it has changed.
class Delegating : public TargetSetting {
public:
    bool parseXMLElement(XMLElement element) override {
        element.appendChild("Green").appendChildUIntArray("Lut", {7, 8, 9}, "|");
        parseGammaElement(element, "Green", appended);
        auto* const lut = static_cast<tinyxml2::XMLNode*>(element.getElement("Red").getElement("Lut").get());
        lut->ToElement()->SetText("3|4");
        parseGammaElement(element, "Red", changed);
        return true;
    }

    gamma_t::gamma_color appended;
    gamma_t::gamma_color changed;
};

TEST(ApplicationClassesParsing, OperationsThatTakeAnElementReadWhatWasChanged) {
    Delegating object;
    ASSERT_TRUE(object.parseXMLString("<TargetSetting><Red Type='Lut'><Lut>1|2</Lut></Red></TargetSetting>"));
    EXPECT_EQ(object.appended.lut, (std::vector<unsigned int>{7, 8, 9}));
    EXPECT_EQ(object.changed.lut, (std::vector<unsigned int>{3, 4}));
}

/// Changes the document where it is asked for its name.
class RenamedMeasurements : public MeasurementData {
public:
    std::string getRootElementName() const override {
        changes();
        return "Renamed";
    }

    std::function<void()> changes;
};

/// Adds a row to any document.
class AddingARow : public ApplicationRecord {
public:
    bool parseXMLElement(XMLElement element) override {
        element.appendChild("Measurements").appendChildUIntArray("RGB", {7, 8, 9}, "|");
        return true;
    }
    XMLElement appendXMLElement(XMLNode& /*parent*/) const override { return nullptr; }
};

TEST(ApplicationClassesParsing, GetRootElementNameMayChangeTheDocument) {
    ParsedDocument document("<Renamed/>");
    RenamedMeasurements record;
    AddingARow adding;
    record.changes = [&] {
        EXPECT_TRUE(document.read(adding));
    };
    ASSERT_TRUE(document.read(record));
    EXPECT_EQ(record.objects.at(0).RGB, (std::vector<unsigned int>{7, 8, 9}));
}

TEST(ApplicationClassesParsing, ChangesMadeByOneReaderAreSeenByTheNext) {
    ParsedDocument document("<MonitorParameter><RedLUT>1|2|3</RedLUT></MonitorParameter>");
    HandingOn first;
    ASSERT_TRUE(document.read(first));
    MonitorParameter second;
    ASSERT_TRUE(document.read(second));
    EXPECT_EQ(second.redLUT.value, (std::vector<unsigned int>{7, 7, 7}));
}

TEST(ApplicationClassesParsing, NestedRecordsReadWhatTheApplicationChangedInItsDocument) {
    XMLDocument document;
    ASSERT_TRUE(document.parseXMLString("<CalibrationModeResult><ColorMode><MonitorParameter><RedLUT>1|2|3</RedLUT>"
                                        "</MonitorParameter></ColorMode></CalibrationModeResult>"));
    const XMLElement parameter = document.rootElement().getElement("ColorMode").getElement("MonitorParameter");
    auto* const table = static_cast<tinyxml2::XMLNode*>(parameter.getElement("RedLUT").get());
    table->ToElement()->SetText("7|7|7");
    CalibrationModeResult result;
    ASSERT_TRUE(result.parseXMLElement(document.rootElement()));
    EXPECT_EQ(result.objects.at(0).monitorParameter.redLUT.value, (std::vector<unsigned int>{7, 7, 7}));
}

/// Changes the document, as the XML library allows it, before the inherited class reads it.
class Amending : public MonitorParameter {
public:
    bool parseXMLElement(XMLElement element) override {
        auto* const table = static_cast<tinyxml2::XMLNode*>(element.getElement("RedLUT").get());
        table->ToElement()->SetText("7|7|7");
        return MonitorParameter::parseXMLElement(element);
    }
};

TEST(ApplicationClassesParsing, WhatAnOverrideChangesIsReadByTheInheritedClass) {
    Amending parameter;
    ASSERT_TRUE(parameter.parseXMLString("<MonitorParameter><RedLUT>1|2|3</RedLUT></MonitorParameter>"));
    EXPECT_EQ(parameter.redLUT.value, (std::vector<unsigned int>{7, 7, 7}));
}

}  // namespace
}  // namespace lv::test
