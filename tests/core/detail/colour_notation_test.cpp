#include <lvdata/core/detail/colour_notation.h>

#include <algorithm>
#include <array>
#include <limits>
#include <vector>

#include <gtest/gtest.h>

namespace lv::detail {
namespace {

/// A colour's members in their order.
std::array<double, 18> membersOf(const colour& source) {
    return {source.cyan,   source.magenta, source.yellow, source.black, source.red,    source.green,
            source.blue,   source.X,       source.Y,      source.Z,     source.x,      source.y,
            source.extra0, source.L,       source.a,      source.b,     source.extra1, source.extra2};
}

/// Eighteen zeros, but for these values from the given place on.
std::array<double, 18> zerosBut(std::size_t first, const std::vector<double>& values) {
    std::array<double, 18> members{};
    std::copy(values.begin(), values.end(), members.begin() + static_cast<std::ptrdiff_t>(first));
    return members;
}

/// A colour with another number in every member.
constexpr colour counted = {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17};

TEST(ToColour, FillsTheMembersOfItsNotationAndNoOther) {
    const std::vector<int> three = {100, 200, 300};
    const std::vector<int> four = {100, 200, 300, 400};
    EXPECT_EQ(membersOf(to_colour(cmyk, four, 100.0)), zerosBut(0, {1, 2, 3, 4}));
    EXPECT_EQ(membersOf(to_colour(rgb, three, 100.0)), zerosBut(4, {1, 2, 3}));
    EXPECT_EQ(membersOf(to_colour(xyz, three, 100.0)), zerosBut(7, {1, 2, 3}));
    EXPECT_EQ(membersOf(to_colour(cielab, three, 100.0)), zerosBut(13, {1, 2, 3}));
}

TEST(ToColour, IsAllZeroForFewerNumbersThanTheNotationNeeds) {
    EXPECT_EQ(membersOf(to_colour(rgb, std::vector<unsigned int>{1, 2}, 255.0)), zerosBut(0, {}));
    EXPECT_EQ(membersOf(to_colour(cmyk, std::vector<unsigned int>{1, 2, 3}, 100.0)), zerosBut(0, {}));
    EXPECT_EQ(membersOf(to_colour(xyz, std::vector<int>(), 1e6)), zerosBut(0, {}));
}

TEST(ToColour, IgnoresFurtherNumbers) {
    EXPECT_EQ(membersOf(to_colour(xyz, std::vector<int>{1, -2, 3, 4, 5}, 1.0)), zerosBut(7, {1, -2, 3}));
}

TEST(FromColour, ReadsTheMembersOfItsNotationInOrder) {
    EXPECT_EQ(from_colour<unsigned int>(cmyk, counted, 1.0), (std::vector<unsigned int>{0, 1, 2, 3}));
    EXPECT_EQ(from_colour<unsigned int>(rgb, counted, 1.0), (std::vector<unsigned int>{4, 5, 6}));
    EXPECT_EQ(from_colour<int>(xyz, counted, 1.0), (std::vector<int>{7, 8, 9}));
    EXPECT_EQ(from_colour<int>(cielab, counted, 1.0), (std::vector<int>{13, 14, 15}));
}

TEST(FromColour, RoundsAsItsStoredTypeDoes) {
    colour source;
    source.X = -0.7;
    source.Y = 0.0000005;
    source.Z = -0.0000012;
    EXPECT_EQ(from_colour<int>(xyz, source, 1e6), (std::vector<int>{-699999, 1, 0}));
    EXPECT_EQ(from_colour<unsigned int>(xyz, source, 1e6), (std::vector<unsigned int>{0, 1, 0}));
}

TEST(FromColour, HasNoUpperLimit) {
    colour source;
    source.red = 1.2;
    source.green = 1.5;
    EXPECT_EQ(from_colour<unsigned int>(rgb, source, 255.0), (std::vector<unsigned int>{306, 383, 0}));
}

TEST(FromColour, StoresNaNAsZero) {
    colour source;
    source.red = std::numeric_limits<double>::quiet_NaN();
    source.green = std::numeric_limits<double>::infinity();
    source.blue = 1.0;
    EXPECT_EQ(from_colour<unsigned int>(rgb, source, 255.0), (std::vector<unsigned int>{0, 0, 255}));
}

TEST(ColourNotation, RedOneHalfComesBackAs128Of255) {
    colour source;
    source.red = 0.5;
    const colour back = to_colour(rgb, from_colour<unsigned int>(rgb, source, 255.0), 255.0);
    EXPECT_EQ(back.red, 128 / 255.0);
}

}  // namespace
}  // namespace lv::detail
