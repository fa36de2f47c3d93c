// Units: what a stored number means, and how it is converted.

#include <lvdata/lvdata.h>

#include <iostream>
#include <string>

namespace {

/// What a stored number means: "985000 is 0.985, gain of a channel".
std::string meaningOf(unsigned int stored, const lv::Quantity& quantity) {
    const std::string unit = quantity.unit == lv::unknownUnit ? " (unit not recorded)" : ' ' + std::string(quantity.unit);
    std::string text = std::to_string(stored) + " is " + std::to_string(stored / static_cast<double>(quantity.factor));
    return text + (quantity.unit.empty() ? "" : unit) + ", " + std::string(quantity.meaning);
}

}  // namespace

int main() {
    // Members hold the stored integer. An accessor that ends in _x converts it.
    lv::MonitorParameter parameter;
    parameter.redGain_x(0.985);
    std::cout << "stored " << parameter.redGain.value << ", value " << parameter.redGain_x() << '\n';

    // The quantity of a member says what the integer means. The comment of the member names it.
    std::cout << meaningOf(parameter.redGain.value, lv::quantities::gain) << '\n';
    std::cout << meaningOf(75, lv::quantities::percent) << '\n';
    std::cout << meaningOf(349600000, lv::quantities::tristimulus) << '\n';

    // The same table has two scales: set isHDRLUT first, since it decides which one is used.
    parameter.isHDRLUT.set(lv::types::tableScale::hdr);
    std::cout << "factor of the tables: " << parameter.tableQuantity().factor << '\n';
}
