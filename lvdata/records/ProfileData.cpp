#include <lvdata/core/detail/colour_notation.h>
#include <lvdata/core/detail/record.h>
#include <lvdata/records/ProfileData.h>

#include <utility>

namespace lv {
namespace {

constexpr double tristimulusFactor = 1e6;
constexpr double curveFactor = 1e6;

bool isComplete(const std::vector<unsigned int>& stored) {
    return stored.size() == detail::xyz.size();
}

bool primariesAreComplete(const ProfileData::xyz_set_t& set) {
    return isComplete(set.red) && isComplete(set.green) && isComplete(set.blue) && isComplete(set.white);
}

template <class Io, class Vector>
void visitMeasured(const Io& io, const char* color, Vector& stored, bool hasValue) {
    Io measured = io;
    measured.keyed("MeasuredXYZ", "Color", color,
                   [&stored, hasValue](auto& child) { child.writeWhen(hasValue).text(stored); });
}

template <class Io, class Property>
void visitPanel(Io& io, Property& set) {
    visitMeasured(io, "Red", set.value.red, set.hasValue);
    visitMeasured(io, "Green", set.value.green, set.hasValue);
    visitMeasured(io, "Blue", set.value.blue, set.hasValue);
    visitMeasured(io, "White", set.value.white, set.hasValue);
    visitMeasured(io, "Black", set.value.black, set.hasValue);
    io.derive(set.hasValue, primariesAreComplete(set.value) && isComplete(set.value.black));
}

template <class Io, class Property>
void visitLimited109(Io& io, Property& set) {
    const auto gate = io.writeWhen(set.hasValue);
    visitMeasured(gate, "Limited109Red", set.value.red, true);
    visitMeasured(gate, "Limited109Green", set.value.green, true);
    visitMeasured(gate, "Limited109Blue", set.value.blue, true);
    visitMeasured(gate, "Limited109White", set.value.white, true);
    io.derive(set.hasValue, primariesAreComplete(set.value));
}

bool carriesType(const ProfileData::target_curve& curve) {
    return curve.type == "Formula" || curve.type == "Lut" || curve.type == "LStar";
}

template <class Io, class Curve>
XMLElement visitCurve(const Io& io, const char* name, Curve& curve) {
    const auto element = io.element(name);
    io.derive(curve.hasValue, element.exists());
    auto content = element.writeWhen(curve.hasValue && carriesType(curve.value));
    content.attribute("Type", curve.value.type);
    content.when(curve.value.type == "Formula").text(curve.value.formula);
    content.when(curve.value.type == "Lut").text(curve.value.lut);
    return element.xmlElement();
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
    result.red = detail::to_colour(detail::xyz, set.red, tristimulusFactor);
    result.green = detail::to_colour(detail::xyz, set.green, tristimulusFactor);
    result.blue = detail::to_colour(detail::xyz, set.blue, tristimulusFactor);
    result.white = detail::to_colour(detail::xyz, set.white, tristimulusFactor);
    return result;
}

std::vector<unsigned int> storedXYZ(const colour& measured) {
    return detail::from_colour<unsigned int>(detail::xyz, measured, tristimulusFactor);
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
    return detail::from_fixed(formula, curveFactor);
}

void ProfileData::target_curve::formula_x(double parameter) {
    formula = detail::to_fixed<unsigned int>(parameter, curveFactor);
}

std::vector<double> ProfileData::target_curve::lut_x() const {
    return detail::from_fixed(lut, curveFactor);
}

void ProfileData::target_curve::lut_x(const std::vector<double>& entries) {
    lut = detail::to_fixed<unsigned int>(entries, curveFactor);
}

ProfileData::ProfileData() : DataObject(2, 0) {}

bool ProfileData::parseXMLElement(XMLElement element) {
    return detail::parseRecord(*this, rootElementName, element, visit);
}

XMLElement ProfileData::appendXMLElement(XMLNode& parent) const {
    return detail::appendRecord(*this, rootElementName, parent, visit);
}

XMLElement ProfileData::parseTargetCurve(const std::string& name, XMLElement& element,
                                         property<target_curve>& curve) const {
    return visitCurve(detail::Reader(element), name.c_str(), curve);
}

XMLElement ProfileData::appendTargetCurve(const std::string& name, XMLElement& element,
                                          const property<target_curve>& curve) const {
    return visitCurve(detail::Writer(element), name.c_str(), curve);
}

PrimaryColours ProfileData::measuredXYZ_x() const {
    PrimaryColours result = primaries(measuredXYZ.value);
    result.black = detail::to_colour(detail::xyz, measuredXYZ.value.black, tristimulusFactor);
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

}  // namespace lv
