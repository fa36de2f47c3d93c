#include <lvdata/core/ParsedDocument.h>
#include <lvdata/records/CalibrationModeResult.h>
#include <lvdata/records/CorrelationInfo.h>
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

// Classes of an application that make use of the library's records: they find every document whole, whatever the
// library does to be quick with its own classes.

namespace lv::test {
namespace {

CorrelationInfo correlation(const std::string& sensor) {
    CorrelationInfo info;
    info.referenceSensorID.set(sensor);
    return info;
}

/// What the class writes into a document that the application holds itself.
std::string appendedAndPrinted(const DataObject& object) {
    XMLDocument document;
    object.appendXMLElement(document);
    return document.toXMLString(false, false);
}

class ApplicationRecord : public DataObject {
public:
    ApplicationRecord() : DataObject(1, 0) {}
    bool parseXMLElement(XMLElement /*element*/) override { return false; }
};

class TwoRecords : public ApplicationRecord {
public:
    XMLElement appendXMLElement(XMLNode& parent) const override {
        correlation("first").appendXMLElement(parent);
        return correlation("second").appendXMLElement(parent);
    }
};

TEST(ApplicationClasses, TwoRecordsBehindEachOtherAreBothWritten) {
    const std::string text = TwoRecords().toXMLString(false, false);
    EXPECT_EQ(text, appendedAndPrinted(TwoRecords()));
    XMLDocument document;
    ASSERT_TRUE(document.parseXMLString(text));
    CorrelationInfo first;
    EXPECT_TRUE(first.parseXMLElement(document.rootElement()));
    EXPECT_EQ(first.referenceSensorID.value, "first");
    EXPECT_NE(text.find("<ReferenceSensorID>second<"), std::string::npos);
}

/// Reads back what the record that it holds has appended.
class ReadingBack : public ApplicationRecord {
public:
    XMLElement appendXMLElement(XMLNode& parent) const override {
        const XMLElement root = correlation("S").appendXMLElement(parent);
        root.getStringValue("ReferenceSensorID", found);
        return root;
    }

    mutable std::string found;
};

TEST(ApplicationClasses, AHeldRecordsElementsAreFoundWhereItAppendedThem) {
    const ReadingBack object;
    EXPECT_EQ(object.toXMLString(false, false), appendedAndPrinted(correlation("S")));
    EXPECT_EQ(object.found, "S");
}

/// Puts another document in the place of what was appended.
class Replacing : public ApplicationRecord {
public:
    XMLElement appendXMLElement(XMLNode& parent) const override {
        correlation("S").appendXMLElement(parent);
        XMLDocument document(parent.get());
        EXPECT_TRUE(document.parseXMLString("<Other/>"));
        return document.rootElement();
    }
};

TEST(ApplicationClasses, ADocumentCanBeReplaced) {
    EXPECT_EQ(Replacing().toXMLString(false, false), "<Other/>");
}

/// Copies the parent, as a wrapper may be, and appends to the copy.
class CopyingTheParent : public CorrelationInfo {
public:
    XMLElement appendXMLElement(XMLNode& parent) const override {
        XMLNode copy = parent;
        const XMLElement root = CorrelationInfo::appendXMLElement(copy);
        root.appendChildString("Own", "1");
        return root;
    }
};

TEST(ApplicationClasses, ACopiedParentIsTheSameDocument) {
    CopyingTheParent object;
    object.referenceSensorID.set("S");
    const std::string text = object.toXMLString(false, false);
    EXPECT_EQ(text, appendedAndPrinted(object));
    EXPECT_NE(text.find("<ReferenceSensorID>S</ReferenceSensorID><Own>1</Own>"), std::string::npos);
}

/// Appends to what it inherits, through the parent that it was given.
class Extending : public CorrelationInfo {
public:
    XMLElement appendXMLElement(XMLNode& parent) const override {
        const XMLElement root = CorrelationInfo::appendXMLElement(parent);
        EXPECT_TRUE(root.isValid());
        root.setAttributeString("Own", "1");
        return root;
    }
};

/// The same at the third place: inside a class of the application, inside its own element.
class Holding : public ApplicationRecord {
public:
    XMLElement appendXMLElement(XMLNode& parent) const override {
        XMLElement root = appendRootXMLElement("Holding", parent);
        root.appendChildInt("Before", 1);
        inner.appendXMLElement(root);
        EXPECT_EQ(root.getElement("CorrelationInfo").getElement("ReferenceSensorID").isValid(), true);
        root.appendChildInt("After", 2);
        return root;
    }

