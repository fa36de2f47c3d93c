#include "ToolTest.h"

#include <lvdata/records/RecordClass.h>

#include <fstream>
#include <sstream>

#include <gmock/gmock.h>

namespace {

using testing::HasSubstr;

std::string schemaFile(const std::string& name) {
    std::ostringstream text;
    text << std::ifstream(std::string(LVDATA_SCHEMAS_DIR "/") + name).rdbuf();
    return text.str();
}

class Schema : public ToolTest {};

TEST_F(Schema, IsPrintedForEveryRecord) {
    for (const lv::RecordClass& each : lv::RecordClasses()) {
        const std::string root = each.name;
        EXPECT_EQ(run({"schema", "--xsd", root}), printed(schemaFile(root + ".xsd")));
        EXPECT_EQ(run({"schema", "--json-schema", root}), printed(schemaFile(root + ".schema.json")));
    }
}

TEST_F(Schema, IsWrittenToAFile) {
    EXPECT_EQ(run({"schema", "--xsd", "AssetInfo", "-o", "out.xsd"}), done());
    EXPECT_EQ(read("out.xsd"), schemaFile("AssetInfo.xsd"));
}

TEST_F(Schema, ForAnUnknownRootElementIsRefusedWithTheKnownOnes) {
    const Outcome outcome = run({"schema", "--xsd", "Monitor"});
    EXPECT_EQ(outcome.exitCode, 2);
    EXPECT_EQ(outcome.output, "");
    EXPECT_THAT(outcome.error, HasSubstr(R"(lvdata: error: unknown root element "Monitor"; known: AssetInfo, )"));
    EXPECT_THAT(outcome.error, HasSubstr("MonitorInfo, "));
    EXPECT_EQ(outcome.error.find('\n'), outcome.error.size() - 1);
}

TEST_F(Schema, NeedsOneForm) {
    EXPECT_EQ(run({"schema", "AssetInfo"}), failed("lvdata: error: schema needs --xsd or --json-schema"));
    EXPECT_EQ(run({"schema", "--xsd", "--json-schema", "AssetInfo"}).exitCode, 2);
    EXPECT_EQ(run({"schema", "--xsd"}).exitCode, 2);
}

}  // namespace
