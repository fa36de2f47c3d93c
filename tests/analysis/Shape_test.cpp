#include <lvdata/analysis/Catalogue.h>
#include <lvdata/analysis/Document.h>
#include <lvdata/analysis/Position.h>

#include <tests/analysis/catalogue.h>

#include <gtest/gtest.h>

using lv::analysis::Answer;
using lv::analysis::childAt;
using lv::analysis::Document;
using lv::analysis::Position;
using lv::analysis::Shape;
using lv::test::catalogue;

namespace {

const Shape& shapeOf(const char* record) {
    return *catalogue().find(record)->shape;
}

Position rootOf(const Document& document) {
    return {document.entry().shape.get(), document.source().root(), &document.source().document()};
}

Position at(Position position, std::initializer_list<const char*> names) {
    for (const char* const name : names) {
        const Shape* const element = position.shape->firstElement(name);
        position = childAt(position, element == nullptr ? *position.shape->attribute(name) : *element);
    }
    return position;
}

}  // namespace

TEST(Shape, HasTheKeysAndParentsOfADescription) {
    const Shape& gamma = *shapeOf("ParameterSetting").firstElement("Gamma");
    EXPECT_EQ(gamma.key(), "gamma");
    EXPECT_EQ(gamma.parent(), &shapeOf("ParameterSetting"));
    EXPECT_EQ(gamma.firstElement("HLGSystemGamma")->key(), "hlg_system_gamma");
    EXPECT_EQ(gamma.attribute("Type")->key(), "type");
    EXPECT_EQ(gamma.attribute("Type")->path(), "ParameterSetting/Gamma/@Type");
    EXPECT_EQ(gamma.firstElement("Type"), nullptr);
    EXPECT_FALSE(gamma.takesText());
    EXPECT_TRUE(gamma.firstElement("Fixed")->takesText());
}

TEST(Shape, FindsElementsByKey) {
    const Shape& profile = shapeOf("ProfileData");
    EXPECT_EQ(profile.element("MeasuredXYZ", "Blue")->facts().keyText, "Blue");
    EXPECT_EQ(profile.element("MeasuredXYZ", "Pink"), nullptr);
    EXPECT_TRUE(profile.element("RedTargetCurve", "")->takesText());
}

TEST(Shape, SearchesFromThePreviousOne) {
    const Shape& root = shapeOf("AssetInfo");
    const Shape* const third = root.firstElement("Asset3");
    EXPECT_EQ(root.firstElement("Asset4", third)->key(), "asset4");
    EXPECT_EQ(root.firstElement("Asset1", third)->key(), "asset1");
    EXPECT_EQ(root.firstElement("Asset9", third), nullptr);
}

TEST(Position, HasTheValueThatTheRecordReads) {
    const Document document(
        "<SelfCalibrationSchedule Version=''><Type Type=' +033'><Hour>6.5</Hour><Hour>7</Hour></Type>"
        "</SelfCalibrationSchedule>",
        catalogue());
    EXPECT_EQ(valueAt(at(rootOf(document), {"Type", "Type"})), "33");
    EXPECT_EQ(valueAt(at(rootOf(document), {"Type", "Hour"})), "6");
    EXPECT_EQ(valueAt(at(rootOf(document), {"Type", "Minute"})), "0");
    EXPECT_EQ(valueAt(at(rootOf(document), {"Version"})), "1");
}

TEST(Position, AnswersConditions) {
    const auto isWritten = [](const std::string& type) {
        const Document document("<ParameterSetting><Gamma Type='" + type + "'/></ParameterSetting>", catalogue());
        const Position value = at(rootOf(document), {"Gamma", "Value"});
        return answer(value.shape->writtenWhen().front(), value, {});
    };
    EXPECT_EQ(isWritten("Value"), Answer::yes);
    EXPECT_EQ(isWritten("value"), Answer::no);
}

TEST(Position, AnswersWhatDependsOnSeveralPlaces) {
    const auto isKept = [](const std::string& children) {
        const Document document("<MeasurementData><Measurements>" + children + "</Measurements></MeasurementData>",
                                catalogue());
        const Position row = at(rootOf(document), {"Measurements"});
        return firstDenied(row.shape->writtenWhen(), row, {}) == nullptr;
    };
    EXPECT_TRUE(isKept("<RGB>1|2|3</RGB>"));
    EXPECT_TRUE(isKept("<RGB>1|2</RGB><PQR>|1|2||3</PQR>"));
    EXPECT_FALSE(isKept("<RGB>1|2</RGB>"));
    EXPECT_FALSE(isKept(""));
}

TEST(Position, LeavesRulesInWordsOpen) {
    const Document document("<TargetSetting><Gamut/></TargetSetting>", catalogue());
    const Position red = at(rootOf(document), {"Gamut", "Red"});
    EXPECT_EQ(answer(red.shape->writtenWhen().front(), red, {}), Answer::unknown);
}

TEST(Position, KnowsTheQuantityThatCounts) {
    const auto factorOf = [](const std::string& isHDR) {
        const Document document("<MonitorParameter><isHDRLUT>" + isHDR + "</isHDRLUT></MonitorParameter>", catalogue());
        return quantityAt(at(rootOf(document), {"RedLUT"}))->factor;
    };
    EXPECT_EQ(factorOf("0"), 1000000U);
    EXPECT_EQ(factorOf("1"), 1000000000U);
}

TEST(Position, CountsEntriesAsReadingDoes) {
    EXPECT_EQ(lv::analysis::entriesIn(""), 0U);
    EXPECT_EQ(lv::analysis::entriesIn("1"), 1U);
    EXPECT_EQ(lv::analysis::entriesIn("1||2|"), 2U);
}
