#include <lvdata/core/detail/colour_notation.h>
#include <lvdata/core/detail/record.h>
#include <lvdata/records/ProfileData.h>
#include <lvdata/records/types.h>

#include <array>
#include <utility>

namespace lv {
namespace {

using detail::haveEntries;
using detail::isSet;
using detail::oneOf;

template <class Io, class Vector>
void visitMeasured(const Io& io, const char* color, Vector& stored, const bool& hasValue) {
    Io measured = io;
    measured.keyed("MeasuredXYZ", "Color", color, [&stored, &hasValue](auto& child) {
        child.writeWhen(isSet(hasValue)).text(stored, quantities::tristimulus);
    });
}

/// The four colours that both sets have.
template <class Io, class Set>
void visitPrimaries(const Io& io, Set& set, const bool& hasValue, const std::array<const char*, 4>& colors) {
    visitMeasured(io, colors[0], set.red, hasValue);
    visitMeasured(io, colors[1], set.green, hasValue);
    visitMeasured(io, colors[2], set.blue, hasValue);
    visitMeasured(io, colors[3], set.white, hasValue);
}

template <class Io, class Set>
void visitSet(const Io& io, Set& set, const bool& hasValue) {
    visitPrimaries(io, set, hasValue, {"Red", "Green", "Blue", "White"});
    visitMeasured(io, "Black", set.black, hasValue);
}

template <class Io, class Property>
void visitPanel(Io& io, Property& panel) {
    visitSet(io, panel.value, panel.hasValue);
    const auto& set = panel.value;
    io.derive(panel.hasValue, haveEntries(detail::xyz.size(), set.red, set.green, set.blue, set.white, set.black));
}

template <class Io, class Property>
void visitLimited109(Io& io, Property& limited) {
    visitPrimaries(io.writeWhen(isSet(limited)), limited.value, limited.hasValue,
                   {"Limited109Red", "Limited109Green", "Limited109Blue", "Limited109White"});
    const auto& set = limited.value;
    io.derive(limited.hasValue, haveEntries(detail::xyz.size(), set.red, set.green, set.blue, set.white));
}

constexpr auto visitCurveContent = [](auto& io, auto& curve) {
    io.writeWhen(oneOf(curve.type, types::profileCurve::formula, types::profileCurve::lut, types::profileCurve::lStar))
        .attribute("Type", curve.type);
    io.when(oneOf(curve.type, types::profileCurve::formula)).text(curve.formula, quantities::curveParameter);
    io.when(oneOf(curve.type, types::profileCurve::lut)).text(curve.lut, quantities::curveEntry);
};

template <class Io, class Curve>
Io visitCurve(Io io, const char* name, Curve& curve) {
    const Io element = io.element(name);
    io.derive(curve.hasValue, element.exists());
    auto content = element.writeWhen(isSet(curve));
    visitCurveContent(content, curve.value);
    return element;
}

constexpr auto visit = [](auto& io, auto& self) {
    io.field("Description", self.description);
    visitPanel(io, self.measuredXYZ);
    visitLimited109(io, self.measuredXYZLimited109);
    visitCurve(io, "RedTargetCurve", self.redTargetCurve);
    visitCurve(io, "GreenTargetCurve", self.greenTargetCurve);
    visitCurve(io, "BlueTargetCurve", self.blueTargetCurve);
};

PrimaryColours primaries(const ProfileData::xyz_set_t& set) {
    PrimaryColours result;
    result.red = detail::to_colour(detail::xyz, set.red, quantities::tristimulus.factor);
    result.green = detail::to_colour(detail::xyz, set.green, quantities::tristimulus.factor);
    result.blue = detail::to_colour(detail::xyz, set.blue, quantities::tristimulus.factor);
    result.white = detail::to_colour(detail::xyz, set.white, quantities::tristimulus.factor);
    return result;
}

std::vector<unsigned int> storedXYZ(const colour& measured) {
    return detail::from_colour<unsigned int>(detail::xyz, measured, quantities::tristimulus.factor);
}

ProfileData::xyz_set_t storedPrimaries(const PrimaryColours& measured) {
    ProfileData::xyz_set_t set;
    set.red = storedXYZ(measured.red);
    set.green = storedXYZ(measured.green);
    set.blue = storedXYZ(measured.blue);
    set.white = storedXYZ(measured.white);
    return set;
}

}  // namespace

double ProfileData::target_curve::formula_x() const {
    return detail::from_fixed(formula, quantities::curveParameter.factor);
}

void ProfileData::target_curve::formula_x(double parameter) {
    formula = detail::to_fixed<unsigned int>(parameter, quantities::curveParameter.factor);
}

std::vector<double> ProfileData::target_curve::lut_x() const {
    return detail::from_fixed(lut, quantities::curveEntry.factor);
}

void ProfileData::target_curve::lut_x(const std::vector<double>& entries) {
    lut = detail::to_fixed<unsigned int>(entries, quantities::curveEntry.factor);
}

ProfileData::ProfileData() : DataObject(2, 0) {}

bool ProfileData::parseXMLElement(XMLElement element) {
    return detail::parseRecord(*this, rootElementName, element, visit);
}

XMLElement ProfileData::appendXMLElement(XMLNode& parent) const {
    return detail::appendRecord(*this, rootElementName, parent, visit);
}

Description ProfileData::describe() {
    return detail::describeRecord<ProfileData>(rootElementName, visit);
}

XMLElement ProfileData::parseTargetCurve(const std::string& name, XMLElement& element,
                                         property<target_curve>& curve) const {
    return visitCurve(detail::Reader(element), name.c_str(), curve).xmlElement();
}

XMLElement ProfileData::appendTargetCurve(const std::string& name, XMLElement& element,
                                          const property<target_curve>& curve) const {
    return visitCurve(detail::Writer(element), name.c_str(), curve).xmlElement();
}

PrimaryColours ProfileData::measuredXYZ_x() const {
    PrimaryColours result = primaries(measuredXYZ.value);
    result.black = detail::to_colour(detail::xyz, measuredXYZ.value.black, quantities::tristimulus.factor);
    return result;
}

void ProfileData::measuredXYZ_x(const PrimaryColours& measured) {
    xyz_set_t set = storedPrimaries(measured);
    set.black = storedXYZ(measured.black);
    measuredXYZ.set(std::move(set));
}

PrimaryColours ProfileData::measuredXYZLimited109_x() const {
    return primaries(measuredXYZLimited109.value);
}

void ProfileData::measuredXYZLimited109_x(const PrimaryColours& measured) {
    measuredXYZLimited109.set(storedPrimaries(measured));
}

bool operator==(const ProfileData::xyz_set_t& left, const ProfileData::xyz_set_t& right) {
    return detail::areEqual(left, right, [](auto& io, auto& set) { visitSet(io, set, true); });
}

bool operator==(const ProfileData::target_curve& left, const ProfileData::target_curve& right) {
    return detail::areEqual(left, right, visitCurveContent);
}

bool operator==(const ProfileData& left, const ProfileData& right) {
    return detail::areEqualRecords(left, right, visit);
}

}  // namespace lv
