#include <lvdata/core/DataObject.h>
#include <lvdata/xml/XMLDocument.h>
#include <tests/support/ParsedDocument.h>

#include <string>
#include <type_traits>

#include <gtest/gtest.h>
#include <tinyxml2.h>

namespace lv {
namespace {

using test::ParsedDocument;

static_assert(std::is_abstract_v<DataObject> && std::has_virtual_destructor_v<DataObject>);

/// The smallest record there can be: version 3.1, one text.
class Lamp : public DataObject {
public:
    Lamp() : DataObject(3, 1) {}

    [[nodiscard]] bool parseXMLElement(XMLElement element) override {
        if (element.elementName() != "Lamp") {
            return false;
        }
        parseVersionAttribute(element);
        element.getStringValue("Colour", colour);
        return true;
    }

    XMLElement appendXMLElement(XMLNode& parent) const override {
        XMLElement root = appendRootXMLElement("Lamp", parent);
        appendVersionAttribute(root);
        root.appendChildString("Colour", colour, false);
        return root;
    }

    property<std::string> colour;
};

Lamp redLamp() {
    Lamp lamp;
    lamp.colour.set("red");
    return lamp;
}

bool operator==(const Lamp& left, const Lamp& right) {
    return left.version == right.version && left.minorVersion == right.minorVersion &&
           left.writeHLGSystemGamma == right.writeHLGSystemGamma && left.colour == right.colour;
}

const std::string declaration = R"(<?xml version="1.0" encoding="UTF-8" standalone="no"?>)";
const std::string redLampText = R"(<Lamp Version="3" MinorVersion="1"><Colour>red</Colour></Lamp>)";

TEST(DataObject, NewRecordHasTheVersionOfItsClassWithClearFlags) {
    const Lamp lamp;
    EXPECT_EQ(lamp.version, (property<unsigned int>{3, false}));
    EXPECT_EQ(lamp.minorVersion, (property<unsigned int>{1, false}));
    EXPECT_FALSE(lamp.writeHLGSystemGamma);
}

TEST(DataObjectPrint, CompactTextIsTheRootElementAlone) {
    EXPECT_EQ(redLamp().toXMLString(false, false), redLampText);
}

TEST(DataObjectPrint, PrettyTextWithoutDeclarationBeginsWithTheRootElementsTag) {
    EXPECT_EQ(redLamp().toXMLString(false, true),
              "<Lamp Version=\"3\" MinorVersion=\"1\">\n    <Colour>red</Colour>\n</Lamp>\n");
}

TEST(DataObjectPrint, TextWithDeclarationBeginsWithIt) {
    EXPECT_EQ(redLamp().toXMLString(true, true), declaration + "\n" + redLamp().toXMLString(false, true));
    EXPECT_EQ(redLamp().toXMLString(true, false), declaration + redLampText);
}

TEST(DataObjectPrint, WritesBothVersionAttributesRegardlessOfTheirFlags) {
    Lamp lamp;
    lamp.version = {7, true};
    lamp.minorVersion = {0, false};
    EXPECT_EQ(lamp.toXMLString(false, false), R"(<Lamp Version="7" MinorVersion="0"/>)");
    lamp.version.hasValue = false;
    lamp.minorVersion = {4294967295U, true};
    EXPECT_EQ(lamp.toXMLString(false, false), R"(<Lamp Version="7" MinorVersion="4294967295"/>)");
}

TEST(DataObjectPrint, LeavesTheRecordAsItWas) {
    const Lamp lamp = redLamp();
    EXPECT_EQ(lamp.toXMLString(true, true), lamp.toXMLString(true, true));
    EXPECT_TRUE(lamp == redLamp());
}

TEST(DataObjectParse, ReadsTheVersionAttributesAndTheChildren) {
    Lamp lamp;
    EXPECT_TRUE(lamp.parseXMLString(redLampText));
    EXPECT_EQ(lamp.version, (property<unsigned int>{3, true}));
    EXPECT_EQ(lamp.minorVersion, (property<unsigned int>{1, true}));
    EXPECT_EQ(lamp.colour, (property<std::string>{"red", true}));
}

TEST(DataObjectParse, WhatItPrintsReadsBackInEveryForm) {
    for (const bool withDeclaration : {false, true}) {
        for (const bool pretty : {false, true}) {
            Lamp lamp;
            EXPECT_TRUE(lamp.parseXMLString(redLamp().toXMLString(withDeclaration, pretty)));
            EXPECT_EQ(lamp.colour, (property<std::string>{"red", true}));
            EXPECT_EQ(lamp.toXMLString(false, false), redLampText);
        }
    }
}

TEST(DataObjectParse, AMissingVersionKeepsTheClassesNumberWithAClearFlagAndIsWrittenAgain) {
    Lamp lamp;
    EXPECT_TRUE(lamp.parseXMLString("<Lamp MinorVersion='5'/>"));
    EXPECT_EQ(lamp.version, (property<unsigned int>{3, false}));
    EXPECT_EQ(lamp.minorVersion, (property<unsigned int>{5, true}));
    EXPECT_EQ(lamp.toXMLString(false, false), R"(<Lamp Version="3" MinorVersion="5"/>)");
}

TEST(DataObjectParse, AnEmptyVersionCountsAsMissing) {
    Lamp lamp;
    EXPECT_TRUE(lamp.parseXMLString("<Lamp Version='' MinorVersion=''/>"));
    EXPECT_EQ(lamp.version, (property<unsigned int>{3, false}));
    EXPECT_EQ(lamp.minorVersion, (property<unsigned int>{1, false}));
}

TEST(DataObjectParse, AMissingVersionKeepsTheNumberThatTheRecordHasAtThatMoment) {
    Lamp lamp;
    EXPECT_TRUE(lamp.parseXMLString("<Lamp Version='7' MinorVersion='8'/>"));
    EXPECT_TRUE(lamp.parseXMLString("<Lamp/>"));
    EXPECT_EQ(lamp.version, (property<unsigned int>{7, false}));
    EXPECT_EQ(lamp.minorVersion, (property<unsigned int>{8, false}));
}

TEST(DataObjectParse, AnotherVersionIsAcceptedAndWrittenAfterwards) {
    Lamp lamp;
    EXPECT_TRUE(lamp.parseXMLString("<Lamp Version='7' MinorVersion='0'/>"));
    EXPECT_EQ(lamp.version, (property<unsigned int>{7, true}));
    EXPECT_EQ(lamp.minorVersion, (property<unsigned int>{0, true}));
    EXPECT_EQ(lamp.toXMLString(false, false), R"(<Lamp Version="7" MinorVersion="0"/>)");
}

TEST(DataObjectParse, AVersionThatIsNotANumberReadsAsZero) {
    Lamp lamp;
    EXPECT_TRUE(lamp.parseXMLString("<Lamp Version='new' MinorVersion='-1'/>"));
    EXPECT_EQ(lamp.version, (property<unsigned int>{0, true}));
    EXPECT_EQ(lamp.minorVersion, (property<unsigned int>{4294967295U, true}));
}

TEST(DataObjectParse, FailureLeavesEveryMemberAsItWas) {
    Lamp before = redLamp();
    before.version = {8, true};
    before.minorVersion = {9, true};
    before.writeHLGSystemGamma = true;
    for (const char* const text :
         {"<Other Version='1' MinorVersion='1'><Colour>blue</Colour></Other>", "<lamp Version='1'/>",
          "<Lamps Version='1'/>", "<Lamp Version='1'><Colour>blue</Colour>", "", "blue", "<!-- Lamp -->",
          "<Other><Lamp Version='1'/></Other>", "<Other/><Lamp Version='1'/>"}) {
        Lamp lamp = before;
        EXPECT_FALSE(lamp.parseXMLString(text)) << text;
        EXPECT_TRUE(lamp == before) << text;
    }
}

/// Reads itself from anything, no element included.
class Undemanding : public Lamp {
public:
    [[nodiscard]] bool parseXMLElement(XMLElement /*element*/) override {
        ++parses;
        return true;
    }

