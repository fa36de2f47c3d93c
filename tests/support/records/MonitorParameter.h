#pragma once

#include <tests/support/Member.h>
#include <tests/support/six_colours.h>

#include <lvdata/records/MonitorParameter.h>

namespace lv::test {

inline void members(MemberList& list, MonitorParameter::six_colors_t& colours) {
    membersOfSixColours(list, colours);
}

inline void members(MemberList& list, MonitorParameter& record) {
    list.addBase(record);
    list.add("brightness", record.brightness);
    list.add("contrast", record.contrast);
    list.add("isHDRLUT", record.isHDRLUT);
    list.add("redLUT", record.redLUT);
    list.add("greenLUT", record.greenLUT);
    list.add("blueLUT", record.blueLUT);
    list.add("hlgSystemGamma", record.hlgSystemGamma);
    list.add("hlgClipping", record.hlgClipping);
    list.add("hue", record.hue);
    list.add("saturation", record.saturation);
    list.add("lightness", record.lightness);
    list.add("redGain", record.redGain);
    list.add("greenGain", record.greenGain);
    list.add("blueGain", record.blueGain);
    list.add("emulationMatrix", record.emulationMatrix);
    list.add("limited109Setting", record.limited109Setting);
}

}  // namespace lv::test
