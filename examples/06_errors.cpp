// What is refused, and how a program notices.

#include <lvdata/lvdata.h>

#include <iostream>
#include <limits>
#include <string>
#include <vector>

namespace {

/// Why a text is not a CorrelationInfo.
void read(const std::string& text) {
    lv::CorrelationInfo correlation;
    const lv::ParseResult result = correlation.parseXML(text);
    switch (result.outcome) {
    case lv::ParseResult::Outcome::done:
        std::cout << "read\n";
        break;
    case lv::ParseResult::Outcome::notXML:
        std::cout << "line " << result.line << " is not XML: " << result.reason << '\n';
        break;
    case lv::ParseResult::Outcome::nothingThere:
        std::cout << "no element: " << result.reason << '\n';
        break;
    case lv::ParseResult::Outcome::rootElementRefused:
        std::cout << "line " << result.line << " has another root element: " << result.reason << '\n';
        break;
    }
}

void say(const char* what, bool isStored) {
    std::cout << what << (isStored ? ": stored\n" : ": refused\n");
}

}  // namespace

int main() {
    read("<CorrelationInfo><ReferenceSensorID>0012</ReferenceSensorID></CorrelationInfo>");
    read("<CorrelationInfo>\n<ReferenceSensorID>\n</CorrelationInfo>");
    read("");
    read("<AssetInfo/>");

    // Elements are not checked: a number that cannot be read is 0, and unknown elements are ignored.
    read("<CorrelationInfo Version=\"new\"><Colour/></CorrelationInfo>");

    // Values are checked by trySet and its like. A refused value changes nothing.
    lv::MonitorParameter parameter;
    say("gain 0.985", lv::trySet(parameter.redGain, 0.985, lv::quantities::gain));
    say("gain -1", lv::trySet(parameter.redGain, -1.0, lv::quantities::gain));
    say("gain NaN", lv::trySet(parameter.redGain, std::numeric_limits<double>::quiet_NaN(), lv::quantities::gain));
    const std::vector<double> curve(255, 0.5);
    say("a table of 255 entries", lv::trySet(parameter.redLUT, curve, parameter.tableQuantity()));
    std::cout << "gain: " << parameter.redGain_x() << '\n';
}
