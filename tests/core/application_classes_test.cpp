#include <lvdata/records/CorrelationInfo.h>
#include <lvdata/records/MonitorParameter.h>
#include <lvdata/xml/XMLDocument.h>

#include <string>
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
