// Units: what a stored number means, and how it is converted.

#include <lvdata/lvdata.h>

#include <iostream>

namespace {

/// Prints what a stored number means: "985000 is 0.985, gain of a channel".
void explain(unsigned int stored, const lv::Quantity& quantity) {
    std::cout << stored << " is " << stored / static_cast<double>(quantity.factor);
    if (quantity.unit == lv::unknownUnit) {
        std::cout << " (unit not recorded)";
    } else if (!quantity.unit.empty()) {
        std::cout << ' ' << quantity.unit;
    }
    std::cout << ", " << quantity.meaning << '\n';
}

}  // namespace

int main() {
    // Members hold the stored integer. An accessor that ends in _x converts it.
    lv::MonitorParameter parameter;
    parameter.redGain_x(0.985);
    std::cout << "stored " << parameter.redGain.value << ", value " << parameter.redGain_x() << '\n';

    // The quantity of a member says what the integer means. The comment of the member names it.
    explain(parameter.redGain.value, lv::quantities::gain);
    explain(75, lv::quantities::percent);
    explain(349600000, lv::quantities::tristimulus);

    // The same table has two scales: set isHDRLUT first, since it decides which one is used.
    parameter.isHDRLUT.set(lv::types::tableScale::hdr);
    std::cout << "factor of the tables: " << parameter.tableQuantity().factor << '\n';
}
