#include <tests/support/round_trip.h>
#include <tests/support/samples.h>

#include <gtest/gtest.h>

#include <lvdata/records/ProfileData.h>

#include <array>
#include <string>
#include <vector>

namespace lv::test {
namespace {

using Curve = ProfileData::target_curve;

struct Channel {
    std::string element;
    property<Curve> ProfileData::*member;
};

const std::array everyChannel = {Channel{"RedTargetCurve", &ProfileData::redTargetCurve},
                                 Channel{"GreenTargetCurve", &ProfileData::greenTargetCurve},
                                 Channel{"BlueTargetCurve", &ProfileData::blueTargetCurve}};

/// A "Type", what a curve of it with all data is written as (* is the name), and which of its data is read.
struct Kind {
    std::string type;
    std::string written;
    bool readsFormula;
    bool readsLut;
};

const std::array everyKind = {Kind{"Formula", R"(<* Type="Formula">2200000</*>)", true, false},
                              Kind{"Lut", R"(<* Type="Lut">0|500000|1000000</*>)", false, true},
                              Kind{"LStar", R"(<* Type="LStar"/>)", false, false},
                              Kind{"", "<*/>", false, false},
                              Kind{"Other", "<*/>", false, false},
                              Kind{"formula", "<*/>", false, false},
                              Kind{"FORMULA", "<*/>", false, false},
                              Kind{"lut", "<*/>", false, false},
                              Kind{"LUT", "<*/>", false, false},
                              Kind{"lstar", "<*/>", false, false},
                              Kind{"LSTAR", "<*/>", false, false},
                              Kind{"Lstar", "<*/>", false, false},
                              Kind{"Formula ", "<*/>", false, false},
                              Kind{" Lut", "<*/>", false, false}};

Curve withAllData(const std::string& type) {
    return {type, 2200000, {0, 500000, 1000000}};
}

/// The text with the name in place of every star.
std::string named(std::string text, const std::string& name) {
    for (auto star = text.find('*'); star != std::string::npos; star = text.find('*', star + name.size())) {
        text.replace(star, 1, name);
    }
    return text;
}

std::string curveElement(const std::string& name, const std::string& type, const std::string& text) {
    return '<' + name + " Type=\"" + type + "\">" + text + "</" + name + '>';
}

/// The whole document whose curve of that name stands as given, the two others being empty.
std::string writtenCurve(const std::string& name, const std::string& curve) {
    std::string text = compact(ProfileData());
    const std::string unset = '<' + name + "/>";
    return text.replace(text.find(unset), unset.size(), curve);
}

ProfileData curveReadOver(const Channel& channel, const property<Curve>& earlier, const std::string& children) {
    ProfileData record;
    record.*channel.member = earlier;
    EXPECT_TRUE(record.parseXMLString(documentOf<ProfileData>(children)));
    return record;
}

ProfileData recordWith(const Channel& channel, const property<Curve>& curve) {
    ProfileData record;
    record.*channel.member = curve;
    return record;
}

TEST(ProfileDataTargetCurve, EachTypeDecidesWhatIsWrittenOfACurveWithAllData) {
    for (const Channel& channel : everyChannel) {
        for (const Kind& kind : everyKind) {
            EXPECT_EQ(compact(recordWith(channel, {withAllData(kind.type), true})),
                      writtenCurve(channel.element, named(kind.written, channel.element)))
                << kind.type;
        }
    }
}

TEST(ProfileDataTargetCurve, UnsetCurveIsWrittenEmptyAndWithoutItsType) {
    for (const Channel& channel : everyChannel) {
        for (const Kind& kind : everyKind) {
            EXPECT_EQ(compact(recordWith(channel, {withAllData(kind.type), false})), compact(ProfileData()))
                << kind.type;
        }
    }
}

TEST(ProfileDataTargetCurve, EachTypeDecidesWhatIsReadOverEarlierData) {
    for (const Channel& channel : everyChannel) {
        for (const Kind& kind : everyKind) {
            Curve expected = {kind.type, 1, {2, 3}};
            expected.formula = kind.readsFormula ? 7 : expected.formula;
            expected.lut = kind.readsLut ? std::vector<unsigned int>{7, 8, 9, 10} : expected.lut;
            for (const bool flag : {false, true}) {
                const auto record = curveReadOver(channel, {{"Earlier", 1, {2, 3}}, flag},
                                                  curveElement(channel.element, kind.type, "7|8|9|10"));
                EXPECT_EQ(describe(record), describe(recordWith(channel, {expected, true}))) << kind.type;
            }
        }
    }
}

TEST(ProfileDataTargetCurve, MissingTypeKeepsTheEarlierOneWhichDecidesWhatIsRead) {
    for (const Channel& channel : everyChannel) {
        for (const Kind& kind : everyKind) {
            Curve expected = {kind.type, 1, {2, 3}};
            expected.formula = kind.readsFormula ? 7 : expected.formula;
            expected.lut = kind.readsLut ? std::vector<unsigned int>{7, 8} : expected.lut;
            const std::string& name = channel.element;
            const auto record =
                curveReadOver(channel, {{kind.type, 1, {2, 3}}, false}, '<' + name + ">7|8</" + name + '>');
            EXPECT_EQ(describe(record), describe(recordWith(channel, {expected, true}))) << kind.type;
        }
    }
}

TEST(ProfileDataTargetCurve, MissingCurveClearsTheFlagAndKeepsTypeAndData) {
    for (const Channel& channel : everyChannel) {
        for (const Kind& kind : everyKind) {
            for (const std::string& children : {std::string(), "<Other>" + curveElement(channel.element, "Lut", "9") +
                                                                   "</Other><redTargetCurve>9</redTargetCurve>"}) {
                const auto record = curveReadOver(channel, {withAllData(kind.type), true}, children);
                EXPECT_EQ(describe(record), describe(recordWith(channel, {withAllData(kind.type), false})))
                    << kind.type;
            }
        }
    }
}

TEST(ProfileDataTargetCurve, CurveWithoutATextIsFoundAndKeepsTheEarlierData) {
    for (const Channel& channel : everyChannel) {
        for (const Kind& kind : everyKind) {
            const auto record =
                curveReadOver(channel, {withAllData("Earlier"), false}, curveElement(channel.element, kind.type, ""));
            EXPECT_EQ(describe(record), describe(recordWith(channel, {withAllData(kind.type), true}))) << kind.type;
        }
    }
}

TEST(ProfileDataTargetCurve, LStarComesBackAsAnEmptyElementWithItsType) {
    for (const Channel& channel : everyChannel) {
        const std::string document = writtenCurve(channel.element, '<' + channel.element + R"( Type="LStar"/>)");
        const auto record = parsed<ProfileData>(document);
        EXPECT_EQ(describe((record.*channel.member).value), describe(Curve{"LStar", 0, {}}));
        EXPECT_TRUE((record.*channel.member).hasValue);
        EXPECT_EQ(compact(record), document);
    }
}

TEST(ProfileDataTargetCurve, UnknownTypeIsKeptInTheRecordAndDroppedFromTheText) {
    for (const Channel& channel : everyChannel) {
        const auto record = curveReadOver(channel, {}, curveElement(channel.element, "Sigmoid", "5"));
        EXPECT_EQ((record.*channel.member).value.type, "Sigmoid");
        EXPECT_EQ(compact(record), compact(ProfileData()));
    }
}

TEST(ProfileDataTargetCurve, FormulaOf2200000ReadsAs22) {
    const auto record = parsed<ProfileData>(R"(<ProfileData><RedTargetCurve Type="Formula">2200000</RedTargetCurve>)"
                                            "</ProfileData>");
    EXPECT_EQ(record.redTargetCurve.value.formula_x(), 2.2);
}

TEST(ProfileDataTargetCurve, NumbersAreUnsignedAndReadWithoutEverFailing) {
    for (const Channel& channel : everyChannel) {
        const auto read = [&channel](const std::string& type, const std::string& text) {
            return (curveReadOver(channel, {}, curveElement(channel.element, type, text)).*channel.member).value;
        };
        EXPECT_EQ(read("Formula", "-1").formula, 4294967295U);
        EXPECT_EQ(read("Formula", "99999999999").formula, 4294967295U);
        EXPECT_EQ(read("Formula", " 2.2").formula, 2U);
        EXPECT_EQ(read("Lut", "|-1||99999999999|x|").lut, (std::vector<unsigned int>{4294967295U, 4294967295U, 0}));
        EXPECT_TRUE(read("Lut", "||").lut.empty());
    }
}

TEST(ProfileDataTargetCurve, TableMayHaveAnyLength) {
    for (const Channel& channel : everyChannel) {
        EXPECT_EQ(compact(recordWith(channel, {{"Lut", 5, {}}, true})),
                  writtenCurve(channel.element, curveElement(channel.element, "Lut", "")));
        for (const std::size_t length : {1U, 2U, 256U, 1023U, 4096U}) {
            const Curve curve = {"Lut", 0, std::vector<unsigned int>(length, 4294967295U)};
            const auto back = parsed<ProfileData>(compact(recordWith(channel, {curve, true})));
            EXPECT_EQ(describe((back.*channel.member).value), describe(curve));
        }
    }
}

TEST(ProfileDataTargetCurve, FirstOfTwoElementsCounts) {
    for (const Channel& channel : everyChannel) {
        const std::string& name = channel.element;
        const auto record = curveReadOver(channel, {}, '<' + name + "/>" + curveElement(name, "Formula", "9"));
        EXPECT_EQ(describe(record), describe(recordWith(channel, {Curve(), true})));
    }
}

}  // namespace
}  // namespace lv::test
