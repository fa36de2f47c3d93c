#include "ToolTest.h"

#include <tests/support/repeated.h>

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
              failed("in.xml: error: unknown root element 'Unknown', known are: " + listOf(recordClasses())));
}

TEST_F(Records, OfALongNameTheMessageHasTheBeginning) {
    const auto messageFor = [this](const std::string& name) {
        return run({"format", "-"}, {'<' + name + "/>"}).error;
    };
    const std::string hundred(100, 'a');
    EXPECT_THAT(messageFor(hundred), HasSubstr('\'' + hundred + "',"));
    EXPECT_THAT(messageFor(hundred + 'b'), HasSubstr('\'' + hundred + "...',"));
    EXPECT_THAT(messageFor(std::string(98, 'a') + "\u20AC"), HasSubstr('\'' + std::string(98, 'a') + "...',"));
    EXPECT_LT(messageFor(std::string(1'000'000, 'a')).size(), 1'000);
}

TEST_F(Records, ALongNameOfBytesThatOnlyGoOnWithACharacterIsCutAllTheSame) {
    const Outcome outcome = run({"format", "-"}, {'<' + std::string(200, '\x9C') + "/>"});
    EXPECT_EQ(outcome.exitCode, 2);
    EXPECT_THAT(outcome.error, HasSubstr('\'' + lv::test::repeated("\\x9C", 97) + "...', known"));
}

TEST_F(Records, ANameIsComparedExactly) {
    for (const std::string name : {"assetInfo", "AssetInf", "AssetInfoo", "a:AssetInfo"}) {
        const Outcome outcome = run({"format", "-"}, {"<" + name + "/>"});
        EXPECT_EQ(outcome.exitCode, 2);
        EXPECT_THAT(outcome.error, HasSubstr("unknown root element '" + name + "'"));
    }
}

TEST_F(Records, AnElementOfARecordIsNoRecord) {
    EXPECT_EQ(run({"format", "-"}, {"<Asset1>x</Asset1>"}).exitCode, 2);
    EXPECT_EQ(run({"format", "-"}, {"<List><AssetInfo/></List>"}).exitCode, 2);
}

TEST_F(Records, AHostileNameKeepsToOneLine) {
    const Outcome outcome = run({"format", "-"}, {"<A\u0085\u2028B\x9B\x85/>"});
    EXPECT_EQ(outcome.exitCode, 2);
    EXPECT_THAT(outcome.error, HasSubstr("'A\\xC2\\x85\\xE2\\x80\\xA8B\\x9B\\x85', known"));
    EXPECT_EQ(std::count(outcome.error.begin(), outcome.error.end(), '\n'), 1);
}

/// A document just as the tool prints it, compact and without declaration.
struct Sample {
    std::string name;
    std::string document;
};

void PrintTo(const Sample& sample, std::ostream* out) {
    *out << sample.name;
}

class RecordContent : public ToolTest, public testing::WithParamInterface<Sample> {};

TEST_P(RecordContent, GoesThroughWhole) {
    const std::vector<std::string> command{"format", "-", "--compact", "--no-declaration"};
    EXPECT_EQ(run(command, {GetParam().document}), printed(GetParam().document + '\n'));
}

std::string element(const std::string& name, const std::string& text) {
    return "<" + name + ">" + text + "</" + name + ">";
}

std::string table(const std::string& name, unsigned int step) {
    std::string entries = "0";
    for (unsigned int entry = 1; entry < 1024; ++entry) {
        entries += '|' + std::to_string(entry * step);
    }
    return element(name, entries);
}

std::string sixColours(const std::string& adjustment) {
    std::string elements;
    int value = -3;
    for (const std::string colour : {"Red", "Green", "Blue", "Cyan", "Magenta", "Yellow"}) {
        elements += element(colour + adjustment, std::to_string(value++));
    }
    return elements;
}

std::string monitorParameter() {
    return R"(<MonitorParameter Version="4" MinorVersion="0">)" + element("Brightness", "120") +
           element("Contrast", "50") + element("isHDRLUT", "1") + table("RedLUT", 977517) + table("GreenLUT", 977516) +
           table("BlueLUT", 977515) + element("HLGSystemGamma", "120") + element("HLGClipping", "1") +
           sixColours("Hue") + sixColours("Saturation") + sixColours("Lightness") + element("RedGain", "1000000") +
           element("GreenGain", "999999") + element("BlueGain", "4294967295") +
           element("EmulationMatrix", "1000000|0|-1|0|1000000|0|-299999|0|1000000") +
           element("Limited109Setting", "2") + "</MonitorParameter>";
}

const std::vector<Sample> samples{
    {"AssetInfo",
     "<AssetInfo Version=\"1\" MinorVersion=\"0\"><Asset1>Room 4</Asset1><Asset3></Asset3><Asset8>0007</Asset8>"
     "</AssetInfo>"},
    {"CorrelationInfo", "<CorrelationInfo Version=\"1\" MinorVersion=\"7\"><ReferenceSensorID>012</ReferenceSensorID>"
                        "<ReferenceSensorSerial>S 1</ReferenceSensorSerial><CorrelationDate>yesterday</CorrelationDate>"
                        "</CorrelationInfo>"},
    {"MeasurementData",
     "<MeasurementData Version=\"2\" MinorVersion=\"0\"><Measurements><RGB>0|128|255</RGB><CMYK>0|10|20|100</CMYK>"
     "<XYZ>950470|1000000|-3</XYZ><CIELAB>1|2|3</CIELAB><PQR>4|5|6</PQR></Measurements>"
     "<Measurements><PQR>7|8|9</PQR></Measurements></MeasurementData>"},
    {"MeasurementDataSecondary",
     "<MeasurementDataSecondary Version=\"2\" MinorVersion=\"0\"><Measurements><RGB>1|2|3</RGB></Measurements>"
     "</MeasurementDataSecondary>"},
    {"MonitorParameter", monitorParameter()},
};

INSTANTIATE_TEST_SUITE_P(Records, RecordContent, testing::ValuesIn(samples),
                         [](const auto& test) { return test.param.name; });

}  // namespace