    int parses = 0;
};

TEST(DataObjectParse, MalformedTextIsRefusedBeforeTheRecordSeesIt) {
    Undemanding record;
    EXPECT_FALSE(record.parseXMLString("<Lamp>"));
    EXPECT_EQ(record.parses, 0);
    EXPECT_TRUE(record.parseXMLString("<Lamp/>"));
    EXPECT_EQ(record.parses, 1);
}

TEST(DataObjectParse, OnlyTheFirstElementOfTheDocumentCounts) {
    Lamp lamp;
    EXPECT_TRUE(lamp.parseXMLString("<!-- one --><Lamp Version='4'/><Lamp Version='5'/><Other/>"));
    EXPECT_EQ(lamp.version.value, 4U);
}

TEST(DataObjectParse, IntoAFilledRecordReplacesWhatTheDocumentHoldsAndClearsTheFlagsOfWhatItLacks) {
    Lamp lamp = redLamp();
    lamp.writeHLGSystemGamma = true;
    EXPECT_TRUE(lamp.parseXMLString("<Lamp Version='7'><Colour>blue</Colour></Lamp>"));
    EXPECT_EQ(lamp.colour, (property<std::string>{"blue", true}));
    EXPECT_TRUE(lamp.parseXMLString("<Lamp/>"));
    EXPECT_EQ(lamp.colour, (property<std::string>{"blue", false}));
    EXPECT_EQ(lamp.version, (property<unsigned int>{7, false}));
    EXPECT_TRUE(lamp.writeHLGSystemGamma);
}

TEST(DataObject, ACopySharesNothingWithItsSource) {
    Lamp source = redLamp();
    const Lamp copy = source;
    source.colour.set("blue");
    source.version.set(9);
    source.writeHLGSystemGamma = true;
    EXPECT_TRUE(copy == redLamp());
}

TEST(DataObjectAppend, UnderADocumentAppendsAtDocumentLevel) {
    XMLDocument document;
    document.appendChild("First");
    const XMLElement root = redLamp().appendXMLElement(document);
    EXPECT_EQ(root.elementName(), "Lamp");
    EXPECT_EQ(document.toXMLString(false, false), "<First/>" + redLampText);
}

TEST(DataObjectAppend, UnderAnElementAppendsItsLastChild) {
    const ParsedDocument document("<Room><Door/></Room>");
    XMLElement room = document.root();
    const XMLElement root = redLamp().appendXMLElement(room);
    EXPECT_EQ(root.get(), room.getElement("Lamp").get());
    EXPECT_EQ(document.text(), "<Room><Door/>" + redLampText + "</Room>");
}

TEST(DataObjectAppend, TakesTheParentAsAPlainNode) {
    tinyxml2::XMLDocument document;
    XMLNode atDocumentLevel(&document);
    const XMLElement first = redLamp().appendXMLElement(atDocumentLevel);
    XMLNode underElement(first.get());
    redLamp().appendXMLElement(underElement);
    EXPECT_EQ(XMLDocument(&document).toXMLString(false, false),
              R"(<Lamp Version="3" MinorVersion="1"><Colour>red</Colour>)" + redLampText + "</Lamp>");
}

TEST(DataObjectAppend, WhatIsEmbeddedReadsBackFromItsElement) {
    const ParsedDocument document("<Room>" + redLampText + "</Room>");
    Lamp lamp;
    EXPECT_FALSE(lamp.parseXMLElement(document.root()));
    EXPECT_TRUE(lamp.parseXMLElement(document.root().getElement("Lamp")));
    EXPECT_EQ(lamp.colour, (property<std::string>{"red", true}));
}

TEST(DataObjectAppend, UnderNothingGivesInvalid) {
    XMLNode nothing;
    XMLElement noElement;
    XMLDocument noDocument(nullptr);
    EXPECT_FALSE(redLamp().appendXMLElement(nothing).isValid());
    EXPECT_FALSE(redLamp().appendXMLElement(noElement).isValid());
    EXPECT_FALSE(redLamp().appendXMLElement(noDocument).isValid());
}

TEST(DataObjectAppend, UnderANodeThatTakesNoElementsGivesInvalidAndChangesNothing) {
    tinyxml2::XMLDocument document;
    document.Parse("<A><!-- comment -->text</A>");
    XMLNode comment(document.FirstChildElement()->FirstChild());
    XMLNode text(document.FirstChildElement()->LastChild());
    EXPECT_FALSE(redLamp().appendXMLElement(comment).isValid());
    EXPECT_FALSE(redLamp().appendXMLElement(text).isValid());
    EXPECT_EQ(XMLDocument(&document).toXMLString(false, false), "<A><!-- comment -->text</A>");
}

TEST(DataObjectVersionAttribute, AppendingReturnsTheElement) {
    const ParsedDocument document("<A Version='9' Other='1'/>");
    const XMLElement root = document.root();
    EXPECT_EQ(Lamp().appendVersionAttribute(root).get(), root.get());
    EXPECT_EQ(document.text(), R"(<A Version="3" Other="1" MinorVersion="1"/>)");
    EXPECT_FALSE(Lamp().appendVersionAttribute(XMLElement()).isValid());
}

TEST(DataObjectVersionAttribute, ParsingAnInvalidElementClearsTheFlagsAndKeepsTheNumbers) {
    Lamp lamp;
    lamp.version.set(5);
    lamp.minorVersion.set(6);
    lamp.parseVersionAttribute(XMLElement());
    EXPECT_EQ(lamp.version, (property<unsigned int>{5, false}));
    EXPECT_EQ(lamp.minorVersion, (property<unsigned int>{6, false}));
}

}  // namespace
}  // namespace lv
