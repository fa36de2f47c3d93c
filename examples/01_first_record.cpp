// The first steps: fill a record, print it, read it back.

#include <lvdata/lvdata.h>

#include <iostream>

int main() {
    lv::CorrelationInfo correlation;
    correlation.referenceSensorID.set("0012");
    correlation.correlationDate.set("2024-03-17");

    const std::string text = correlation.toXMLString(true, true);
    std::cout << text;

    lv::CorrelationInfo copy;
    if (!copy.parseXMLString(text)) {
        return 1;
    }
    std::cout << "sensor: " << copy.referenceSensorID.value << '\n';
    std::cout << "serial number known: " << (copy.referenceSensorSerial.hasValue ? "yes" : "no") << '\n';
}
