#include "XMLSchema.h"
#include "schema_documents.h"

#include <lvdata/analysis/schemas/xsd.h>

#include <gtest/gtest.h>

#include <tinyxml2.h>

// XML Schemas refuse documents with one fault, wherever it is.

namespace lv::test {
namespace {

using tinyxml2::XMLDocument;
using tinyxml2::XMLElement;
using Content = Description::Content;
using Place = Description::Place;

/// Texts that no record prints in that place.
std::vector<std::string> wrongTexts(const Description& node) {
    switch (node.content) {
    case Content::boolean:
        return {"TRUE", "1", ""};
    case Content::unsignedNumber:
        return {"-1", "4294967296", "1.5", "x"};
    case Content::signedNumber:
        return {"2147483648", "-2147483649", "1.5", "x"};
    case Content::unsignedArray:
        return {"1|-1|1", "1||1", "1|01|1", "1|x|1", "1|1|4294967296"};
    case Content::signedArray:
        return {"1|+1|1", "1||1", "1|x|1", "1|1|2147483648"};
    default:
        return node.constant ? std::vector<std::string>{"other"} : std::vector<std::string>{};
    }
}

std::string textOf(const XMLDocument& document) {
    tinyxml2::XMLPrinter printer(nullptr, true);
    document.Print(&printer);
    return printer.CStr();
}

/// Judges copies of a printed document of which each gets one fault.
class Faults {
public:
    Faults(const XMLSchema& schema, const DescribedNode& node, std::string printed)
        : schema_(schema),
          node_(node),
          printed_(std::move(printed)) {}

    void expectRefused() const {
        for (const std::string& text : wrongTexts(*node_)) {
            expectRefusedWith(text);
        }
        for (const std::size_t length : node_->lengths) {
            expectRefusedWith(arrayOf(length + 1));
            expectRefusedWith(arrayOf(length - 1));
        }
        if (node_->content == Content::none) {
            expectElementRefused();
        }
    }

private:
    static std::string arrayOf(std::size_t entries) {
        std::string text = "1";
        for (std::size_t entry = 1; entry < entries; ++entry) {
            text += "|1";
        }
        return text;
    }

    void expectRefusedWith(const std::string& text) const {
        XMLDocument document;
        document.Parse(printed_.c_str());
        node_.setText(document, text);
        expectRefused(document, text);
    }

    void expectRefused(const XMLDocument& document, const std::string& fault) const {
        EXPECT_NE(schema_.refusalOf(textOf(document)), "") << node_.name() << ": " << fault;
    }

    /// With each of these faults in turn.
    void expectElementRefused() const {
        expectRefusedAfter("unknown element", [](XMLElement& element) { element.InsertNewChildElement("Unknown"); });
        expectRefusedAfter("unknown attribute", [](XMLElement& element) { element.SetAttribute("Unknown", "1"); });
        expectRefusedAfter("wrong order", [](XMLElement& element) {
            XMLElement* const last = element.LastChildElement();
            const bool isMovable = last != nullptr && element.FirstChildElement()->Name() != std::string(last->Name());
            isMovable ? static_cast<void>(element.InsertFirstChild(last)) : element.SetAttribute("Unknown", "1");
        });
    }

    template <class Change>
    void expectRefusedAfter(const std::string& fault, Change change) const {
        XMLDocument document;
        document.Parse(printed_.c_str());
        change(*node_.elementIn(document));
        expectRefused(document, fault);
    }

    const XMLSchema& schema_;
    const DescribedNode& node_;
    std::string printed_;
};

TEST(XSDFaults, AreRefusedEverywhere) {
    for (const analysis::Catalogue::Entry& entry : catalogue().entries()) {
        const XMLSchema schema(analysis::xsd(*entry.shape));
        for (const DescribedNode& node : ownNodes(*entry.facts)) {
            Faults(schema, node, printedWith(node, entry)).expectRefused();
        }
    }
}

/// A key that is there twice, or is none of those; a text of another length.
TEST(XSDFaults, InKeyedElementsAreRefused) {
    const XMLSchema schema(analysis::xsd(*catalogue().find("ProfileData")->shape));
    const auto documentWith = [](const std::string& key, const std::string& black) {
        std::string text = R"(<ProfileData Version="2" MinorVersion="0">)";
        for (const std::string& each : {std::string("Red"), std::string("Green"), key, std::string("White")}) {
            text += "<MeasuredXYZ Color=\"" + each + "\"/>";
        }
        return text + "<MeasuredXYZ Color=\"Black\">" + black +
               "</MeasuredXYZ><RedTargetCurve/><GreenTargetCurve/>"
               "<BlueTargetCurve Type=\"LStar\"/></ProfileData>";
    };
    EXPECT_EQ(schema.refusalOf(documentWith("Blue", "1|2|3")), "");
    EXPECT_EQ(schema.refusalOf(documentWith("Blue", "")), "");
    EXPECT_NE(schema.refusalOf(documentWith("Blue", "1|2")), "");
    EXPECT_NE(schema.refusalOf(documentWith("Red", "")), "");
    EXPECT_NE(schema.refusalOf(documentWith("Other", "")), "");
}

TEST(XSDFaults, InRequiredElementsAreRefused) {
    const XMLSchema schema(analysis::xsd(*catalogue().find("CorrelationInfo")->shape));
    EXPECT_EQ(schema.refusalOf(R"(<CorrelationInfo Version="1" MinorVersion="0"/>)"), "");
    EXPECT_NE(schema.refusalOf(R"(<CorrelationInfo Version="1"/>)"), "");
    EXPECT_NE(schema.refusalOf(R"(<CorrelationInfo Version="1" MinorVersion=""/>)"), "");
    EXPECT_NE(schema.refusalOf(R"(<AssetInfo Version="1" MinorVersion="0"/>)"), "");
    const XMLSchema candela(analysis::xsd(*catalogue().find("CandelaMap")->shape));
    EXPECT_EQ(candela.refusalOf(R"(<CandelaMap Version="1" MinorVersion="0"><Uniformity/><Brightness/></CandelaMap>)"),
              "");
    EXPECT_NE(candela.refusalOf(R"(<CandelaMap Version="1" MinorVersion="0"><Uniformity/></CandelaMap>)"), "");
}

}  // namespace
}  // namespace lv::test
