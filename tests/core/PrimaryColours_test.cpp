#include <tests/support/describe.h>

#include <lvdata/core/PrimaryColours.h>

#include <array>
#include <cstring>
#include <new>
#include <type_traits>

#include <gtest/gtest.h>

namespace lv::test {
namespace {

static_assert(std::is_same_v<lv::PrimaryColours, ::PrimaryColours>);
static_assert(std::is_aggregate_v<PrimaryColours> && std::is_trivially_copyable_v<PrimaryColours>);
static_assert(sizeof(PrimaryColours) == 5 * sizeof(colour));

constexpr std::array<colour PrimaryColours::*, 5> inOrder = {&PrimaryColours::red, &PrimaryColours::green,
                                                             &PrimaryColours::blue, &PrimaryColours::white,
                                                             &PrimaryColours::black};

TEST(PrimaryColours, DefaultMadeIsAllZero) {
    alignas(PrimaryColours) unsigned char memory[sizeof(PrimaryColours)];
    std::memset(memory, 0xA5, sizeof memory);  // what is not initialised shows
    const auto* const made = new (memory) PrimaryColours;
    for (const auto member : inOrder) {
        EXPECT_EQ(describe(made->*member), describe(colour()));
    }
}

TEST(PrimaryColours, MembersAreInTheDocumentedOrder) {
    std::array<colour, 5> counted;
    for (std::size_t index = 0; index < counted.size(); ++index) {
        counted[index].X = static_cast<double>(index);
    }
    const PrimaryColours made = {counted[0], counted[1], counted[2], counted[3], counted[4]};
    for (std::size_t index = 0; index < inOrder.size(); ++index) {
        EXPECT_EQ((made.*inOrder[index]).X, static_cast<double>(index));
    }
}

TEST(PrimaryColours, CopiesAreSeparate) {
    PrimaryColours source;
    source.white.Y = 100.0;
    const PrimaryColours copy = source;
    source.white.Y = 50.0;
    EXPECT_EQ(copy.white.Y, 100.0);
}

}  // namespace
}  // namespace lv::test
