#include <lvdata/core/colour.h>

#include <array>
#include <cstddef>
#include <new>
#include <type_traits>

#include <gtest/gtest.h>

namespace {

static_assert(std::is_same_v<lv::colour, ::colour>);
static_assert(std::is_aggregate_v<colour> && std::is_trivially_copyable_v<colour>);
static_assert(sizeof(colour) == 18 * sizeof(double));

constexpr std::array<double colour::*, 18> inOrder = {
    &colour::cyan,   &colour::magenta, &colour::yellow, &colour::black, &colour::red,    &colour::green,
    &colour::blue,   &colour::X,       &colour::Y,      &colour::Z,     &colour::x,      &colour::y,
    &colour::extra0, &colour::L,       &colour::a,      &colour::b,     &colour::extra1, &colour::extra2};

TEST(Colour, DefaultMadeIsAllZero) {
    alignas(colour) std::array<unsigned char, sizeof(colour)> memory{};
    memory.fill(0xA5);  // what is not initialised shows
    const auto* const made = new (memory.data()) colour;
    for (const auto member : inOrder) {
        EXPECT_EQ(made->*member, 0.0);
    }
}

TEST(Colour, MembersAreInTheDocumentedOrder) {
    const colour counted = {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17};
    for (std::size_t index = 0; index < inOrder.size(); ++index) {
        EXPECT_EQ(counted.*inOrder[index], static_cast<double>(index));
    }
}

TEST(Colour, CopiesAreSeparate) {
    colour source;
    source.red = 0.5;
    const colour copy = source;
    source.red = 1.0;
    EXPECT_EQ(copy.red, 0.5);
}

}  // namespace
