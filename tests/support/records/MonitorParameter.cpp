#include <tests/support/samples.h>
#include <tests/support/six_colours.h>

#include <cstddef>
#include <numeric>
#include <vector>

namespace lv::test {
namespace {

template <class Number>
std::vector<Number> numbersFrom(Number first, std::size_t count) {
    std::vector<Number> numbers(count);
    std::iota(numbers.begin(), numbers.end(), first);
    return numbers;
}

}  // namespace

void describe(Description& out, const MonitorParameter::six_colors_t& colours) {
    describeSixColours(out, colours);
}

void describe(Description& out, const MonitorParameter& record) {
    describeBase(out, record);
    out.member("brightness", record.brightness);
    out.member("contrast", record.contrast);
    out.member("isHDRLUT", record.isHDRLUT);
    out.member("redLUT", record.redLUT);
    out.member("greenLUT", record.greenLUT);
    out.member("blueLUT", record.blueLUT);
    out.member("hlgSystemGamma", record.hlgSystemGamma);
    out.member("hlgClipping", record.hlgClipping);
    out.member("hue", record.hue);
    out.member("saturation", record.saturation);
    out.member("lightness", record.lightness);
    out.member("redGain", record.redGain);
    out.member("greenGain", record.greenGain);
    out.member("blueGain", record.blueGain);
    out.member("emulationMatrix", record.emulationMatrix);
    out.member("limited109Setting", record.limited109Setting);
}

template <>
MonitorParameter filled<MonitorParameter>() {
    MonitorParameter record;
    fillBase(record);
    record.brightness.set(51);
    record.contrast.set(52);
    record.isHDRLUT.set(1);
    record.redLUT.set(numbersFrom(10000U, 256));
    record.greenLUT.set(numbersFrom(20000U, 1024));
    record.blueLUT.set(numbersFrom(30000U, 256));
    record.hlgSystemGamma.set(120);
    record.hlgClipping.set(54);
    record.hue.set({1, -2, 3, -4, 5, -6});
    record.saturation.set({-11, 12, -13, 14, -15, 16});
    record.lightness.set({21, -22, 23, -24, 25, -26});
    record.redGain.set(1000001);
    record.greenGain.set(1000002);
    record.blueGain.set(1000003);
    record.emulationMatrix.set(numbersFrom(-4, 9));
    record.limited109Setting.set(55);
    return record;
}

}  // namespace lv::test