    Extending inner;
};

TEST(ApplicationClasses, WhatAClassAddsToARecordStandsInItsPlace) {
    Holding object;
    object.inner.referenceSensorID.set("S");
    const std::string text = object.toXMLString(false, false);
    EXPECT_EQ(text, "<Holding><Before>1</Before>"
                    R"(<CorrelationInfo Version="1" MinorVersion="0" Own="1"><ReferenceSensorID>S</ReferenceSensorID>)"
                    "</CorrelationInfo><After>2</After></Holding>");
    EXPECT_EQ(text, appendedAndPrinted(object));
    EXPECT_NE(object.inner.toXMLString(true, true).find("Own=\"1\""), std::string::npos);
}

/// Takes the parent for a document of its own and prints that before the end.
class PrintingTheParent : public ApplicationRecord {
public:
    XMLElement appendXMLElement(XMLNode& parent) const override {
        EXPECT_EQ(parent.type(), XMLNode::documentType);
        const XMLElement root = correlation("S").appendXMLElement(parent);
        printed = XMLDocument(parent.get()).toXMLString(false, false);
        return root;
    }

    mutable std::string printed;
};

TEST(ApplicationClasses, TheParentIsADocumentWrapper) {
    class Casting : public ApplicationRecord {
    public:
        XMLElement appendXMLElement(XMLNode& parent) const override {
            const auto* const document = dynamic_cast<const XMLDocument*>(&parent);
            EXPECT_NE(document, nullptr);
            return document == nullptr ? nullptr : document->appendChild("Cast");
        }
    };
    EXPECT_EQ(Casting().toXMLString(false, false), "<Cast/>");
}

TEST(ApplicationClasses, TheParentIsADocumentThatCanBePrinted) {
    const PrintingTheParent object;
    EXPECT_EQ(object.toXMLString(false, false), object.printed);
    EXPECT_EQ(object.printed, correlation("S").toXMLString(false, false));
}

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

TEST(ApplicationClasses, AHeldRecordReadsWhatWasChanged) {
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

TEST(ApplicationClasses, AnElementToReadMayBecomeAParent) {
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

TEST(ApplicationClasses, ADocumentThatIsReplacedWhileItIsReadIsRefusedAsItWas) {
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

TEST(ApplicationClasses, OperationsThatTakeAnElementReadWhatWasChanged) {
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

TEST(ApplicationClasses, ANameMayChangeTheDocument) {
    ParsedDocument document("<Renamed/>");
    RenamedMeasurements record;
    AddingARow adding;
    record.changes = [&] {
        EXPECT_TRUE(document.read(adding));
    };
    ASSERT_TRUE(document.read(record));
    EXPECT_EQ(record.objects.at(0).RGB, (std::vector<unsigned int>{7, 8, 9}));
}

TEST(ApplicationClasses, ADocumentThatAClassHasReadIsNotTakenForUntouched) {
    ParsedDocument document("<MonitorParameter><RedLUT>1|2|3</RedLUT></MonitorParameter>");
    HandingOn first;
    ASSERT_TRUE(document.read(first));
    MonitorParameter second;
    ASSERT_TRUE(document.read(second));
    EXPECT_EQ(second.redLUT.value, (std::vector<unsigned int>{7, 7, 7}));
}

TEST(ApplicationClasses, NestedRecordsReadWhatTheApplicationChangedInItsDocument) {
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

TEST(ApplicationClasses, WhatTheyChangeInTheDocumentIsRead) {
    Amending parameter;
    ASSERT_TRUE(parameter.parseXMLString("<MonitorParameter><RedLUT>1|2|3</RedLUT></MonitorParameter>"));
    EXPECT_EQ(parameter.redLUT.value, (std::vector<unsigned int>{7, 7, 7}));
}

}  // namespace
}  // namespace lv::test
