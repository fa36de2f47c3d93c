#include <tests/support/round_trip.h>
#include <tests/support/samples.h>

#include <gtest/gtest.h>

#include <lvdata/records/BasicData.h>

#include <array>
#include <string>

// The type of the executor: the one element of the record with a parent of its own, and a flag that follows its text.

namespace lv::test {
namespace {

using Text = property<std::string>;

/// Documents that hold no text for it.
constexpr std::array noText = {"",
                               "<Executor/>",
                               "<Executor></Executor>",
                               "<Executor>Operator</Executor>",
                               "<Executor><Type/></Executor>",
                               "<Executor><Type></Type></Executor>",
                               "<Executor><Type>  \n</Type></Executor>",
                               "<Executor><Type><b>Operator</b></Type></Executor>",
                               "<Executor><type>Operator</type></Executor>",
                               "<executor><Type>Operator</Type></executor>",
                               "<Type>Operator</Type>",
                               R"(<Executor Type="Operator"/>)",
                               "<Other><Executor><Type>Operator</Type></Executor></Other>",
                               "<Executor><Other><Type>Operator</Type></Other></Executor>",
                               "<Executor/><Executor><Type>Operator</Type></Executor>",
                               "<Executor><Type/><Type>Operator</Type></Executor>"};

/// What the member holds after reading these children on top of `earlier`.
Text readOver(const Text& earlier, const std::string& children) {
    BasicData record;
    record.executorType = earlier;
    EXPECT_TRUE(record.parseXMLString(documentOf<BasicData>(children)));
    return record.executorType;
}

std::string writtenWith(const Text& executorType) {
    BasicData record;
    record.executorType = executorType;
    return compact(record);
}

TEST(BasicDataExecutor, SetTypeIsWrittenInsideExecutor) {
    EXPECT_EQ(writtenWith({"Operator", true}), written<BasicData>("<Executor><Type>Operator</Type></Executor>"));
    EXPECT_EQ(writtenWith({"a<&>b", true}), written<BasicData>("<Executor><Type>a&lt;&amp;&gt;b</Type></Executor>"));
}

TEST(BasicDataExecutor, SetButEmptyTypeIsWrittenAsWell) {
    EXPECT_EQ(writtenWith({"", true}), written<BasicData>("<Executor><Type></Type></Executor>"));
}

TEST(BasicDataExecutor, UnsetTypeWritesNoExecutorRegardlessOfItsText) {
    EXPECT_EQ(writtenWith({"", false}), compact(BasicData()));
    EXPECT_EQ(writtenWith({"Operator", false}), compact(BasicData()));
}

TEST(BasicDataExecutor, TypeIsReadFromExecutor) {
    for (const Text& earlier : {Text{"", false}, Text{"old", false}, Text{"old", true}}) {
        EXPECT_EQ(readOver(earlier, "<Executor><Type>a &amp; b</Type></Executor>"), (Text{"a & b", true}));
    }
}

TEST(BasicDataExecutor, EmptyTypeParsesToUnsetSoThatWritingDropsExecutor) {
    const auto record = parsed<BasicData>("<BasicData><Executor><Type></Type></Executor></BasicData>");
    EXPECT_EQ(record.executorType, (Text{"", false}));
    EXPECT_EQ(compact(record), compact(BasicData()));
}

TEST(BasicDataExecutor, WithoutATextTheFlagFollowsTheEarlierOne) {
    for (const char* children : noText) {
        for (const bool flag : {false, true}) {
            EXPECT_EQ(readOver({"", flag}, children), (Text{"", false})) << children;
            EXPECT_EQ(readOver({"earlier", flag}, children), (Text{"earlier", true})) << children;
        }
    }
}

TEST(BasicDataExecutor, TextOfASpaceCountsAsPresent) {
    EXPECT_EQ(readOver({"", false}, "<Executor><Type>&#32;</Type></Executor>"), (Text{" ", true}));
}

TEST(BasicDataExecutor, FirstExecutorAndFirstTypeCount) {
    EXPECT_EQ(readOver({}, "<Executor><Type>one</Type><Type>two</Type></Executor><Executor><Type>3</Type></Executor>"),
              (Text{"one", true}));
}

TEST(BasicDataExecutor, FailedParseLeavesTheFlagAsTheCallerSetIt) {
    BasicData record;
    record.executorType = {"Operator", false};
    EXPECT_FALSE(record.parseXMLString("<Basic/>"));
    EXPECT_EQ(record.executorType, (Text{"Operator", false}));
}

}  // namespace
}  // namespace lv::test
