#include <tests/support/DescribedNode.h>
#include <tests/support/golden.h>

#include <lvdata/records/RecordClass.h>

#include <algorithm>
#include <regex>
#include <set>

#include <tinyxml2.h>

// Every element, attribute and text that a golden document has is described, with its content.

namespace lv::test {
namespace {

using tinyxml2::XMLAttribute;
using tinyxml2::XMLElement;
using Content = Description::Content;
using Place = Description::Place;

bool isTextOf(const std::string& text, const Description& node) {
    static const std::regex unsignedNumber("[0-9]+");
    static const std::regex signedNumber("-?[0-9]+");
    static const std::regex unsignedArray("[0-9]+(\\|[0-9]+)*");
    static const std::regex signedArray("-?[0-9]+(\\|-?[0-9]+)*");
    switch (node.content) {
    case Content::none:
        return text.empty();
    case Content::string:
        return !node.constant || text == *node.constant;
    case Content::boolean:
        return text == "true" || text == "false";
    case Content::unsignedNumber:
        return std::regex_match(text, unsignedNumber);
    case Content::signedNumber:
        return std::regex_match(text, signedNumber);
    case Content::unsignedArray:
        return text.empty() || std::regex_match(text, unsignedArray);
    case Content::signedArray:
        return text.empty() || std::regex_match(text, signedArray);
    }
    return false;
}

bool hasCountThatCounts(const std::string& text, const Description& node) {
    const auto entries = static_cast<std::size_t>(1 + std::count(text.begin(), text.end(), '|'));
    return node.lengths.empty() || std::count(node.lengths.begin(), node.lengths.end(), entries) == 1;
}

/// The described child that the element is; null when there is none.
const Description* childFor(const XMLElement& element, const Description& parent) {
    const auto found = std::find_if(parent.children.begin(), parent.children.end(), [&](const Description& child) {
        return child.place == Place::element && child.name == element.Name() &&
               (child.keyAttribute.empty() || element.Attribute(child.keyAttribute.c_str(), child.keyText.c_str()));
    });
    return found == parent.children.end() ? nullptr : &*found;
}

const Description* childFor(const XMLAttribute& attribute, const Description& parent) {
    const auto found = std::find_if(parent.children.begin(), parent.children.end(), [&](const Description& child) {
        return child.place == Place::attribute && child.name == attribute.Name();
    });
    return found == parent.children.end() ? nullptr : &*found;
}

/// An element's text is its own content, or that of one of the texts in it.
bool isTextAllowed(const std::string& text, const Description& node) {
    const auto isAllowed = [&text](const Description& child) {
        return child.place == Place::text && isTextOf(text, child);
    };
    return (isTextOf(text, node) && hasCountThatCounts(text, node)) ||
           std::any_of(node.children.begin(), node.children.end(), isAllowed);
}

/// The descriptions of all that an element has.
using Described = std::set<const Description*>;

void expectDescribed(const XMLElement& element, const Description& node, Described& found) {
    found.insert(&node);
    const std::string text = element.GetText() == nullptr ? "" : element.GetText();
    EXPECT_TRUE(isTextAllowed(text, node)) << element.Name() << ", line " << element.GetLineNum() << ": " << text;
    for (const XMLAttribute* each = element.FirstAttribute(); each != nullptr; each = each->Next()) {
        const Description* const attribute = childFor(*each, node);
        ASSERT_NE(attribute, nullptr) << element.Name() << " has " << each->Name();
        EXPECT_TRUE(isTextOf(each->Value(), *attribute)) << each->Name() << " in " << element.Name();
        found.insert(attribute);
    }
    for (const XMLElement* each = element.FirstChildElement(); each != nullptr; each = each->NextSiblingElement()) {
        const Description* const child = childFor(*each, node);
        ASSERT_NE(child, nullptr) << element.Name() << " has " << each->Name() << ", line " << each->GetLineNum();
        expectDescribed(*each, *child, found);
    }
}

bool hasExpectedText(const fs::path& path) {
    return path.filename().string().find(expectedEnd) != std::string::npos;
}

/// What the expected documents of a record have together.
Described describedInGolden(const Description& description) {
    Described found;
    for (const fs::path& path : goldenFilesOf(description.name)) {
        if (hasExpectedText(path)) {
            SCOPED_TRACE(path.string());
            tinyxml2::XMLDocument document;
            EXPECT_EQ(document.Parse(contentOf(path).c_str()), tinyxml2::XML_SUCCESS);
            expectDescribed(*document.RootElement(), description, found);
        }
    }
    return found;
}

/// In both directions: a description leaves nothing out, and says nothing that no document has.
TEST(GoldenDescription, HasWhatTheExpectedDocumentsHave) {
    for (const RecordClass& each : RecordClasses()) {
        const Description description = each.describe();
        const Described found = describedInGolden(description);
        for (const DescribedNode& node : ownNodes(description)) {
            EXPECT_TRUE(node->place == Place::text || found.count(&*node) == 1) << "no document has " << node.name();
        }
    }
}

}  // namespace
}  // namespace lv::test
