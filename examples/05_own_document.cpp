// A document without a record class, made and read with the wrappers of the XML library.

#include <lvdata/lvdata.h>

#include <iostream>
#include <string>
#include <vector>

namespace {

std::string rackAsText() {
    const lv::XMLDocument document;
    lv::XMLElement rack = document.appendChild("Rack");
    rack.setAttributeUInt("Units", 42);
    rack.appendChildString("Location", "Machine room <north>");  // escaped when it is printed
    rack.appendChildIntArray("Temperatures", {-2, 19, 21}, "|");

    lv::CorrelationInfo correlation;  // a record can be a part of any document
    correlation.referenceSensorID.set("0012");
    correlation.appendXMLElement(rack);
    return document.toXMLString(true, true);
}

}  // namespace

int main() {
    const std::string text = rackAsText();
    std::cout << text;

    lv::XMLDocument document;
    if (!document.parseXMLString(text)) {
        std::cerr << "line " << document.parseErrorLine() << ": " << document.parseErrorText() << '\n';
        return 1;
    }
    const lv::XMLElement rack = document.rootElement();
    std::string location;
    std::vector<int> temperatures;
    rack.getStringValue("Location", location);
    rack.getIntArray("Temperatures", temperatures, "|");
    std::cout << "location: " << location << ", temperatures: " << temperatures.size() << '\n';

    // What is missing gives an invalid element and leaves the variable as it was.
    unsigned int power = 500;
    const bool isFound = rack.getElement("Supply").getUIntValue("Power", power).isValid();
    std::cout << "power " << (isFound ? "found: " : "not found, still ") << power << '\n';

    lv::CorrelationInfo correlation;
    if (correlation.parseXMLElement(rack.getElement(lv::CorrelationInfo::rootElementName))) {
        std::cout << "sensor: " << correlation.referenceSensorID.value << '\n';
    }
}
