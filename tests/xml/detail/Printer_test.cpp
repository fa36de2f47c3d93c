#include <lvdata/xml/detail/Printer.h>

#include <string>

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
    return std::string(printer.text());
}

const std::string longText(100, 'x');

TEST(Printer, PrintsWhatTheLibrarysOwnPrinterPrints) {
    for (const std::string& text :
         {std::string(), std::string("short"), longText, longText + '&', longText + '<', longText + '>' + longText,
          longText + "\"'", std::string(63, 'y'), std::string(64, 'z'), longText + "]]>"}) {
        tinyxml2::XMLDocument document;
        tinyxml2::XMLElement* const root = document.NewElement("Root");
        document.InsertEndChild(root);
        root->InsertNewChildElement("Before")->SetText(text.c_str());
        root->InsertNewText(text.c_str());
        root->InsertNewChildElement("Behind");
        EXPECT_EQ(printed(document, true), plainly(document, true));
        EXPECT_EQ(printed(document, false), plainly(document, false));
    }
}

TEST(Printer, ALongCDataSectionStaysOne) {
    tinyxml2::XMLDocument document;
    ASSERT_EQ(document.Parse(("<a><![CDATA[" + longText + "]]></a>").c_str()), tinyxml2::XML_SUCCESS);
    EXPECT_EQ(printed(document, true), "<a><![CDATA[" + longText + "]]></a>");
}

TEST(Printer, AMarkedTextPassesAsItStands) {
    tinyxml2::XMLDocument document;
    tinyxml2::XMLElement* const root = document.NewElement("Root");
    document.InsertEndChild(root);
    Printer::markAsPrinted(*root->InsertNewText("<a>1 &amp; 2</a>"));
    root->InsertNewText("<");
    EXPECT_EQ(printed(document, true), "<Root><a>1 &amp; 2</a>&lt;</Root>");
}

}  // namespace
}  // namespace lv::detail
