#include <tests/support/samples.h>

namespace lv::test {

void describe(Description& out, const ParameterSetting::brightness_t& brightness) {
    out.member("type", brightness.type);
    out.member("value", brightness.value);
}

void describe(Description& out, const ParameterSetting::white_point_t& whitePoint) {
    out.member("type", whitePoint.type);
    out.member("temperature", whitePoint.temperature);
    out.member("fixed", whitePoint.fixed);
}

void describe(Description& out, const ParameterSetting::gamma_t& gamma) {
    out.member("type", gamma.type);
    out.member("value", gamma.value);
    out.member("fixed", gamma.fixed);
    out.member("pqhlgClipping", gamma.pqhlgClipping);
    out.member("hlgSystemGamma", gamma.hlgSystemGamma);
}

void describe(Description& out, const ParameterSetting::gamut_t& gamut) {
    out.member("type", gamut.type);
    out.member("fixed", gamut.fixed);
    out.member("clipping", gamut.clipping);
}

void describe(Description& out, const ParameterSetting& record) {
    describeBase(out, record);
    out.member("brightness", record.brightness);
    out.member("whitePoint", record.whitePoint);
    out.member("gamma", record.gamma);
    out.member("gamut", record.gamut);
    out.member("limited109Setting", record.limited109Setting);
}

template <>
ParameterSetting filled<ParameterSetting>() {
    ParameterSetting record;
    fillBase(record);
    record.brightness.set({"Candela", 121});
    record.whitePoint.set({"Temperature", 6504, "White 2"});
    record.gamma.set({"Fixed", 224, "HLG", "Clip 3", 125});
    record.gamut.set({"Fixed", "Gamut 4", 61});
    record.limited109Setting.set(71);
    return record;
}

template <>
ParameterSetting filledAndParsedBack<ParameterSetting>() {
    auto record = filled<ParameterSetting>();
    record.writeHLGSystemGamma = false;
    record.whitePoint.value.fixed = "";
    record.gamma.value.value = 0;
    return record;
}

}  // namespace lv::test
