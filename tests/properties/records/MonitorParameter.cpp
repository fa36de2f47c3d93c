#include <tests/properties/records.h>

namespace lv::test {
namespace {

using SixColours = MonitorParameter::six_colors_t;

bool isTable(const std::vector<unsigned int>& entries) {
    return entries.size() == 256 || entries.size() == 1024;
}

bool isMatrix(const std::vector<int>& entries) {
    return entries.size() == 9;
}

/// The flag stays only where the number of entries is one that counts.
void judgeLengths(MonitorParameter& record) {
    for (auto* table : {&record.redLUT, &record.greenLUT, &record.blueLUT}) {
        table->hasValue = table->hasValue && isTable(table->value);
    }
    record.emulationMatrix.hasValue = record.emulationMatrix.hasValue && isMatrix(record.emulationMatrix.value);
}

/// One of the six is enough.
void readSix(const Found& element, const std::string& kind, property<SixColours>& colours) {
    bool any = element(("Red" + kind).c_str(), colours.value.red);
    any = element(("Green" + kind).c_str(), colours.value.green) || any;
    any = element(("Blue" + kind).c_str(), colours.value.blue) || any;
    any = element(("Cyan" + kind).c_str(), colours.value.cyan) || any;
    any = element(("Magenta" + kind).c_str(), colours.value.magenta) || any;
    any = element(("Yellow" + kind).c_str(), colours.value.yellow) || any;
    colours.hasValue = any;
}

}  // namespace

void members(Members& visit, SixColours& colours) {
    visit.all(colours.red, colours.green, colours.blue, colours.cyan, colours.magenta, colours.yellow);
}

void members(Members& visit, MonitorParameter& record) {
    membersOfBase(visit, record);
    visit.all(record.brightness, record.contrast, record.isHDRLUT);
    visit(record.redLUT, likelyLengths({256, 1024}));
    visit(record.greenLUT, likelyLengths({256, 1024}));
    visit(record.blueLUT, likelyLengths({256, 1024}));
    visit.all(record.hlgSystemGamma, record.hlgClipping);
    visit.all(record.hue, record.saturation, record.lightness);
    visit.all(record.redGain, record.greenGain, record.blueGain);
    visit(record.emulationMatrix, likelyLengths({9}));
    visit(record.limited109Setting);
}

void lose(MonitorParameter& record, bool /*hlgSwitch*/) {
    judgeLengths(record);
    loseInGeneral(record);
}

void read(const Found& element, MonitorParameter& record) {
    element("Brightness", record.brightness);
    element("Contrast", record.contrast);
    element("isHDRLUT", record.isHDRLUT);
    element("RedLUT", record.redLUT);
    element("GreenLUT", record.greenLUT);
    element("BlueLUT", record.blueLUT);
    element("HLGSystemGamma", record.hlgSystemGamma);
    element("HLGClipping", record.hlgClipping);
    readSix(element, "Hue", record.hue);
    readSix(element, "Saturation", record.saturation);
    readSix(element, "Lightness", record.lightness);
    element("RedGain", record.redGain);
    element("GreenGain", record.greenGain);
    element("BlueGain", record.blueGain);
    element("EmulationMatrix", record.emulationMatrix);
    element("Limited109Setting", record.limited109Setting);
    judgeLengths(record);
}

}  // namespace lv::test
