// Builds a whole monitor and prints it: the document examples/data/studio.xml. The figures are computed from the
// panel's primaries and the curves of its colour modes, see studio/; every machine prints the same text.

#include <tests/samples/studio/results.h>
#include <tests/samples/studio/settings.h>

#include <lvdata/lvdata.h>

#include <iostream>

namespace {

lv::AssetInfo assetInfo() {
    lv::AssetInfo assets;
    assets.asset1.set("INV-2041");
    assets.asset2.set("Grading suite 2");
    assets.asset3.set("Wall, left of the mixing desk");
    assets.asset8.set("Service & support: extension 88");
    return assets;
}

lv::CorrelationInfo correlationInfo() {
    lv::CorrelationInfo correlation;
    correlation.referenceSensorID.set("0003");
    correlation.referenceSensorSerial.set("S-3301");
    correlation.correlationDate.set("2024-03-17");
    return correlation;
}

lv::MonitorInfo studioMonitor() {
    lv::MonitorInfo monitor;
    monitor.uuid.set("6f1d2c9a-52c7-4b0e-9a57-0d3c5b7e4417");
    monitor.monitorConfiguration.set(studio::monitorConfiguration());
    monitor.calibrationModeResult.set(studio::calibrationModeResult());
    monitor.standardModeResult.set(studio::standardModeResult());
    monitor.assetInfo.set(assetInfo());
    monitor.correlationInfo.set(correlationInfo());
    monitor.candelaMap.set(studio::candelaMap());
    monitor.writeHLGSystemGamma = true;
    return monitor;
}

}  // namespace

int main() {
    std::cout << studioMonitor().toXMLString(true, true);
}
