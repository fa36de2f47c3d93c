#include <tests/core/ApplicationRecord.h>

#include <lvdata/xml/XMLDocument.h>

#include <string>

#include <gtest/gtest.h>

// Classes of an application that print records of the library: they find every document complete, although the
// library prints its own classes in a faster way.

namespace lv::test {
namespace {

/// What the class writes into a document that the application holds itself.
std::string appendedAndPrinted(const DataObject& object) {
    XMLDocument document;
    object.appendXMLElement(document);
    return document.toXMLString(false, false);
}

class TwoRecords : public ApplicationRecord {
public:
    XMLElement appendXMLElement(XMLNode& parent) const override {
        correlation("first").appendXMLElement(parent);
        return correlation("second").appendXMLElement(parent);
    }
};

TEST(ApplicationClassesPrinting, TwoRecordsInARowAreBothWritten) {
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

TEST(ApplicationClassesPrinting, ElementsOfAHeldRecordAreFoundAfterItAppendedThem) {
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

TEST(ApplicationClassesPrinting, TheDocumentCanBeReplacedWhilePrinting) {
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

TEST(ApplicationClassesPrinting, ACopyOfTheParentIsTheSameDocument) {
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

TEST(ApplicationClassesPrinting, WhatAClassAddsToAnInheritedRecordIsWrittenInsideIt) {
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

TEST(ApplicationClassesPrinting, TheParentIsADocumentWrapper) {
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

TEST(ApplicationClassesPrinting, TheParentIsADocumentThatCanBePrinted) {
    const PrintingTheParent object;
    EXPECT_EQ(object.toXMLString(false, false), object.printed);
    EXPECT_EQ(object.printed, correlation("S").toXMLString(false, false));
}

}  // namespace
}  // namespace lv::test
