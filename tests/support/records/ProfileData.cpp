#include <tests/support/samples.h>

namespace lv::test {

void describe(Description& out, const ProfileData::xyz_set_t& set) {
    out.member("red", set.red);
    out.member("green", set.green);
    out.member("blue", set.blue);
    out.member("white", set.white);
    out.member("black", set.black);
}

void describe(Description& out, const ProfileData::target_curve& curve) {
    out.member("type", curve.type);
    out.member("formula", curve.formula);
    out.member("lut", curve.lut);
}

void describe(Description& out, const ProfileData& record) {
    describeBase(out, record);
    out.member("description", record.description);
    out.member("measuredXYZ", record.measuredXYZ);
    out.member("measuredXYZLimited109", record.measuredXYZLimited109);
    out.member("redTargetCurve", record.redTargetCurve);
    out.member("greenTargetCurve", record.greenTargetCurve);
    out.member("blueTargetCurve", record.blueTargetCurve);
}

template <>
ProfileData filled<ProfileData>() {
    ProfileData record;
    fillBase(record);
    record.description.set("Panel 1");
    record.measuredXYZ.set({{11, 12, 13}, {21, 22, 23}, {31, 32, 33}, {41, 42, 43}, {51, 52, 53}});
    record.measuredXYZLimited109.set(
        {{111, 112, 113}, {121, 122, 123}, {131, 132, 133}, {141, 142, 143}, {151, 152, 153}});
    record.redTargetCurve.set({"Formula", 2200000, {61, 62}});
    record.greenTargetCurve.set({"Lut", 2400000, {0, 500000, 1000000}});
    record.blueTargetCurve.set({"LStar", 2600000, {71, 72, 73}});
    return record;
}

/// The black of the second set and what does not belong to the type of a curve are in no document.
template <>
ProfileData filledAndParsedBack<ProfileData>() {
    ProfileData record = filled<ProfileData>();
    record.writeHLGSystemGamma = false;
    record.measuredXYZLimited109.value.black.clear();
    record.redTargetCurve.value.lut.clear();
    record.greenTargetCurve.value.formula = 0;
    record.blueTargetCurve.value.formula = 0;
    record.blueTargetCurve.value.lut.clear();
    return record;
}

/// The flags of the measured sets follow the vectors, which stay.
template <>
std::string filledAfterEmptyRoot<ProfileData>() {
    return withClearFlags(describe(filled<ProfileData>()), {"measuredXYZ", "measuredXYZLimited109"});
}

}  // namespace lv::test
