#include "ToolTest.h"

#include <algorithm>
#include <string>

#include <gmock/gmock.h>

namespace {

using testing::EndsWith;
using testing::HasSubstr;
using testing::StartsWith;

const std::string first = "<AssetInfo><Asset1>one, two</Asset1></AssetInfo>";
const std::string second = "<AssetInfo><Asset1>three</Asset1></AssetInfo>";
const std::string firstLine = R"({"asset_info":{"version":1,"minor_version":0,"asset1":"one, two"}})";
const std::string secondLine = R"({"asset_info":{"version":1,"minor_version":0,"asset1":"three"}})";

class Convert : public ToolTest {
protected:
    Convert() {
        write("a.xml", first);
        write("b.xml", second);
    }

    [[nodiscard]] Outcome convert(std::vector<std::string> arguments) const {
        arguments.insert(arguments.begin(), {"convert", "--to"});
        return run(arguments);
    }
};

Outcome failed(const std::string& message) {
    return {2, "", message + '\n'};
}

TEST_F(Convert, MakesJSONOfOneDocument) {
    EXPECT_EQ(convert({"json", "a.xml", "--compact"}), printed(firstLine + '\n'));
    EXPECT_THAT(convert({"json", "a.xml"}).output, StartsWith("{\n  \"asset_info\": {\n    \"version\": 1,\n"));
}

TEST_F(Convert, MakesAnArrayOfSeveralDocuments) {
    EXPECT_EQ(convert({"json", "--compact", "a.xml", "b.xml"}),
              printed("[\n" + firstLine + ",\n" + secondLine + "\n]\n"));
    EXPECT_EQ(convert({"json", "--compact", "."}).output, "[\n" + firstLine + ",\n" + secondLine + "\n]\n");
}

TEST_F(Convert, MakesALineOfEachDocument) {
    EXPECT_EQ(convert({"jsonl", "a.xml", "b.xml"}), printed("{\"file\":\"a.xml\"," + firstLine.substr(1) + '\n' +
                                                            "{\"file\":\"b.xml\"," + secondLine.substr(1) + '\n'));
}

TEST_F(Convert, MakesTables) {
    const Outcome csv = convert({"csv", "--table", "monitors", "a.xml", "b.xml"});
    EXPECT_THAT(csv.output, StartsWith("file,uuid,serial,mode_index,name,"));
    EXPECT_THAT(csv.output, HasSubstr("\r\na.xml,,,,,,,,,,\"one, two\",,,,,,,,,,\r\nb.xml,,,,,,,,,,three,"));
    const Outcome lines = convert({"jsonl", "--table", "monitors", "a.xml"});
    EXPECT_THAT(lines.output, StartsWith(R"({"file":"a.xml","uuid":null,)"));
    EXPECT_THAT(lines.output, HasSubstr(R"("asset1":"one, two","asset2":null,)"));
    EXPECT_THAT(convert({"csv", "--table", "maps", "a.xml"}).output,
                "file,uuid,serial,mode_index,kind,entry,value,updated_at\r\n");
}

TEST_F(Convert, MakesXMLOfJSON) {
    write("a.json", "\xEF\xBB\xBF \n" + firstLine);
    EXPECT_EQ(convert({"xml", "a.json"}), run({"format", "a.xml"}));
    EXPECT_THAT(convert({"xml", "a.json", "--compact"}).output, EndsWith("<Asset1>one, two</Asset1></AssetInfo>\n"));
}

TEST_F(Convert, RestoresADocumentFromItsJSON) {
    ASSERT_EQ(convert({"json", exampleData("studio.xml"), "-o", "studio.json"}), printed(""));
    EXPECT_EQ(convert({"xml", "studio.json"}).output,
              run({"format", "--hlg-system-gamma", exampleData("studio.xml")}).output);
}

TEST_F(Convert, WritesIntoAFile) {
    EXPECT_EQ(convert({"jsonl", "a.xml", "b.xml", "-o", "all.jsonl"}), printed(""));
    EXPECT_EQ(read("all.jsonl"), convert({"jsonl", "a.xml", "b.xml"}).output);
}

TEST_F(Convert, GoesOnAfterADocumentThatCannotBeRead) {
    write("bad.json", "{\"asset_info\": {\n\"asset_1\": \"\"}}");
    const Outcome outcome = convert({"json", "--compact", "a.xml", "bad.json", "none.xml", "b.xml"});
    EXPECT_EQ(outcome.exitCode, 2);
    EXPECT_EQ(outcome.output, "[\n" + firstLine + ",\n" + secondLine + "\n]\n");
    EXPECT_EQ(outcome.error, "bad.json: error: line 2: asset_info.asset_1: unknown key, did you mean \"asset1\"?\n"
                             "none.xml: error: No such file or directory\n");
}

TEST_F(Convert, RefusesJSONBeyondTheLimits) {
    write("a.json", "{\"asset_info\": {\n\"asset1\": \"one, two\"}}");
    EXPECT_EQ(convert({"xml", "a.json", "--max-size", "39", "--max-elements", "2", "--max-nodes", "3"}),
              run({"format", "a.xml"}));
    EXPECT_EQ(convert({"xml", "a.json", "--max-size", "38"}),
              failed("a.json: error: more than 38 bytes (limit: --max-size)"));
    EXPECT_EQ(convert({"xml", "a.json", "--max-elements", "1"}),
              failed("a.json: error: line 2: more than 1 element (limit: --max-elements)"));
    EXPECT_EQ(convert({"xml", "a.json", "--max-nodes", "2"}),
              failed("a.json: error: line 2: more than 2 nodes (limit: --max-nodes)"));
}

TEST_F(Convert, ReportsWhatARecordDropsOfJSON) {
    const std::string row = R"({"type":"Calibraton","target":{"type":"Lumivale"}})";
    write("a.json", R"({"color_mode_settings":{"color_mode":[)" + row + "]}}");
    const Outcome one = convert({"xml", "a.json"});
    EXPECT_EQ(one.exitCode, 1);
    EXPECT_THAT(one.output, HasSubstr("<ColorMode Type=\"Calibraton\""));
    EXPECT_THAT(one.error, StartsWith("a.json: warning: \"Target\" is dropped"));
    EXPECT_EQ(convert({"jsonl", "a.xml", "a.json"}).exitCode, 1);

    std::string rows = row;
    for (int count = 1; count < 12; ++count) {
        rows += ',' + row;
    }
    write("a.json", R"({"color_mode_settings":{"color_mode":[)" + rows + "]}}");
    const std::string error = convert({"xml", "a.json"}).error;
    EXPECT_EQ(std::count(error.begin(), error.end(), '\n'), 11);
    EXPECT_THAT(error, EndsWith("a.json: warning: 2 more changes\n"));
}

TEST_F(Convert, KeepsAFileWhenNothingWasConverted) {
    write("out.json", "kept");
    EXPECT_EQ(convert({"json", "none.xml", "-o", "out.json"}).exitCode, 2);
    EXPECT_EQ(read("out.json"), "kept");
}

TEST_F(Convert, RefusesWhatJSONCannotCarry) {
    write("bytes.xml", "<AssetInfo><Asset1>\xff</Asset1></AssetInfo>");
    EXPECT_EQ(convert({"json", "bytes.xml"}),
              failed("bytes.xml: error: asset_info.asset1: JSON cannot carry bytes that are not UTF-8"));
    EXPECT_EQ(convert({"jsonl", "--table", "monitors", "bytes.xml"}),
              failed("bytes.xml: error: JSON cannot carry bytes that are not UTF-8"));
}

TEST_F(Convert, RefusesOptionsThatDoNotGoTogether) {
    EXPECT_EQ(convert({"csv", "a.xml"}), failed("lvdata: error: --to csv needs --table"));
    EXPECT_EQ(convert({"json", "--table", "maps", "a.xml"}),
              failed("lvdata: error: --table needs --to csv or --to jsonl"));
    EXPECT_EQ(convert({"xml", "a.xml", "b.xml"}), failed("lvdata: error: --to xml takes one document"));
    EXPECT_EQ(convert({"yaml", "a.xml"}).exitCode, 2);
}

TEST_F(Convert, ReportsWhatARecordDropsOfXML) {
    write("a.xml", "<AssetInfo><Owner/><Asset1>Room 4</Asset1></AssetInfo>");
    const Outcome outcome = run({"convert", "--to", "jsonl", "a.xml"});
    EXPECT_EQ(outcome.exitCode, 1);
    EXPECT_EQ(outcome.error, "a.xml: warning: line 1: unknown element \"Owner\" is dropped [301]\n");
    EXPECT_THAT(outcome.output, HasSubstr("Room 4"));
}

TEST_F(Convert, OverwritesNoInputWithSomethingElse) {
    const std::string lossy = "<AssetInfo><Owner/><Asset1>Room 4</Asset1></AssetInfo>";
    write("a.xml", lossy);
    const Outcome xml = run({"convert", "--to", "xml", "a.xml", "-o", "./a.xml"});
    EXPECT_EQ(xml.exitCode, 2);
    EXPECT_THAT(xml.error, HasSubstr("./a.xml: error: not overwritten, since it would lose what is listed above"));
    EXPECT_EQ(read("a.xml"), lossy);
    write("b.xml", "<AssetInfo/>");
    const Outcome json = run({"convert", "--to", "json", "b.xml", "-o", "b.xml"});
    EXPECT_EQ(json.exitCode, 2);
    EXPECT_EQ(json.error, "b.xml: error: not overwritten, since it is one of the inputs\n");
    EXPECT_EQ(read("b.xml"), "<AssetInfo/>");
    EXPECT_EQ(run({"convert", "--to", "xml", "b.xml", "-o", "b.xml"}).exitCode, 0);
}

}  // namespace
