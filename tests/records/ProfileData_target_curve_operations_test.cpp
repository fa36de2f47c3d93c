#include <tests/support/ParsedDocument.h>
#include <tests/support/round_trip.h>
#include <tests/support/samples.h>

#include <gtest/gtest.h>

#include <lvdata/records/ProfileData.h>
#include <lvdata/xml/XMLDocument.h>

#include <limits>
#include <string>
#include <vector>

// What applications can call for one curve: reading it, appending it, and its data as fractions.

namespace lv::test {
namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

using Curve = ProfileData::target_curve;
using Stored = std::vector<unsigned int>;
using Doubles = std::vector<double>;

const Curve earlier = {"Earlier", 1, {2, 3}};

std::string describeCurve(const property<Curve>& curve) {
    ProfileData record;
    record.redTargetCurve = curve;
    return describe(record);
}

/// What is in the element "Outer" after the curve was appended to it under the name "Curve".
std::string appended(const property<Curve>& curve) {
    XMLDocument document;
    XMLElement outer = document.appendChild("Outer");
    const XMLElement child = filled<ProfileData>().appendTargetCurve("Curve", outer, curve);
    EXPECT_EQ(child.elementName(), "Curve");
    EXPECT_EQ(child.get(), outer.getElement("Curve").get());
    return document.toXMLString(false, false);
}

TEST(ProfileDataParseTargetCurve, ReturnsTheElementThatItReadAndTouchesNoCurveOfItsRecord) {
    const ParsedDocument document(R"(<Outer><Curve Type="Lut">7|8</Curve><Curve Type="Formula">9</Curve></Outer>)");
    XMLElement outer = document.root();
    property<Curve> curve = {earlier, false};
    ProfileData record = filled<ProfileData>();
    EXPECT_EQ(record.parseTargetCurve("Curve", outer, curve).get(), outer.getElement("Curve").get());
    EXPECT_EQ(describeCurve(curve), describeCurve({{"Lut", 1, {7, 8}}, true}));
    EXPECT_EQ(describe(record), describe(filled<ProfileData>()));
    EXPECT_EQ(outer.get(), document.root().get());
}

TEST(ProfileDataParseTargetCurve, ReadsFormulaAndOtherTypesToo) {
    const ParsedDocument document(R"(<Outer><A Type="Formula">7|8</A><B Type="LStar">7|8</B><C Type="">7</C></Outer>)");
    XMLElement outer = document.root();
    property<Curve> curve = {earlier, false};
    ProfileData record;
    EXPECT_TRUE(record.parseTargetCurve("A", outer, curve).isValid());
    EXPECT_EQ(describeCurve(curve), describeCurve({{"Formula", 7, {2, 3}}, true}));
    EXPECT_TRUE(record.parseTargetCurve("B", outer, curve).isValid());
    EXPECT_EQ(describeCurve(curve), describeCurve({{"LStar", 7, {2, 3}}, true}));
    EXPECT_TRUE(record.parseTargetCurve("C", outer, curve).isValid());
    EXPECT_EQ(describeCurve(curve), describeCurve({{"", 7, {2, 3}}, true}));
}

TEST(ProfileDataParseTargetCurve, MissingChildGivesAnInvalidElementAndClearsTheFlagAlone) {
    const ParsedDocument document(R"(<Outer><curve Type="Lut">7</curve><In><Curve Type="Lut">8</Curve></In></Outer>)");
    XMLElement outer = document.root();
    for (const char* type : {"Earlier", "Formula", "Lut"}) {
        property<Curve> curve = {{type, 1, {2, 3}}, true};
        EXPECT_FALSE(ProfileData().parseTargetCurve("Curve", outer, curve).isValid());
        EXPECT_EQ(describeCurve(curve), describeCurve({{type, 1, {2, 3}}, false}));
    }
}

TEST(ProfileDataParseTargetCurve, InvalidParentGivesAnInvalidElementAndClearsTheFlagAlone) {
    XMLElement nothing;
    XMLDocument document;
    XMLElement noElement(document.get());
    for (XMLElement* parent : {&nothing, &noElement}) {
        property<Curve> curve = {{"Lut", 1, {2, 3}}, true};
        EXPECT_FALSE(ProfileData().parseTargetCurve("Curve", *parent, curve).isValid());
        EXPECT_EQ(describeCurve(curve), describeCurve({{"Lut", 1, {2, 3}}, false}));
    }
}

TEST(ProfileDataAppendTargetCurve, AppendsTheChildAndReturnsIt) {
    EXPECT_EQ(appended({{"Formula", 7, {8, 9}}, true}), R"(<Outer><Curve Type="Formula">7</Curve></Outer>)");
    EXPECT_EQ(appended({{"Lut", 7, {8, 9}}, true}), R"(<Outer><Curve Type="Lut">8|9</Curve></Outer>)");
    EXPECT_EQ(appended({{"Lut", 7, {}}, true}), R"(<Outer><Curve Type="Lut"></Curve></Outer>)");
    EXPECT_EQ(appended({{"LStar", 7, {8, 9}}, true}), R"(<Outer><Curve Type="LStar"/></Outer>)");
    EXPECT_EQ(appended({{"Other", 7, {8, 9}}, true}), "<Outer><Curve/></Outer>");
    EXPECT_EQ(appended({{"", 7, {8, 9}}, true}), "<Outer><Curve/></Outer>");
    EXPECT_EQ(appended({{"Formula", 7, {8, 9}}, false}), "<Outer><Curve/></Outer>");
}

TEST(ProfileDataAppendTargetCurve, AppendsAfterTheLastChildEvenWhenTheNameExistsAlready) {
    const ParsedDocument document(R"(<Outer><Curve Type="LStar"/><Other/></Outer>)");
    XMLElement outer = document.root();
    const XMLElement child = ProfileData().appendTargetCurve("Curve", outer, {{"Formula", 7, {}}, true});
    EXPECT_EQ(child.get(), outer.getElements("Curve").at(1).get());
    EXPECT_EQ(document.text(), R"(<Outer><Curve Type="LStar"/><Other/><Curve Type="Formula">7</Curve></Outer>)");
}

TEST(ProfileDataAppendTargetCurve, InvalidParentGivesAnInvalidElement) {
    XMLElement nothing;
    XMLDocument document;
    XMLElement noElement(document.get());
    for (XMLElement* parent : {&nothing, &noElement}) {
        for (const bool flag : {false, true}) {
            const property<Curve> curve = {{"Formula", 7, {}}, flag};
            EXPECT_FALSE(ProfileData().appendTargetCurve("Curve", *parent, curve).isValid());
        }
    }
    EXPECT_EQ(document.toXMLString(false, false), "");
}

unsigned int storedFormula(double parameter) {
    Curve curve;
    curve.formula_x(parameter);
    return curve.formula;
}

Stored storedLut(const Doubles& entries) {
    Curve curve;
    curve.lut_x(entries);
    return curve.lut;
}

TEST(ProfileDataTargetCurveAccessors, FormulaOf22Stores2200000AndMinus1StoresZero) {
    EXPECT_EQ(storedFormula(2.2), 2200000U);
    EXPECT_EQ(storedFormula(-1.0), 0U);
}

TEST(ProfileDataTargetCurveAccessors, LutOf0And05And1StoresTheMillionths) {
    EXPECT_EQ(storedLut({0.0, 0.5, 1.0}), (Stored{0, 500000, 1000000}));
}

TEST(ProfileDataTargetCurveAccessors, GettersDivideByAMillion) {
    const Curve curve = {"", 4294967295U, {0, 500000, 1, 4294967295U}};
    EXPECT_EQ(curve.formula_x(), 4294.967295);
    EXPECT_EQ(curve.lut_x(), (Doubles{0.0, 0.5, 0.000001, 4294.967295}));
    EXPECT_EQ(Curve().formula_x(), 0.0);
    EXPECT_TRUE(Curve().lut_x().empty());
}

TEST(ProfileDataTargetCurveAccessors, SettersAddOneHalfAndTruncate) {
    EXPECT_EQ(storedFormula(0.49e-6), 0U);
    EXPECT_EQ(storedFormula(0.0000005), 1U);
    EXPECT_EQ(storedFormula(1.0000004), 1000000U);
    EXPECT_EQ(storedLut({0.49e-6, 0.0000005, 1.0000004, 1.0000005}), (Stored{0, 1, 1000000, 1000001}));
}

TEST(ProfileDataTargetCurveAccessors, SettersStoreNegativeValuesAsZero) {
    for (const double value : {-0.0, -0.2, -1.0, -5000.0, -1e300, -infinity}) {
        EXPECT_EQ(storedFormula(value), 0U) << value;
        EXPECT_EQ(storedLut({1.0, value}), (Stored{1000000, 0})) << value;
    }
}

TEST(ProfileDataTargetCurveAccessors, SettersKeepTheLow32Bits) {
    EXPECT_EQ(storedFormula(4295.0), 32704U);
    EXPECT_EQ(storedFormula(4294.967295), 4294967295U);
    EXPECT_EQ(storedLut({4295.0, 4294.967296, 4294.967295}), (Stored{32704, 0, 4294967295U}));
}

TEST(ProfileDataTargetCurveAccessors, SettersStoreZeroForValuesBeyond64Bits) {
    for (const double value : {notANumber, infinity, 1e300, 1e13}) {
        EXPECT_EQ(storedFormula(value), 0U) << value;
        EXPECT_EQ(storedLut({value, 1.0}), (Stored{0, 1000000})) << value;
    }
}

TEST(ProfileDataTargetCurveAccessors, SettersChangeTheirOwnMemberAloneAndNoFlag) {
    for (const bool flag : {false, true}) {
        property<Curve> curve = {earlier, flag};
        curve.value.formula_x(2.2);
        EXPECT_EQ(describeCurve(curve), describeCurve({{"Earlier", 2200000, {2, 3}}, flag}));
        curve.value.lut_x({0.5, 1.0, 0.25});
        EXPECT_EQ(describeCurve(curve), describeCurve({{"Earlier", 2200000, {500000, 1000000, 250000}}, flag}));
        curve.value.lut_x({});
        EXPECT_EQ(describeCurve(curve), describeCurve({{"Earlier", 2200000, {}}, flag}));
    }
}

TEST(ProfileDataTargetCurveAccessors, TablesOfAnyLengthAreTaken) {
    for (const std::size_t length : {1U, 255U, 1024U, 5000U}) {
        Curve curve;
        curve.lut_x(Doubles(length, 0.25));
        EXPECT_EQ(curve.lut, Stored(length, 250000));
        EXPECT_EQ(curve.lut_x(), Doubles(length, 0.25));
    }
}

}  // namespace
}  // namespace lv::test
