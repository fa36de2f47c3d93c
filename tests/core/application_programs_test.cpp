#include <lvdata/lvdata.h>

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <tinyxml2.h>

// What a program may write that knows the interface alone. It must compile without a warning, which the build makes an
// error.

namespace lv::test {
namespace {

/// A record of an application, with the shortest of everything.
class Label : public DataObject {
public:
    Label() : DataObject(1, 0) {}

    bool parseXMLElement(XMLElement element) override {
        if (element.elementName() != "Label") {
            return false;
        }
        element.getStringValue("Text", text);
        return true;
    }

    XMLElement appendXMLElement(XMLNode& parent) const override {
        if (text.value.empty()) {
            return nullptr;
        }
        return appendRootXMLElement("Label", parent).appendChildString("Text", text, false);
    }

    property<std::string> text;
};

TEST(ApplicationPrograms, NodesOfTheXMLLibraryConvertToWrappers) {
    tinyxml2::XMLDocument document;
    ASSERT_EQ(document.Parse("<Label><Text>a</Text></Label>"), tinyxml2::XML_SUCCESS);
    Label label;
    EXPECT_TRUE(label.parseXMLElement(document.RootElement()));
    EXPECT_EQ(label.text.value, "a");
    void* const handle = document.RootElement();
    const XMLElement element = handle;
    EXPECT_EQ(element.elementName(), "Label");
    XMLNode node = &document;
    EXPECT_EQ(node.type(), XMLNode::documentType);
    const XMLDocument borrowed = node.get();
    EXPECT_EQ(borrowed.rootElement().get(), handle);
    EXPECT_TRUE(label.appendXMLElement(node).isValid());
    EXPECT_FALSE(Label().appendXMLElement(node).isValid());
    EXPECT_FALSE(Label().parseXMLElement(nullptr));
}

TEST(ApplicationPrograms, TheResultOfAParseMayBeIgnored) {
    Label label;
    label.parseXMLString("<Label><Text>b</Text></Label>");
    EXPECT_EQ(label.text.value, "b");
    XMLDocument document;
    document.parseXMLString("<Label><Text>c</Text></Label>");
    label.parseXMLElement(document.rootElement());
    EXPECT_EQ(label.text.value, "c");
    label.parseXML("<Label><Text>d</Text></Label>");
    EXPECT_EQ(label.text.value, "d");
}

TEST(ApplicationPrograms, ArraysMayBeListsInBraces) {
    const XMLDocument document;
    const XMLElement root = document.appendChild("R");
    EXPECT_TRUE(root.appendChildIntArray("A", {}, "|").isValid());
    EXPECT_TRUE(root.appendChildUIntArray("B", {}, "|").isValid());
    root.appendChildIntArray("C", {-1, 2}, "|");
    root.appendChildUIntArray("D", {3, 4}, ", ");
    EXPECT_EQ(document.toXMLString(false, false), "<R><A></A><B></B><C>-1|2</C><D>3, 4</D></R>");
}

TEST(ApplicationPrograms, RowsMayBeGivenTheirFirstMembers) {
    const ColorModeSettingsObject mode = {{"Calibration", true}};
    EXPECT_EQ(mode.type.value, "Calibration");
    const CalibrationModeResultObject result = {{"Calibration", true}};
    EXPECT_TRUE(result.type.hasValue);
    const MeasurementDataObject row = {{255, 0, 0}};
    EXPECT_EQ(row.RGB.size(), 3U);
    const TargetSetting::level_t level = {"Max"};
    EXPECT_EQ(level.value, 0U);
    const ParameterSetting::gamma_t gamma = {"Value"};
    EXPECT_EQ(gamma.type, "Value");
    const TargetSetting::advanced_settings_t settings = {{1, true}};
    EXPECT_TRUE(settings.hue.hasValue);
    const ProfileData::target_curve curve = {"LStar"};
    EXPECT_EQ(curve.formula, 0U);
    const ProfileData::xyz_set_t set = {{1, 2, 3}};
    EXPECT_EQ(set.red.size(), 3U);
    const property<unsigned int> set7 = {7, true};
    EXPECT_TRUE(set7.hasValue);
}

}  // namespace
}  // namespace lv::test
