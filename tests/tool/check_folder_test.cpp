#include "ToolTest.h"

#include <gmock/gmock.h>

// A folder of many documents, of which some are faulty, each in another way.

namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;

/// Something done to a document, and the rules that notice.
struct Fault {
    std::string name;
    std::string from;  // a text that the document has
    std::string to;
    std::vector<std::string> rules;
};

/// A document of many kinds of elements. It loses nothing.
const std::string document = R"(<MonitorInfo Version="2" MinorVersion="2">
    <AssetInfo Version="1" MinorVersion="0">
        <Asset1>Room 4</Asset1>
    </AssetInfo>
    <MonitorConfiguration Version="2" MinorVersion="0">
        <ColorModeSettings Version="2" MinorVersion="0">
            <ColorMode Type="Calibration">
                <Index>2</Index>
                <Target Type="Lumivale">
                    <TargetSetting Version="3" MinorVersion="2">
                        <Brightness Type="Value">
                            <Value>120</Value>
                        </Brightness>
                        <WhitePoint Type="Coordinate">
                            <x>3127</x>
                            <y>3290</y>
                        </WhitePoint>
                    </TargetSetting>
                </Target>
            </ColorMode>
        </ColorModeSettings>
    </MonitorConfiguration>
</MonitorInfo>
)";

const std::vector<Fault> faults{
    {"cut", "</MonitorInfo>", "", {"001"}},
    {"root", "MonitorInfo", "monitorInfo", {"002"}},
    {"bytes", "Room 4", "Z\xFCrich", {"003"}},
    {"word", ">2</Index>", ">two</Index>", {"101"}},
    {"large", ">2</Index>", ">4294967296</Index>", {"102"}},
    {"negative", ">2</Index>", ">-2</Index>", {"103"}},
    {"comma", ">120</Value>", ">120,5</Value>", {"104"}},
    {"fraction", ">3127</x>", ">0.3127</x>", {"104"}},
    {"empty", ">2</Index>", "></Index>", {"107"}},
    {"misspelt", "<Asset1>Room 4</Asset1>", "<Aset1>Room 4</Aset1>", {"301"}},
    {"attribute", "<Asset1>", "<Asset1 lang='en'>", {"302"}},
    {"repeated", "</Asset1>", "</Asset1><Asset1>Room 5</Asset1>", {"303"}},
    {"type", "Type=\"Lumivale\"", "Type=\"Lumivael\"", {"311"}},
    {"mode", "Type=\"Calibration\"", "Type=\"Calibratoin\"", {"305"}},
    {"comment", "</Asset1>", "</Asset1><!-- moved -->", {"307"}},
};

std::string replaced(std::string text, const std::string& from, const std::string& to) {
    for (std::size_t place = text.find(from); place != std::string::npos; place = text.find(from, place + to.size())) {
        text.replace(place, from.size(), to);
    }
    return text;
}

class CheckFolder : public ToolTest {
protected:
    static constexpr std::size_t documents = 200;

    CheckFolder() {
        fs::create_directory(path("archive"));
        for (std::size_t number = 0; number < documents - faults.size(); ++number) {
            write("archive/" + std::to_string(number) + ".xml", document);
        }
        for (const Fault& fault : faults) {
            write("archive/" + fault.name + ".xml", replaced(document, fault.from, fault.to));
        }
    }
};

std::vector<std::string> linesAbout(const std::string& name, const std::string& output) {
    std::vector<std::string> lines;
    const std::string start = "archive/" + name + ".xml: ";
    for (std::size_t begin = 0; begin < output.size(); begin = output.find('\n', begin) + 1) {
        if (output.compare(begin, start.size(), start) == 0) {
            lines.push_back(output.substr(begin, output.find('\n', begin) - begin));
        }
    }
    return lines;
}

TEST_F(CheckFolder, NamesTheFaultyDocumentsAndNoOther) {
    const Outcome outcome = run({"check", "archive"});
    EXPECT_EQ(outcome.exitCode, 1);
    EXPECT_EQ(outcome.error, "");
    EXPECT_THAT(outcome.output, HasSubstr("\n200 documents, 15 of them with findings: "));
    for (const Fault& fault : faults) {
        const std::vector<std::string> lines = linesAbout(fault.name, outcome.output);
        for (const std::string& rule : fault.rules) {
            EXPECT_THAT(lines, testing::Contains(HasSubstr('[' + rule + ']'))) << fault.name;
        }
    }
    for (std::size_t number = 0; number < documents - faults.size(); ++number) {
        EXPECT_THAT(linesAbout(std::to_string(number), outcome.output), testing::IsEmpty());
    }
}

TEST_F(CheckFolder, SaysTheSameInAnyNumberOfThreads) {
    for (const std::string format : {"text", "json"}) {
        const Outcome alone = run({"check", "--format", format, "--info", "-j", "1", "archive", "missing.xml"});
        const Outcome together = run({"check", "--format", format, "--info", "-j", "4", "archive", "missing.xml"});
        EXPECT_EQ(alone.exitCode, 2);
        EXPECT_TRUE(alone == together) << format;
    }
}

}  // namespace
