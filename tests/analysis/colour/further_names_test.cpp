#include <lvdata/analysis/colour/standards.h>

#include <gtest/gtest.h>

#include <string_view>

namespace colour = lv::analysis::colour;

namespace {

// Their reds and greens tell the spaces apart.
void expectPrimaries(std::string_view name, double redX, double greenX) {
    const auto found = colour::primariesNamed(name);
    ASSERT_TRUE(found) << name;
    EXPECT_EQ(found->red.x, redX) << name;
    EXPECT_EQ(found->green.x, greenX) << name;
}

void expectWhite(std::string_view name, double x, double y) {
    const auto found = colour::whiteNamed(name);
    ASSERT_TRUE(found) << name;
    EXPECT_EQ(found->x, x) << name;
    EXPECT_EQ(found->y, y) << name;
}

}  // namespace

TEST(ColourNames, StandardsNameTheirPrimaries) {
    expectPrimaries("IEC 61966-2-1", 0.64, 0.30);
    expectPrimaries("P3", 0.680, 0.265);
    expectPrimaries("P3-DCI", 0.680, 0.265);
    expectPrimaries("SMPTE RP 431-2", 0.680, 0.265);
    expectPrimaries("SMPTE EG 432-1", 0.680, 0.265);
    expectPrimaries("ITU-R BT.2020", 0.708, 0.170);
    expectPrimaries("Rec. 2100", 0.708, 0.170);
    expectPrimaries("ITU-R BT.2100", 0.708, 0.170);
    expectPrimaries("EBU Tech. 3213", 0.64, 0.29);
    expectPrimaries("SMPTE RP 145", 0.630, 0.310);
}

TEST(ColourNames, StandardsNameTheirWhites) {
    expectWhite("D60", 0.32168, 0.33767);
    expectWhite("DCI-P3", 0.314, 0.351);
    expectWhite("E", 1.0 / 3, 1.0 / 3);
}

TEST(ColourNames, ReferenceSpacesNameTheirStandards) {
    EXPECT_EQ(colour::referenceSpaces()[0].source, "IEC 61966-2-1");
    EXPECT_EQ(colour::referenceSpaces()[1].source, "Adobe RGB (1998) Color Image Encoding, 2005-05");
    EXPECT_EQ(colour::referenceSpaces()[2].source, "SMPTE EG 432-1");
    EXPECT_EQ(colour::referenceSpaces()[3].source, "ITU-R BT.2020");
}
