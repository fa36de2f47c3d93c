#include "RecordSample.h"
#include "ToolTest.h"

#include <tests/support/parameter_names.h>
#include <tests/support/repeated.h>

#include <lvdata/records/EveryRecord.h>

#include <algorithm>
#include <iterator>
#include <sstream>

#include <gmock/gmock.h>

namespace {

using testing::HasSubstr;

/// The record classes that the library is built with.
std::vector<std::string> recordClasses() {
    std::istringstream list(LVDATA_RECORDS);
    return {std::istream_iterator<std::string>(list), {}};
}

std::string listOf(const std::vector<std::string>& names) {
    std::string list;
    for (const std::string& name : names) {
        list += (list.empty() ? "" : ", ") + name;
    }
    return list;
}

using Records = ToolTest;

TEST_F(Records, EveryRecordOfTheLibraryIsKnown) {
    ASSERT_FALSE(recordClasses().empty());
    for (const std::string& name : recordClasses()) {
        const Outcome outcome = run({"format", "-", "--no-declaration"}, {"<" + name + "/>"});
        EXPECT_EQ(outcome.exitCode, 0) << outcome.error;
        EXPECT_THAT(outcome.output, testing::StartsWith("<" + name + " Version=\""));
    }
}

TEST_F(Records, AnUnknownRootElementIsNamedAndTheKnownOnesAreListed) {
    write("in.xml", "<Unknown/>");
    EXPECT_EQ(run({"format", "in.xml"}),
              failed("in.xml: error: unknown root element \"Unknown\"; known: " + listOf(recordClasses())));
}

TEST_F(Records, ALongNameIsCutInTheMessage) {
    const auto messageFor = [this](const std::string& name) {
        return run({"format", "-"}, {'<' + name + "/>"}).error;
    };
    const std::string sixty(60, 'a');
    EXPECT_THAT(messageFor(sixty), HasSubstr('"' + sixty + "\";"));
    EXPECT_THAT(messageFor(sixty + 'b'), HasSubstr('"' + sixty + "...\";"));
    EXPECT_THAT(messageFor(std::string(58, 'a') + "\u20AC"), HasSubstr('"' + std::string(58, 'a') + "...\";"));
    EXPECT_LT(messageFor(std::string(1'000'000, 'a')).size(), 1'000);
}

TEST_F(Records, ALongNameOfContinuationBytesIsCutAsWell) {
    const Outcome outcome = run({"format", "-"}, {'<' + std::string(200, '\x9C') + "/>"});
    EXPECT_EQ(outcome.exitCode, 2);
    EXPECT_THAT(outcome.error, HasSubstr('"' + lv::test::repeated("\\x9C", 57) + "...\"; known"));
}

TEST_F(Records, ANameIsComparedExactly) {
    for (const std::string name : {"assetInfo", "AssetInf", "AssetInfoo", "a:AssetInfo"}) {
        const Outcome outcome = run({"format", "-"}, {"<" + name + "/>"});
        EXPECT_EQ(outcome.exitCode, 2);
        EXPECT_THAT(outcome.error, HasSubstr("unknown root element \"" + name + '"'));
    }
}

TEST_F(Records, AnElementOfARecordIsNotARecord) {
    EXPECT_EQ(run({"format", "-"}, {"<Asset1>x</Asset1>"}).exitCode, 2);
    EXPECT_EQ(run({"format", "-"}, {"<List><AssetInfo/></List>"}).exitCode, 2);
}

TEST_F(Records, AnyNameIsShownOnOneLine) {
    const Outcome outcome = run({"format", "-"}, {"<A\u0085\u2028B\x9B\x85/>"});
    EXPECT_EQ(outcome.exitCode, 2);
    EXPECT_THAT(outcome.error, HasSubstr("\"A\\xC2\\x85\\xE2\\x80\\xA8B\\x9B\\x85\"; known"));
    EXPECT_EQ(std::count(outcome.error.begin(), outcome.error.end(), '\n'), 1);
}

class RecordContent : public ToolTest, public testing::WithParamInterface<RecordSample> {};

TEST_P(RecordContent, IsKeptCompletely) {
    const std::vector<std::string> command{"format", "-", "--compact", "--no-declaration"};
    const std::string document = GetParam().document();
    EXPECT_EQ(run(command, {document}), printed(document + '\n'));
}

INSTANTIATE_TEST_SUITE_P(Records, RecordContent, testing::ValuesIn(recordSamples(lv::EveryRecord())),
                         lv::test::nameOfParameter);

}  // namespace
