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

const std::vector<Rule>& rules() {  // NOLINT(readability-function-size): a table
    constexpr Severity error = Severity::error;
    constexpr Severity warning = Severity::warning;
    constexpr Severity info = Severity::info;
    static const std::vector<Rule> all = {
        {"001", error, "not XML",
         "The text is not well-formed XML, or it has no element. There is no record. The line is where the XML parser "
         "found the error.",
         "<AssetInfo>\n    <Asset1>Room 4</Asset2>\n</AssetInfo>\n", 2,
         "<AssetInfo>\n    <Asset1>Room 4</Asset1>\n</AssetInfo>\n"},
        {"002", error, "unknown root element",
         "The root element is not the name of a record class. Names are compared exactly, including case and prefix. "
         "There is no record.",
         "<Assetinfo/>\n", 1, "<AssetInfo/>\n"},
        {"003", error, "not text in UTF-8",
         "The document has a NUL character or bytes that are not UTF-8. A NUL would end the text. Other bytes are kept "
         "unchanged, but the document is not valid XML: other programs refuse it or show wrong characters. Store it as "
         "UTF-8.",
         "<AssetInfo>\n    <Asset1>Z\xFCrich</Asset1>\n</AssetInfo>\n", 2,
         "<AssetInfo>\n    <Asset1>Z\xC3\xBCrich</Asset1>\n</AssetInfo>\n"},
        {"004", error, "not well-formed, but read",
         "The document breaks the rules of XML, so other programs refuse it, and the record may hold less than the "
         "text says: a reference to character 0 ends a text, and a surplus end tag ends the document. Only the first "
         "such error is reported.",
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
         "The number is negative, but the field is unsigned. It reads as a large number: -1 as 4294967295.",
         "<BasicData>\n    <UsageHours>-1</UsageHours>\n</BasicData>\n", 2,
         "<BasicData>\n    <UsageHours>1</UsageHours>\n</BasicData>\n"},
        {"104", error, "text after a number",
         "Reading a number stops at the first character that is not a digit; the rest is ignored. Fractions are stored "
         "as whole numbers, scaled by the factor of their element: an x of 0.3127 is stored as 3127.",
         "<TargetSetting>\n    <WhitePoint Type=\"Coordinate\">\n        <x>0.3127</x>\n        <y>3290</y>\n"
         "    </WhitePoint>\n</TargetSetting>\n",
         3,
         "<TargetSetting>\n    <WhitePoint Type=\"Coordinate\">\n        <x>3127</x>\n        <y>3290</y>\n"
         "    </WhitePoint>\n</TargetSetting>\n"},
        {"105", info, "different spelling",
         "The value is read correctly, but it is written back in another form: 042 as 42, TRUE as true.",
         "<BasicData>\n    <UsageHours>+042</UsageHours>\n</BasicData>\n", 2,
         "<BasicData>\n    <UsageHours>42</UsageHours>\n</BasicData>\n"},
        {"106", error, "neither true nor false",
         "The text of a boolean is neither \"true\" nor \"false\". It reads as false.",
         "<ProfilePolicy>\n    <Create3DLut>yes</Create3DLut>\n</ProfilePolicy>\n", 2,
         "<ProfilePolicy>\n    <Create3DLut>true</Create3DLut>\n</ProfilePolicy>\n"},
        {"107", warning, "empty",
         "A number, a boolean or an array has no text. It counts as missing: it is dropped, or the default value is "
         "written instead.",
         "<BasicData>\n    <UsageHours></UsageHours>\n</BasicData>\n", 2,
         "<BasicData>\n    <UsageHours>0</UsageHours>\n</BasicData>\n"},
        {"108", warning, "empty array entry",
         "An array has an empty entry: a separator \"|\" at its start or end, or two in a row. The empty entry is "
         "dropped, and later entries move up.",
         "<CandelaMap>\n    <Uniformity>\n        <Values>98||100</Values>\n    </Uniformity>\n</CandelaMap>\n", 3,
         "<CandelaMap>\n    <Uniformity>\n        <Values>98|99|100</Values>\n    </Uniformity>\n</CandelaMap>\n"},
        {"109", error, "read as a different value",
         "The record writes back a different value than the document has, and no other rule explains it. For example, "
         "whitespace-only text is lost, and a carriage return becomes a line feed.",
         "<AssetInfo>\n    <Asset1>&#32;</Asset1>\n</AssetInfo>\n", 2,
         "<AssetInfo>\n    <Asset1>&#32;.</Asset1>\n</AssetInfo>\n"},
        {"201", error, "wrong number of entries",
         "An array does not have the required number of entries. The whole array is dropped when the record is "
         "written.",
         "<MeasurementData>\n    <Measurements>\n        <RGB>255|255|255</RGB>\n        "
         "<XYZ>95047000|100000000</XYZ>\n"
         "    </Measurements>\n</MeasurementData>\n",
         4,
         "<MeasurementData>\n    <Measurements>\n        <RGB>255|255|255</RGB>\n"
         "        <XYZ>95047000|100000000|108883000</XYZ>\n    </Measurements>\n</MeasurementData>\n"},
        {"301", warning, "unknown element",
         "The record does not know an element with this name here. The element and its content are ignored and not "
         "written back. Perhaps the name is misspelt: names are compared exactly.",
         "<AssetInfo>\n    <Asset9>Room 4</Asset9>\n</AssetInfo>\n", 2,
         "<AssetInfo>\n    <Asset8>Room 4</Asset8>\n</AssetInfo>\n"},
        {"302", warning, "unknown attribute",
         "The record does not know an attribute with this name here. It is ignored and not written back.",
         "<AssetInfo>\n    <Asset1 lang=\"en\">Room 4</Asset1>\n</AssetInfo>\n", 2,
         "<AssetInfo>\n    <Asset1>Room 4</Asset1>\n</AssetInfo>\n"},
        {"303", warning, "repeated element",
         "Several elements have the same name, but only one of them is read: the first, or, for elements with a key, "
         "the last one that has text. The others are dropped. A second root element is dropped as well.",
         "<AssetInfo>\n    <Asset1>Room 4</Asset1>\n    <Asset1>Room 5</Asset1>\n</AssetInfo>\n", 3,
         "<AssetInfo>\n    <Asset1>Room 4</Asset1>\n    <Asset2>Room 5</Asset2>\n</AssetInfo>\n"},
        {"304", warning, "row without content",
         "A row of a list has no content that the record knows. The row is dropped, and later rows move up.",
         "<MeasurementData>\n    <Measurements/>\n</MeasurementData>\n", 2,
         "<MeasurementData>\n    <Measurements>\n        <RGB>0|0|0</RGB>\n    </Measurements>\n</MeasurementData>\n"},
        {"305", warning, "not written back because of a condition",
         "The element is read, but it is not written because of another value in the record. Most often a \"Type\" is "
         "misspelt or does not belong to the element. The message states the condition.",
         "<ParameterSetting>\n    <WhitePoint Type=\"Temprature\">\n        <Temperature>6500</Temperature>\n"
         "    </WhitePoint>\n</ParameterSetting>\n",
         3,
         "<ParameterSetting>\n    <WhitePoint Type=\"Temperature\">\n        <Temperature>6500</Temperature>\n"
         "    </WhitePoint>\n</ParameterSetting>\n"},
        {"306", warning, "not read because of a condition",
         "The element is not read because of another value in the document. The message states the condition.",
         "<ParameterSetting>\n    <Gamma Type=\"SyncSignal\">\n        <Value>220</Value>\n    </Gamma>\n"
         "</ParameterSetting>\n",
         3,
         "<ParameterSetting>\n    <Gamma Type=\"Value\">\n        <Value>220</Value>\n    </Gamma>\n"
         "</ParameterSetting>\n"},
        {"307", warning, "comment or extra text",
         "Comments, processing instructions and document types are not kept. If an element has several texts, only the "
         "first is read, and only if no element comes before it.",
         "<AssetInfo>\n    <!-- moved in May -->\n    <Asset1>Room 4</Asset1>\n</AssetInfo>\n", 2,
         "<AssetInfo>\n    <Asset1>Room 4, moved in May</Asset1>\n</AssetInfo>\n"},
        {"308", warning, "text where only elements belong",
         "There is text in an element that holds only other elements, or outside the root element. The text is ignored "
         "and dropped.",
         "<AssetInfo>\n    <Asset1>Room 4</Asset1>Room 5</AssetInfo>\n", 2,
         "<AssetInfo>\n    <Asset1>Room 4</Asset1>\n</AssetInfo>\n"},
        {"309", warning, "element in the wrong place",
         "The record knows an element with this name, but in another place. Here it is ignored and dropped. The "
         "message says where it belongs.",
         "<MonitorInfo>\n    <Asset1>Room 4</Asset1>\n</MonitorInfo>\n", 2,
         "<MonitorInfo>\n    <AssetInfo>\n        <Asset1>Room 4</Asset1>\n    </AssetInfo>\n</MonitorInfo>\n"},
        {"310", info, "will be added",
         "An element or attribute that the record always writes is missing. It is added with its default value.",
         "<AssetInfo MinorVersion=\"0\"/>\n", 1, "<AssetInfo Version=\"1\" MinorVersion=\"0\"/>\n"},
        {"311", warning, "written back as a constant",
         "The record always writes the same text here. The text in the document is ignored.",
         "<ColorModeSettings>\n    <ColorMode Type=\"Calibration\">\n        <Target Type=\"Other\"/>\n    "
         "</ColorMode>\n"
         "</ColorModeSettings>\n",
         3,
         "<ColorModeSettings>\n    <ColorMode Type=\"Calibration\">\n        <Target Type=\"Lumivale\"/>\n"
         "    </ColorMode>\n</ColorModeSettings>\n"},
        {"312", info, "different version",
         "The version numbers of the record differ from those of this library. They are kept. A newer version may have "
         "elements that this library does not know.",
         "<AssetInfo Version=\"7\" MinorVersion=\"0\"/>\n", 1, "<AssetInfo Version=\"1\" MinorVersion=\"0\"/>\n"},
        {"313", info, "HLGSystemGamma needs a switch",
         "Records write this element only when the application sets writeHLGSystemGamma. Programs that do not set it "
         "drop the element. The command lvdata sets it for documents that have such an element, unless the option "
         "--no-hlg-system-gamma is given.",
         "<ParameterSetting>\n    <Gamma Type=\"Value\">\n        <Value>220</Value>\n"
         "        <HLGSystemGamma>120</HLGSystemGamma>\n    </Gamma>\n</ParameterSetting>\n",
         4,
         "<ParameterSetting>\n    <Gamma Type=\"Value\">\n        <Value>220</Value>\n    </Gamma>\n"
         "</ParameterSetting>\n"},
        {"320", warning, "not in canonical form",
         "The text is not byte for byte what the record prints. Often nothing is lost: only the order, the white space "
         "or the spelling of characters differs. This rule is checked only with --roundtrip. lvdata format prints the "
         "canonical form.",
         "<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"no\"?>\n<AssetInfo Version=\"1\" MinorVersion=\"0\" "
         "/>\n",
         2,
         "<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"no\"?>\n<AssetInfo Version=\"1\" "
         "MinorVersion=\"0\"/>\n"},
        {"401", warning, "chromaticity above 1",
         "The sum of the chromaticity coordinates x and y is above 1. No colour has such a chromaticity.",
         "<TargetSetting>\n    <WhitePoint Type=\"Coordinate\">\n        <x>6127</x>\n        <y>6290</y>\n"
         "    </WhitePoint>\n</TargetSetting>\n",
         2,
         "<TargetSetting>\n    <WhitePoint Type=\"Coordinate\">\n        <x>3127</x>\n        <y>3290</y>\n"
         "    </WhitePoint>\n</TargetSetting>\n"},
        {"402", warning, "table that decreases",
         "An entry of a look-up table or curve is less than the one before it. Tables go from dark to bright, so their "
         "entries should not decrease.",
         "<ProfileData>\n    <RedTargetCurve Type=\"Lut\">0|500000|400000|1000000</RedTargetCurve>\n</ProfileData>\n",
         2,
         "<ProfileData>\n    <RedTargetCurve Type=\"Lut\">0|400000|500000|1000000</RedTargetCurve>\n</ProfileData>\n"},
        {"403", warning, "duplicate index",
         "Two rows of one list have the same index. Programs use the index to identify a colour mode.",
         "<ColorModeSettings>\n    <ColorMode>\n        <Index>1</Index>\n    </ColorMode>\n    <ColorMode>\n"
         "        <Index>1</Index>\n    </ColorMode>\n</ColorModeSettings>\n",
         6,
         "<ColorModeSettings>\n    <ColorMode>\n        <Index>1</Index>\n    </ColorMode>\n    <ColorMode>\n"
         "        <Index>2</Index>\n    </ColorMode>\n</ColorModeSettings>\n"},
        {"404", warning, "maps of different lengths",
         "The uniformity map and the brightness map have different numbers of entries, although both are of the same "
         "screen.",
         "<CandelaMap>\n    <Uniformity>\n        <Values>1|2|3|4</Values>\n    </Uniformity>\n    <Brightness>\n"
         "        <Values>1|2|3</Values>\n    </Brightness>\n</CandelaMap>\n",
         6,
         "<CandelaMap>\n    <Uniformity>\n        <Values>1|2|3|4</Values>\n    </Uniformity>\n    <Brightness>\n"
         "        <Values>1|2|3|4</Values>\n    </Brightness>\n</CandelaMap>\n"},
        {"405", warning, "not a date",
         "The text of a date or time does not begin with a valid year, month and day, so programs cannot sort by it. "
         "The records keep any text.",
         "<CorrelationInfo>\n    <CorrelationDate>17th of March</CorrelationDate>\n</CorrelationInfo>\n", 2,
         "<CorrelationInfo>\n    <CorrelationDate>2024-03-17</CorrelationDate>\n</CorrelationInfo>\n"},
        {"406", warning, "white outside the primaries",
         "The target white point is outside the triangle of the target primaries, so no mixture of the primaries "
         "produces it.",
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
         "The tables of red, green and blue have different numbers of entries. Perhaps one of them lost an entry.",
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
