#include <lvdata/core/DataArrayObject.h>
#include <lvdata/core/detail/record.h>

#include <array>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace lv::detail {
namespace {

using testing::ElementsAre;

struct Lamp {
    std::string type;
    unsigned int watts = 0;
    std::string colour;
};

struct Book {
    std::vector<int> marks;
    std::vector<unsigned int> pages;
};

/// A record with one member of each kind.
class Desk : public DataArrayObject<Book> {
public:
    static constexpr const char* rootElementName = "Desk";

    Desk() : DataArrayObject(4, 2) {}

    bool parseXMLElement(XMLElement /*element*/) override { return false; }
    XMLElement appendXMLElement(XMLNode& /*parent*/) const override { return {}; }

    property<std::string> maker;
    property<int> height;
    property<bool> isNew;
    property<std::vector<unsigned int>> sizes;
    property<Lamp> lamp;
    std::vector<int> scratches;
    bool isScratched = false;
    bool isStable = true;
    std::vector<unsigned int> left;
    std::vector<unsigned int> right;
    property<bool> hasSides;
};

/// The description of a desk whose visit is that; without the version attributes.
template <class Visit>
std::vector<Description> described(Visit visit) {
    std::vector<Description> children = describeRecord<Desk>(Desk::rootElementName, visit).children;
    children.erase(children.begin(), children.begin() + 2);
    return children;
}

std::vector<std::string> words(const std::vector<Condition>& conditions) {
    std::vector<std::string> all;
    for (const Condition& condition : conditions) {
        all.push_back(condition.toString());
    }
    return all;
}

std::string flagOf(const Description& node) {
    return node.flag ? node.flag->toString() : "";
}

TEST(Describer, DescribesTheRootElementAndItsVersions) {
    const Description root = describeRecord<Desk>(Desk::rootElementName, [](auto& /*io*/, auto& /*desk*/) {});
    EXPECT_EQ(root.name, "Desk");
    EXPECT_EQ(root.record, "Desk");
    EXPECT_EQ(root.place, Description::Place::element);
    EXPECT_EQ(root.version, 4U);
    EXPECT_EQ(root.minorVersion, 2U);
    ASSERT_EQ(root.children.size(), 2U);
    EXPECT_EQ(root.children[0].name, "Version");
    EXPECT_EQ(root.children[1].name, "MinorVersion");
}

TEST(Describer, FindsTheContentInTheTypeOfTheMember) {
    const auto nodes = described([](auto& io, auto& desk) {
        io.field("Maker", desk.maker);
        io.field("Height", desk.height);
        io.field("IsNew", desk.isNew);
        io.value("Scratches", desk.scratches, quantities::gain);
        io.element("Lamp").attribute("Watts", desk.lamp.value.watts);
    });
    EXPECT_EQ(nodes.at(0).content, Description::Content::string);
    EXPECT_EQ(nodes.at(1).content, Description::Content::signedNumber);
    EXPECT_EQ(nodes.at(2).content, Description::Content::boolean);
    EXPECT_EQ(nodes.at(3).content, Description::Content::signedArray);
    EXPECT_EQ(nodes.at(4).content, Description::Content::none);
    EXPECT_EQ(nodes.at(4).children.at(0).content, Description::Content::unsignedNumber);
    EXPECT_EQ(nodes.at(4).children.at(0).place, Description::Place::attribute);
}

TEST(Describer, GivesNumbersTheirQuantityAndOthersNone) {
    const auto nodes = described([](auto& io, auto& desk) {
        io.field("Maker", desk.maker);
        io.field("Height", desk.height);
        io.field("Sizes", desk.sizes, quantities::gain);
        io.value("Scratches", desk.scratches,
                 choose(quantities::number, when(isSet(desk.isNew), quantities::candela),
                        when(isSet(desk.maker), quantities::percent)));
        io.field("IsNew", desk.isNew);
    });
    EXPECT_FALSE(nodes.at(0).quantity.has_value());
    EXPECT_EQ(nodes.at(1).quantity, quantities::number);
    EXPECT_EQ(nodes.at(2).quantity, quantities::gain);
    EXPECT_TRUE(nodes.at(2).otherQuantities.empty());
    EXPECT_EQ(nodes.at(3).quantity, quantities::number);
    ASSERT_EQ(nodes.at(3).otherQuantities.size(), 2U);
    EXPECT_EQ(nodes.at(3).otherQuantities[0].quantity, quantities::candela);
    EXPECT_EQ(nodes.at(3).otherQuantities[0].condition.toString(), "../IsNew is set");
    EXPECT_EQ(nodes.at(3).otherQuantities[1].quantity, quantities::percent);
    EXPECT_EQ(nodes.at(3).otherQuantities[1].condition.toString(), "../Maker is set");
    EXPECT_FALSE(nodes.at(4).quantity.has_value());
}

TEST(Describer, SaysWhatANewRecordHas) {
    const Description root = describeRecord<Desk>(Desk::rootElementName, [](auto& io, auto& desk) {
        io.field("Maker", desk.maker);
        io.field("Height", desk.height);
        io.field("IsNew", desk.isNew);
        io.field("Sizes", desk.sizes);
        io.value("IsStable", desk.isStable);
    });
    std::vector<std::string> texts;
    for (const Description& child : root.children) {
        texts.push_back(child.defaultText);
    }
    EXPECT_THAT(texts, ElementsAre("4", "2", "", "0", "false", "", "true"));
}

TEST(Describer, SaysWhatSetsAFlag) {
    const auto nodes = described([](auto& io, auto& desk) {
        io.field("Maker", desk.maker);
        io.field("Height", desk.height);
        io.structure("Lamp", desk.lamp, [](auto& inner, auto& lamp) {
            auto any = inner.attribute("Type", lamp.type);
            any |= inner.value("Colour", lamp.colour);
            return any;
        });
        io.value("Scratches", desk.scratches);
        io.derive(desk.isScratched, notEmpty(desk.scratches));
    });
    EXPECT_EQ(flagOf(nodes.at(0)), ". exists");
    EXPECT_EQ(flagOf(nodes.at(1)), ". has text");
    EXPECT_EQ(flagOf(nodes.at(2)), "@Type or Colour exists");
    EXPECT_EQ(flagOf(nodes.at(2).children.at(0)), "");
    EXPECT_EQ(flagOf(nodes.at(3)), ". is not empty");
    EXPECT_TRUE(nodes.at(0).isOptional);
    EXPECT_TRUE(nodes.at(2).isOptional);
    EXPECT_FALSE(nodes.at(3).isOptional);
}

TEST(Describer, GivesEachMemberOfAGroupTheSharedFlag) {
    const auto nodes = described([](auto& io, auto& desk) {
        io.group(desk.lamp, [](auto& inner, auto& lamp) {
            auto any = inner.value("Watts", lamp.watts);
            any |= inner.value("MoreWatts", lamp.watts);
            return any;
        });
        io.writeWhen(isSet(desk.lamp)).value("Shade", desk.left);
    });
    EXPECT_EQ(flagOf(nodes.at(0)), ". or ../MoreWatts has text");
    EXPECT_EQ(flagOf(nodes.at(1)), "../Watts or . has text");
    EXPECT_TRUE(nodes.at(0).isOptional && nodes.at(1).isOptional);
    EXPECT_THAT(words(nodes.at(2).writtenWhen), ElementsAre("../Watts and ../MoreWatts are set"));
}

TEST(Describer, KeepsGatesInTheirOrderAndForTheirDirection) {
    const auto nodes = described([](auto& io, auto& desk) {
        auto lamp = io.readWhen(notEmpty(desk.maker.value)).writeWhen(isSet(desk.height)).element("Lamp");
        lamp.attribute("Type", desk.lamp.value.type);
        auto gated = lamp.when(oneOf(desk.lamp.value.type, "A", "B"));
        gated.writeWhen(HLGSwitch()).value("Watts", desk.lamp.value.watts);
        gated.value("Colour", desk.lamp.value.colour);
        io.writeWhen(rule("on Sundays", true, desk.lamp.value.watts)).field("Maker", desk.maker);
        io.writeWhen(anyOf(notEmpty(desk.scratches), isSet(desk.maker))).field("Height", desk.height);
        io.writeWhen(noneOf(desk.lamp.value.type, "C")).value("Scratches", desk.scratches);
    });
    EXPECT_THAT(words(nodes.at(0).readWhen), ElementsAre("../Maker is not empty"));
    EXPECT_THAT(words(nodes.at(0).writtenWhen), ElementsAre("../Height is set"));
    const auto& inLamp = nodes.at(0).children;
    EXPECT_THAT(words(inLamp.at(0).writtenWhen), ElementsAre());
    EXPECT_THAT(words(inLamp.at(1).readWhen), ElementsAre(R"(../@Type is "A" or "B")"));
    EXPECT_THAT(words(inLamp.at(1).writtenWhen),
                ElementsAre(R"(../@Type is "A" or "B")", "writeHLGSystemGamma is set in the record that is printed"));
    EXPECT_THAT(words(inLamp.at(2).writtenWhen), ElementsAre(R"(../@Type is "A" or "B")"));
    EXPECT_THAT(words(nodes.at(1).writtenWhen), ElementsAre("on Sundays"));
    EXPECT_THAT(nodes.at(1).writtenWhen.at(0).subjects, ElementsAre("../Lamp/Watts"));
    EXPECT_THAT(words(nodes.at(2).writtenWhen), ElementsAre("../Scratches is not empty or ../Maker is set"));
    EXPECT_THAT(words(nodes.at(3).writtenWhen), ElementsAre(R"(../Lamp/@Type is not "C")"));
}

TEST(Describer, AGateThatAsksForItsOwnFlagMakesANodeOptional) {
    const auto nodes = described([](auto& io, auto& desk) {
        auto lamp = io.writeWhen(isSet(desk.lamp)).element("Lamp");
        io.derive(desk.lamp.hasValue, lamp.exists());
        lamp.value("Watts", desk.lamp.value.watts);
    });
    EXPECT_TRUE(nodes.at(0).isOptional);
    EXPECT_THAT(words(nodes.at(0).writtenWhen), ElementsAre());
    EXPECT_EQ(flagOf(nodes.at(0)), ". exists");
}

TEST(Describer, AlwaysMakesWritingIndependentOfTheFlag) {
    const auto nodes = described([](auto& io, auto& desk) {
        io.always().field("Maker", desk.maker);
        io.always().structure("Lamp", desk.lamp, [](auto& inner, auto& lamp) {
            inner.value("Watts", lamp.watts);
            return inner.exists();
        });
        io.always().element("Shelf").field("Height", desk.height);
    });
    EXPECT_FALSE(nodes.at(0).isOptional);
    EXPECT_EQ(flagOf(nodes.at(0)), ". exists");
    EXPECT_FALSE(nodes.at(1).isOptional);
    EXPECT_EQ(flagOf(nodes.at(1)), ". exists");
    EXPECT_TRUE(nodes.at(2).children.at(0).isOptional);
}

TEST(Describer, DescribesLengthsConstantsKeysAndTexts) {
    const auto nodes = described([](auto& io, auto& desk) {
        io.array("Sizes", desk.sizes, {2, 4}, quantities::gain);
        io.constant("Kind", "wood");
        io.keyed("Side", "Which", "left", [&](auto& side) { side.text(desk.left, quantities::gain); });
        io.keyed("Side", "Which", "right", [&](auto& side) { side.text(desk.right, quantities::gain); });
        io.derive(desk.hasSides.value, haveEntries(2, desk.left, desk.right));
    });
    EXPECT_THAT(nodes.at(0).lengths, ElementsAre(2U, 4U));
    EXPECT_EQ(nodes.at(1).place, Description::Place::attribute);
    EXPECT_EQ(nodes.at(1).constant, "wood");
    const Description& side = nodes.at(2);
    EXPECT_EQ(side.repetition, Description::Repetition::byKey);
    EXPECT_EQ(side.keyAttribute, "Which");
    EXPECT_EQ(side.keyText, "left");
    EXPECT_EQ(side.children.at(0).constant, "left");
    EXPECT_EQ(side.children.at(1).place, Description::Place::text);
    EXPECT_EQ(flagOf(side.children.at(1)), ". and ../../Side[@Which='right']/text() each have 2 entries");
    EXPECT_EQ(flagOf(nodes.at(3).children.at(1)), "../../Side[@Which='left']/text() and . each have 2 entries");
}

TEST(Describer, DescribesRowsByTheirFirst) {
    const auto rows = described([](auto& io, auto& desk) {
        io.rowsWithContent("Book", desk, [](auto& inner, auto& book) {
            auto any = inner.array("Marks", book.marks, 3, quantities::gain);
            any |= inner.array("Pages", book.pages, 1, quantities::gain);
            return any;
        });
    });
    ASSERT_EQ(rows.size(), 1U);
    EXPECT_EQ(rows[0].repetition, Description::Repetition::rows);
    EXPECT_EQ(flagOf(rows[0]), "Marks or Pages has text");
    EXPECT_THAT(words(rows[0].writtenWhen), ElementsAre("Marks has 3 entries or Pages has 1 entry"));
    EXPECT_THAT(rows[0].children.at(0).lengths, ElementsAre(3U));
    EXPECT_FALSE(rows[0].children.at(0).isOptional);
    const auto all = described([](auto& io, auto& desk) {
        io.rows("Book", desk, [](auto& inner, auto& book) {
            inner.value("Pages", book.pages);
            return inner.exists();
        });
    });
    EXPECT_EQ(flagOf(all.at(0)), ". exists");
    EXPECT_TRUE(all.at(0).writtenWhen.empty());
}

TEST(Describer, MarksSubjectsThatTheVisitDoesNotName) {
    const auto nodes =
        described([](auto& io, auto& desk) { io.writeWhen(notEmpty(desk.maker.value)).field("Height", desk.height); });
    EXPECT_THAT(words(nodes.at(0).writtenWhen), ElementsAre("? is not empty"));
}

}  // namespace
}  // namespace lv::detail
