#include <tests/properties/records.h>

#include <map>

namespace lv::test {
namespace {

using Curve = ProfileData::target_curve;

bool isComplete(const std::vector<unsigned int>& xyz) {
    return xyz.size() == 3;
}

/// The flags follow the vectors, wherever those came from.
void deriveFlags(ProfileData& record) {
    const auto& panel = record.measuredXYZ.value;
    const auto& limited = record.measuredXYZLimited109.value;
    record.measuredXYZ.hasValue = isComplete(panel.red) && isComplete(panel.green) && isComplete(panel.blue) &&
                                  isComplete(panel.white) && isComplete(panel.black);
    record.measuredXYZLimited109.hasValue =
        isComplete(limited.red) && isComplete(limited.green) && isComplete(limited.blue) && isComplete(limited.white);
}

/// A curve is written always; its type decides what of it.
void loseInCurve(property<Curve>& curve) {
    const std::string type = curve.value.type;
    keepWhen(curve.hasValue && (type == "Formula" || type == "Lut" || type == "LStar"), curve.value);
    keepWhen(type == "Formula", curve.value.formula);
    keepWhen(type == "Lut", curve.value.lut);
    curve.hasValue = true;
}

void readMeasured(const Found& element, ProfileData& record) {
    auto& panel = record.measuredXYZ.value;
    auto& limited = record.measuredXYZLimited109.value;
    const std::map<std::string, std::vector<unsigned int>*> targets = {
        {"Red", &panel.red},
        {"Green", &panel.green},
        {"Blue", &panel.blue},
        {"White", &panel.white},
        {"Black", &panel.black},
        {"Limited109Red", &limited.red},
        {"Limited109Green", &limited.green},
        {"Limited109Blue", &limited.blue},
        {"Limited109White", &limited.white},
    };
    std::string color;
    if (element.attribute("Color", color) && targets.count(color) != 0) {
        element.text(*targets.at(color));
    }
}

void readCurve(const Found& element, property<Curve>& curve) {
    curve.hasValue = element.exists();
    element.attribute("Type", curve.value.type);
    if (curve.value.type == "Formula") {
        element.text(curve.value.formula);
    } else if (curve.value.type == "Lut") {
        element.text(curve.value.lut);
    }
}

}  // namespace

void members(Members& visit, ProfileData::xyz_set_t& set) {
    for (auto* xyz : {&set.red, &set.green, &set.blue, &set.white, &set.black}) {
        visit(*xyz, likelyLengths({3}));
    }
}

void members(Members& visit, Curve& curve) {
    visit(curve.type, attribute({"Formula", "Lut", "LStar"}));
    visit.all(curve.formula, curve.lut);
}

void members(Members& visit, ProfileData& record) {
    membersOfBase(visit, record);
    visit.all(record.description, record.measuredXYZ, record.measuredXYZLimited109);
    visit.all(record.redTargetCurve, record.greenTargetCurve, record.blueTargetCurve);
}

void lose(ProfileData& record, bool /*hlgSwitch*/) {
    loseInCurve(record.redTargetCurve);
    loseInCurve(record.greenTargetCurve);
    loseInCurve(record.blueTargetCurve);
    record.measuredXYZLimited109.value.black.clear();
    loseInGeneral(record);
    deriveFlags(record);
}

void read(const Found& element, ProfileData& record) {
    element("Description", record.description);
    for (const Found& measured : element.children("MeasuredXYZ")) {
        readMeasured(measured, record);
    }
    deriveFlags(record);
    readCurve(element.child("RedTargetCurve"), record.redTargetCurve);
    readCurve(element.child("GreenTargetCurve"), record.greenTargetCurve);
    readCurve(element.child("BlueTargetCurve"), record.blueTargetCurve);
}

}  // namespace lv::test
