#include <lvdata/analysis/check/Rule.h>

#include <algorithm>

namespace lv::analysis {

std::string_view nameOf(Severity severity) {
    switch (severity) {
    case Severity::error:
        return "error";
    case Severity::warning:
        return "warning";
    case Severity::info:
        break;
    }
    return "info";
}

const std::vector<Rule>& rules() {
    constexpr Severity error = Severity::error;
    constexpr Severity warning = Severity::warning;
    constexpr Severity info = Severity::info;
    static const std::vector<Rule> all = {
        {"001", error, "not XML",
         "The text is not well-formed XML, or it has no element. There is no record. The line is the one where the XML "
         "parser noticed.",
         "<AssetInfo>\n    <Asset1>Room 4</Asset2>\n</AssetInfo>\n", 2,
         "<AssetInfo>\n    <Asset1>Room 4</Asset1>\n</AssetInfo>\n"},
        {"002", error, "unknown root element",
         "The root element is not the name of a record class. Names are compared exactly, upper and lower case and "
         "prefixes included. There is no record.",
         "<Assetinfo/>\n", 1, "<AssetInfo/>\n"},
        {"003", error, "not text in UTF-8",
         "The document holds a NUL character or bytes that are not UTF-8. A NUL would end the text. Other bytes are "
         "kept "
         "as they stand, but the document is not valid XML, and other programs refuse it or show other characters. "
         "Store "
         "it as UTF-8.",
         "<AssetInfo>\n    <Asset1>Z\xFCrich</Asset1>\n</AssetInfo>\n", 2,
         "<AssetInfo>\n    <Asset1>Z\xC3\xBCrich</Asset1>\n</AssetInfo>\n"},
        {"004", error, "not well-formed, but read",
         "The document breaks the rules of XML, so other programs refuse it, and the record may hold less than the "
         "text "
         "says: a reference to character 0 ends a text, and an end tag too many ends the document. Only the first such "
         "fault is reported.",
         "<AssetInfo>\n    <Asset1>Room 4&#0; and 5</Asset1>\n</AssetInfo>\n", 2,
         "<AssetInfo>\n    <Asset1>Room 4 and 5</Asset1>\n</AssetInfo>\n"},
        {"101", error, "not a number",
         "The text does not begin with a decimal number, so it reads as 0. Hexadecimal is not understood.",
         "<BasicData>\n    <UsageHours>many</UsageHours>\n</BasicData>\n", 2,
         "<BasicData>\n    <UsageHours>1204</UsageHours>\n</BasicData>\n"},
        {"102", error, "number out of range", "The number does not fit into 32 bits, so it reads as the nearest limit.",
         "<BasicData>\n    <UsageHours>99999999999</UsageHours>\n</BasicData>\n", 2,
         "<BasicData>\n    <UsageHours>4294967295</UsageHours>\n</BasicData>\n"},
        {"103", error, "negative, but unsigned",
         "The number is negative where only numbers from 0 are meant. It reads as a large number: -1 as 4294967295.",
         "<BasicData>\n    <UsageHours>-1</UsageHours>\n</BasicData>\n", 2,
         "<BasicData>\n    <UsageHours>1</UsageHours>\n</BasicData>\n"},
        {"104", error, "text after a number",
         "Reading a number stops at the first character that is not a digit; the rest is ignored. Fractions are stored "
         "as "
         "whole numbers, scaled by the factor of their element: an x of 0.3127 is stored as 3127.",
         "<TargetSetting>\n    <WhitePoint Type=\"Coordinate\">\n        <x>0.3127</x>\n        <y>3290</y>\n"
         "    </WhitePoint>\n</TargetSetting>\n",
         3,
         "<TargetSetting>\n    <WhitePoint Type=\"Coordinate\">\n        <x>3127</x>\n        <y>3290</y>\n"
         "    </WhitePoint>\n</TargetSetting>\n"},
        {"105", info, "another spelling",
         "The text means the value that is read, but it is written back in another form: 042 as 42, TRUE as true.",
         "<BasicData>\n    <UsageHours>+042</UsageHours>\n</BasicData>\n", 2,
         "<BasicData>\n    <UsageHours>42</UsageHours>\n</BasicData>\n"},
        {"106", error, "neither true nor false",
         "The text of a switch is neither \"true\" nor \"false\". It reads as false.",
         "<ProfilePolicy>\n    <Create3DLut>yes</Create3DLut>\n</ProfilePolicy>\n", 2,
         "<ProfilePolicy>\n    <Create3DLut>true</Create3DLut>\n</ProfilePolicy>\n"},
        {"107", warning, "empty",
         "A number, a switch or an array has no text. It counts as missing: it is dropped, or written back as the "
         "value "
         "of a fresh record.",
         "<BasicData>\n    <UsageHours></UsageHours>\n</BasicData>\n", 2,
         "<BasicData>\n    <UsageHours>0</UsageHours>\n</BasicData>\n"},
        {"108", warning, "empty array entry",
         "Nothing stands before, between or after the separators \"|\" of an array. Such a piece is dropped, and the "
         "entries after it move up.",
         "<CandelaMap>\n    <Uniformity>\n        <Values>98||100</Values>\n    </Uniformity>\n</CandelaMap>\n", 3,
         "<CandelaMap>\n    <Uniformity>\n        <Values>98|99|100</Values>\n    </Uniformity>\n</CandelaMap>\n"},
        {"109", error, "read as another value",
         "The record writes back another value than the document has, for none of the other reasons. A text of white "
         "space alone, for instance, does not survive, and a carriage return becomes a line feed.",
         "<AssetInfo>\n    <Asset1>&#32;</Asset1>\n</AssetInfo>\n", 2,
         "<AssetInfo>\n    <Asset1>&#32;.</Asset1>\n</AssetInfo>\n"},
        {"201", error, "wrong number of entries",
         "An array that needs a certain number of entries has another one. All of it is dropped when the record is "
         "written.",
         "<MeasurementData>\n    <Measurements>\n        <RGB>255|255|255</RGB>\n        "
         "<XYZ>95047000|100000000</XYZ>\n"
         "    </Measurements>\n</MeasurementData>\n",
         4,
         "<MeasurementData>\n    <Measurements>\n        <RGB>255|255|255</RGB>\n"
         "        <XYZ>95047000|100000000|108883000</XYZ>\n    </Measurements>\n</MeasurementData>\n"},
        {"301", warning, "unknown element",
         "The record does not know an element of this name here. It is ignored and not written back, with all that it "
         "holds. Perhaps it is misspelt: names are compared exactly.",
         "<AssetInfo>\n    <Asset9>Room 4</Asset9>\n</AssetInfo>\n", 2,
         "<AssetInfo>\n    <Asset8>Room 4</Asset8>\n</AssetInfo>\n"},
        {"302", warning, "unknown attribute",
         "The record does not know an attribute of this name here. It is ignored and not written back.",
         "<AssetInfo>\n    <Asset1 lang=\"en\">Room 4</Asset1>\n</AssetInfo>\n", 2,
         "<AssetInfo>\n    <Asset1>Room 4</Asset1>\n</AssetInfo>\n"},
        {"303", warning, "repeated element",
         "There are several elements of a name of which only one is read: the first, or, of elements with a key, the "
         "last "
         "with a text. The others are dropped. So is a second root element.",
         "<AssetInfo>\n    <Asset1>Room 4</Asset1>\n    <Asset1>Room 5</Asset1>\n</AssetInfo>\n", 3,
         "<AssetInfo>\n    <Asset1>Room 4</Asset1>\n    <Asset2>Room 5</Asset2>\n</AssetInfo>\n"},
        {"304", warning, "row without content",
         "A row of a list holds nothing that the record knows. It is dropped, and the rows after it move up.",
         "<MeasurementData>\n    <Measurements/>\n</MeasurementData>\n", 2,
         "<MeasurementData>\n    <Measurements>\n        <RGB>0|0|0</RGB>\n    </Measurements>\n</MeasurementData>\n"},
        {"305", warning, "not written back because of a condition",
         "The element is read, but what the record holds elsewhere keeps it from being written. Most often a \"Type\" "
         "is "
         "misspelt or does not belong to the element. The message names the condition.",
         "<ParameterSetting>\n    <WhitePoint Type=\"Temprature\">\n        <Temperature>6500</Temperature>\n"
         "    </WhitePoint>\n</ParameterSetting>\n",
         3,
         "<ParameterSetting>\n    <WhitePoint Type=\"Temperature\">\n        <Temperature>6500</Temperature>\n"
         "    </WhitePoint>\n</ParameterSetting>\n"},
        {"306", warning, "not read because of a condition",
         "What the document holds elsewhere keeps the element from being read. The message names the condition.",
         "<ParameterSetting>\n    <Gamma Type=\"SyncSignal\">\n        <Value>220</Value>\n    </Gamma>\n"
         "</ParameterSetting>\n",
         3,
         "<ParameterSetting>\n    <Gamma Type=\"Value\">\n        <Value>220</Value>\n    </Gamma>\n"
         "</ParameterSetting>\n"},
        {"307", warning, "comment or further text",
         "Comments, processing instructions and document types are not kept. Of several texts in an element only the "
         "first "
         "is read, and only when no element comes before it.",
         "<AssetInfo>\n    <!-- moved in May -->\n    <Asset1>Room 4</Asset1>\n</AssetInfo>\n", 2,
         "<AssetInfo>\n    <Asset1>Room 4, moved in May</Asset1>\n</AssetInfo>\n"},
        {"308", warning, "text where only elements belong",
         "An element that only holds other elements, or the document itself, has a text. It is ignored and dropped.",
         "<AssetInfo>\n    <Asset1>Room 4</Asset1>Room 5</AssetInfo>\n", 2,
         "<AssetInfo>\n    <Asset1>Room 4</Asset1>\n</AssetInfo>\n"},
        {"309", warning, "element in the wrong place",
         "The record knows an element of this name, but in another place. Here it is ignored and dropped. The message "
         "names the place where it belongs.",
         "<MonitorInfo>\n    <Asset1>Room 4</Asset1>\n</MonitorInfo>\n", 2,
         "<MonitorInfo>\n    <AssetInfo>\n        <Asset1>Room 4</Asset1>\n    </AssetInfo>\n</MonitorInfo>\n"},
        {"310", info, "will be added",
         "An element or attribute that the record always writes is missing. It is added with the value of a fresh "
         "record.",
         "<AssetInfo MinorVersion=\"0\"/>\n", 1, "<AssetInfo Version=\"1\" MinorVersion=\"0\"/>\n"},
        {"311", warning, "written back as a constant",
         "The text is always written as the same one; what the document has is not looked at.",
         "<ColorModeSettings>\n    <ColorMode Type=\"Calibration\">\n        <Target Type=\"Other\"/>\n    "
         "</ColorMode>\n"
         "</ColorModeSettings>\n",
         3,
         "<ColorModeSettings>\n    <ColorMode Type=\"Calibration\">\n        <Target Type=\"Lumivale\"/>\n"
         "    </ColorMode>\n</ColorModeSettings>\n"},
        {"312", info, "another version",
         "The version numbers of the record are not those of this library. They are kept. A newer version may have "
         "elements that this library does not know.",
         "<AssetInfo Version=\"7\" MinorVersion=\"0\"/>\n", 1, "<AssetInfo Version=\"1\" MinorVersion=\"0\"/>\n"},
        {"313", info, "HLGSystemGamma needs a switch",
         "Records write this element only when the application sets writeHLGSystemGamma. Programs that do not set it "
         "drop "
         "the element. The command lvdata sets it for documents that have such an element, unless it is told not to.",
         "<ParameterSetting>\n    <Gamma Type=\"Value\">\n        <Value>220</Value>\n"
         "        <HLGSystemGamma>120</HLGSystemGamma>\n    </Gamma>\n</ParameterSetting>\n",
         4,
         "<ParameterSetting>\n    <Gamma Type=\"Value\">\n        <Value>220</Value>\n    </Gamma>\n"
         "</ParameterSetting>\n"},
        {"320", warning, "not in canonical form",
         "The text is not what the record prints, byte for byte, although nothing need be lost: the order, the white "
         "space or the spelling of characters differs. Only looked for with --roundtrip. lvdata format prints the "
         "canonical form.",
         "<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"no\"?>\n<AssetInfo Version=\"1\" MinorVersion=\"0\" "
         "/>\n",
         2,
         "<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"no\"?>\n<AssetInfo Version=\"1\" "
         "MinorVersion=\"0\"/>\n"},
        {"401", warning, "chromaticity above 1",
         "The sum of the chromaticity coordinates x and y is above 1, which no colour has.",
         "<TargetSetting>\n    <WhitePoint Type=\"Coordinate\">\n        <x>6127</x>\n        <y>6290</y>\n"
         "    </WhitePoint>\n</TargetSetting>\n",
         2,
         "<TargetSetting>\n    <WhitePoint Type=\"Coordinate\">\n        <x>3127</x>\n        <y>3290</y>\n"
         "    </WhitePoint>\n</TargetSetting>\n"},
        {"402", warning, "table that steps back",
         "An entry of a look-up table or curve is less than the one before it. Tables from dark to bright rise.",
         "<ProfileData>\n    <RedTargetCurve Type=\"Lut\">0|500000|400000|1000000</RedTargetCurve>\n</ProfileData>\n",
         2,
         "<ProfileData>\n    <RedTargetCurve Type=\"Lut\">0|400000|500000|1000000</RedTargetCurve>\n</ProfileData>\n"},
        {"403", warning, "duplicate index",
         "Two rows of one list have the same index, by which programs tell colour modes apart.",
         "<ColorModeSettings>\n    <ColorMode>\n        <Index>1</Index>\n    </ColorMode>\n    <ColorMode>\n"
         "        <Index>1</Index>\n    </ColorMode>\n</ColorModeSettings>\n",
         6,
         "<ColorModeSettings>\n    <ColorMode>\n        <Index>1</Index>\n    </ColorMode>\n    <ColorMode>\n"
         "        <Index>2</Index>\n    </ColorMode>\n</ColorModeSettings>\n"},
        {"404", warning, "maps of different lengths",
         "The maps of uniformity and brightness have different numbers of entries, although they are of one screen.",
         "<CandelaMap>\n    <Uniformity>\n        <Values>1|2|3|4</Values>\n    </Uniformity>\n    <Brightness>\n"
         "        <Values>1|2|3</Values>\n    </Brightness>\n</CandelaMap>\n",
         6,
         "<CandelaMap>\n    <Uniformity>\n        <Values>1|2|3|4</Values>\n    </Uniformity>\n    <Brightness>\n"
         "        <Values>1|2|3|4</Values>\n    </Brightness>\n</CandelaMap>\n"},
        {"405", warning, "not a date",
         "The text of a date or time does not begin with year, month and day of the calendar, so programs cannot order "
         "it. The records keep any text.",
         "<CorrelationInfo>\n    <CorrelationDate>17th of March</CorrelationDate>\n</CorrelationInfo>\n", 2,
         "<CorrelationInfo>\n    <CorrelationDate>2024-03-17</CorrelationDate>\n</CorrelationInfo>\n"},
        {"406", warning, "white outside the primaries",
         "The target white point is outside the triangle of the target primaries, so no mixture of them gives it.",
         "<TargetSetting>\n    <WhitePoint Type=\"Coordinate\">\n        <x>1000</x>\n        <y>1000</y>\n"
         "    </WhitePoint>\n    <Gamut>\n        <Red>\n            <x>6400</x>\n            <y>3300</y>\n"
         "        </Red>\n        <Green>\n            <x>3000</x>\n            <y>6000</y>\n        </Green>\n"
         "        <Blue>\n            <x>1500</x>\n            <y>600</y>\n        </Blue>\n    </Gamut>\n"
         "</TargetSetting>\n",
         2,
         "<TargetSetting>\n    <WhitePoint Type=\"Coordinate\">\n        <x>3127</x>\n        <y>3290</y>\n"
         "    </WhitePoint>\n    <Gamut>\n        <Red>\n            <x>6400</x>\n            <y>3300</y>\n"
         "        </Red>\n        <Green>\n            <x>3000</x>\n            <y>6000</y>\n        </Green>\n"
         "        <Blue>\n            <x>1500</x>\n            <y>600</y>\n        </Blue>\n    </Gamut>\n"
         "</TargetSetting>\n"},
        {"407", warning, "channels of different lengths",
         "The tables of red, green and blue have different numbers of entries. Perhaps one lost an entry.",
         "<ProfileData>\n    <RedTargetCurve Type=\"Lut\">0|500000|1000000</RedTargetCurve>\n"
         "    <GreenTargetCurve Type=\"Lut\">0|1000000</GreenTargetCurve>\n</ProfileData>\n",
         3,
         "<ProfileData>\n    <RedTargetCurve Type=\"Lut\">0|500000|1000000</RedTargetCurve>\n"
         "    <GreenTargetCurve Type=\"Lut\">0|500000|1000000</GreenTargetCurve>\n</ProfileData>\n"},
    };
    return all;
}

const Rule* findRule(std::string_view id) {
    const auto found = std::find_if(rules().begin(), rules().end(), [&](const Rule& rule) { return rule.id == id; });
    return found == rules().end() ? nullptr : &*found;
}

}  // namespace lv::analysis
