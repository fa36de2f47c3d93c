// The first steps: XML text in, a record in code, XML text out.

#include <lvdata/lvdata.h>

#include <iostream>

int main() {
    lv::CorrelationInfo correlation;
    if (!correlation.parseXMLString("<CorrelationInfo><ReferenceSensorID>0012</ReferenceSensorID></CorrelationInfo>")) {
        return 1;
    }
    std::cout << "sensor: " << correlation.referenceSensorID.value << '\n';
    std::cout << "date known: " << (correlation.correlationDate.hasValue ? "yes" : "no") << '\n';

    correlation.correlationDate.set("2024-03-17");
    std::cout << correlation.toXMLString(true, true);
}
