#pragma once

#include <tests/support/Member.h>

#include <lvdata/records/ParameterSetting.h>

namespace lv::test {

inline void members(MemberList& list, ParameterSetting::brightness_t& brightness) {
    list.add("type", brightness.type);
    list.add("value", brightness.value);
}

inline void members(MemberList& list, ParameterSetting::white_point_t& whitePoint) {
    list.add("type", whitePoint.type);
    list.add("temperature", whitePoint.temperature);
    list.add("fixed", whitePoint.fixed);
}

inline void members(MemberList& list, ParameterSetting::gamma_t& gamma) {
    list.add("type", gamma.type);
    list.add("value", gamma.value);
    list.add("fixed", gamma.fixed);
    list.add("pqhlgClipping", gamma.pqhlgClipping);
    list.add("hlgSystemGamma", gamma.hlgSystemGamma);
}

inline void members(MemberList& list, ParameterSetting::gamut_t& gamut) {
    list.add("type", gamut.type);
    list.add("fixed", gamut.fixed);
    list.add("clipping", gamut.clipping);
}

inline void members(MemberList& list, ParameterSetting& record) {
    list.addBase(record);
    list.add("brightness", record.brightness);
    list.add("whitePoint", record.whitePoint);
    list.add("gamma", record.gamma);
    list.add("gamut", record.gamut);
    list.add("limited109Setting", record.limited109Setting);
}

}  // namespace lv::test
