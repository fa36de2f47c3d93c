#include <tests/properties/records.h>

namespace lv::test {
namespace {

void loseInBrightness(ParameterSetting::brightness_t& brightness) {
    keepWhen(brightness.type == "Candela" || brightness.type == "Percent", brightness.value);
}

void loseInWhitePoint(ParameterSetting::white_point_t& whitePoint) {
    keepWhen(whitePoint.type == "Temperature", whitePoint.temperature);
    keepWhen(whitePoint.type == "Fixed", whitePoint.fixed);
}

void loseInGamma(ParameterSetting::gamma_t& gamma, bool hlgSwitch) {
    const bool clips = gamma.fixed == "PQ" || gamma.fixed == "HLG";
    keepWhen(gamma.type == "Value", gamma.value);
    keepWhen(gamma.type == "Fixed", gamma.fixed);
    keepWhen(gamma.type == "Fixed" && clips, gamma.pqhlgClipping);
    // Written for every type, but not read for this one.
    keepWhen(hlgSwitch && keptInAttribute(gamma.type) != "SyncSignal", gamma.hlgSystemGamma);
}

void loseInGamut(ParameterSetting::gamut_t& gamut) {
    keepWhen(gamut.type == "Fixed", gamut.fixed);
}

void readBrightness(const Found& element, property<ParameterSetting::brightness_t>& brightness) {
    brightness.hasValue = element.exists();
    element.attribute("Type", brightness.value.type);
    if (brightness.value.type != "SyncSignal") {
        element("Value", brightness.value.value);
    }
}

void readWhitePoint(const Found& element, property<ParameterSetting::white_point_t>& whitePoint) {
    whitePoint.hasValue = element.exists();
    element.attribute("Type", whitePoint.value.type);
    element("Temperature", whitePoint.value.temperature);
    element("Fixed", whitePoint.value.fixed);
}

void readGamma(const Found& element, property<ParameterSetting::gamma_t>& gamma) {
    gamma.hasValue = element.exists();
    element.attribute("Type", gamma.value.type);
    if (gamma.value.type != "SyncSignal") {
        element("Value", gamma.value.value);
        element("Fixed", gamma.value.fixed);
        element("PQHLGClipping", gamma.value.pqhlgClipping);
        element("HLGSystemGamma", gamma.value.hlgSystemGamma);
    }
}

void readGamut(const Found& element, property<ParameterSetting::gamut_t>& gamut) {
    gamut.hasValue = element.exists();
    element.attribute("Type", gamut.value.type);
    if (gamut.value.type != "SyncSignal") {
        element("Fixed", gamut.value.fixed);
    }
    element("Clipping", gamut.value.clipping);
}

}  // namespace

void members(Members& visit, ParameterSetting::brightness_t& brightness) {
    visit(brightness.type, attribute({"Candela", "Percent", "SyncSignal"}));
    visit(brightness.value);
}

void members(Members& visit, ParameterSetting::white_point_t& whitePoint) {
    visit(whitePoint.type, attribute({"Temperature", "Fixed", "SyncSignal"}));
    visit.all(whitePoint.temperature, whitePoint.fixed);
}

void members(Members& visit, ParameterSetting::gamma_t& gamma) {
    visit(gamma.type, attribute({"Value", "Fixed", "SyncSignal"}));
    visit(gamma.value);
    visit(gamma.fixed, likelyTexts({"PQ", "HLG"}));
    visit.all(gamma.pqhlgClipping, gamma.hlgSystemGamma);
}

void members(Members& visit, ParameterSetting::gamut_t& gamut) {
    visit(gamut.type, attribute({"Fixed", "SyncSignal"}));
    visit.all(gamut.fixed, gamut.clipping);
}

void members(Members& visit, ParameterSetting& record) {
    membersOfBase(visit, record);
    visit.all(record.brightness, record.whitePoint, record.gamma, record.gamut, record.limited109Setting);
}

void lose(ParameterSetting& record, bool hlgSwitch) {
    record.brightness.hasValue = true;  // the four are written whatever their flags
    record.whitePoint.hasValue = true;
    record.gamma.hasValue = true;
    record.gamut.hasValue = true;
    loseInBrightness(record.brightness.value);
    loseInWhitePoint(record.whitePoint.value);
    loseInGamma(record.gamma.value, hlgSwitch);
    loseInGamut(record.gamut.value);
    loseInGeneral(record);
}

void read(const Found& element, ParameterSetting& record) {
    readBrightness(element.child("Brightness"), record.brightness);
    readWhitePoint(element.child("WhitePoint"), record.whitePoint);
    readGamma(element.child("Gamma"), record.gamma);
    readGamut(element.child("Gamut"), record.gamut);
    element("Limited109Setting", record.limited109Setting);
}

}  // namespace lv::test
