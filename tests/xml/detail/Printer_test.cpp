#include <lvdata/xml/detail/Printer.h>

#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace lv::detail {
namespace {

/// What the XML library's own printer makes of the document.
std::string plainly(const tinyxml2::XMLDocument& document, bool compact) {
    tinyxml2::XMLPrinter printer(nullptr, compact);
    document.Accept(&printer);
    return printer.CStr();
}

std::string printed(const tinyxml2::XMLDocument& document, bool compact) {
    Printer printer(compact);
    document.Accept(&printer);
    return printer.text();
}

const std::string longText(100, 'x');

TEST(Printer, PrintsWhatTheLibrarysOwnPrinterPrints) {
    for (const std::string& text :
         {std::string(), std::string("short"), longText, longText + '&', longText + '<', longText + '>' + longText,
          longText + "<&>", longText + "\"'", std::string(63, 'y'), std::string(64, 'z'), longText + "]]>"}) {
        tinyxml2::XMLDocument document;
        tinyxml2::XMLElement* const root = document.NewElement("Root");
        document.InsertEndChild(root);
        root->InsertNewChildElement("Before")->SetText(text.c_str());
        root->InsertNewText(text.c_str());
        root->InsertNewChildElement("After");
        EXPECT_EQ(printed(document, true), plainly(document, true));
        EXPECT_EQ(printed(document, false), plainly(document, false));
    }
}

TEST(Printer, UserDataOfAnApplicationChangesNothing) {
    tinyxml2::XMLDocument document;
    ASSERT_EQ(document.Parse("<a>1 &lt; 2<b>3</b></a>"), tinyxml2::XML_SUCCESS);
    int data = 0;
    document.RootElement()->FirstChild()->SetUserData(&data);
    document.RootElement()->SetUserData(&data);
    EXPECT_EQ(printed(document, true), "<a>1 &lt; 2<b>3</b></a>");
    EXPECT_EQ(printed(document, false), plainly(document, false));
}

TEST(Printer, ALongCDataSectionStaysOne) {
    tinyxml2::XMLDocument document;
    ASSERT_EQ(document.Parse(("<a><![CDATA[" + longText + "]]></a>").c_str()), tinyxml2::XML_SUCCESS);
    EXPECT_EQ(printed(document, true), "<a><![CDATA[" + longText + "]]></a>");
}

TEST(Printer, DirectTextAndNodesArePrintedInTheirOrder) {
    tinyxml2::XMLDocument document;
    ASSERT_EQ(document.Parse("<b/>"), tinyxml2::XML_SUCCESS);
    Printer printer(true);
    printer.addDeclaration();
    printer.addText(printer.open({}, "a"), "1");
    printer.closeInside({});
    document.Accept(&printer);
    EXPECT_EQ(printer.text(), R"(<?xml version="1.0" encoding="UTF-8" standalone="no"?><a>1</a><b/>)");
}

TEST(Printer, ANumberMayFillABlockToItsEnd) {
    for (std::size_t before = 4060; before < 4100; ++before) {
        Printer printer(true);
        const Place root = printer.open({}, "a");
        printer.addText(root, std::string(before, 'x').c_str());
        printer.addNumbers(root, std::vector<unsigned int>{4294967295U, 4294967295U, 1});
        printer.addNumber(root, -1);
        printer.closeInside({});
        EXPECT_EQ(printer.text(), "<a>" + std::string(before, 'x') + "4294967295|4294967295|1-1</a>");
    }
}

}  // namespace
}  // namespace lv::detail
