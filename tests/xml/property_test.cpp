#include <lvdata/xml/property.h>

#include <array>
#include <cstddef>
#include <new>
#include <string>
#include <type_traits>
#include <vector>

#include <gtest/gtest.h>

namespace lv {
namespace {

struct Structure {
    int number = 0;
    property<std::string> text;
};

bool operator==(const Structure& left, const Structure& right) {
    return left.number == right.number && left.text == right.text;
}

template <class T>
class PropertyOf : public testing::Test {};

struct TypeName {
    template <class T>
    static std::string GetName(int index) {
        const std::array<const char*, 7> names = {"int",  "unsigned",  "bool",     "string",
                                                  "ints", "unsigneds", "structure"};
        return names.at(static_cast<std::size_t>(index));
    }
};

using Types =
    testing::Types<int, unsigned int, bool, std::string, std::vector<int>, std::vector<unsigned int>, Structure>;
TYPED_TEST_SUITE(PropertyOf, Types, TypeName);

TYPED_TEST(PropertyOf, DefaultMadeHasZeroValueAndClearFlag) {
    using Property = property<TypeParam>;
    alignas(Property) std::array<unsigned char, sizeof(Property)> memory{};
    memory.fill(0xA5);  // what is not initialised shows
    auto* const made = new (memory.data()) Property;
    EXPECT_TRUE(made->value == TypeParam());
    EXPECT_FALSE(made->hasValue);
    made->~Property();
}

TYPED_TEST(PropertyOf, MembersAreValueThenFlag) {
    const property<TypeParam> made{TypeParam(), true};
    EXPECT_TRUE(made.value == TypeParam());
    EXPECT_TRUE(made.hasValue);
    EXPECT_TRUE(std::is_aggregate_v<property<TypeParam>>);
}

TEST(Property, CopiesShareNothing) {
    property<std::vector<int>> source{{1, 2, 3}, true};
    const property<std::vector<int>> copy = source;
    source.value.front() = 9;
    source.hasValue = false;
    EXPECT_EQ(copy.value, (std::vector<int>{1, 2, 3}));
    EXPECT_TRUE(copy.hasValue);
}

TEST(Property, WritingToTheValueDoesNotTouchTheFlag) {
    property<int> number;
    number.value = 5;
    EXPECT_FALSE(number.hasValue);
    number.hasValue = true;
    number.value = 6;
    EXPECT_TRUE(number.hasValue);
}

TEST(Property, SetReplacesTheValueAndSetsTheFlag) {
    property<std::string> text{"old", false};
    text.set("new");
    EXPECT_EQ(text.value, "new");
    EXPECT_TRUE(text.hasValue);
}

TEST(Property, EqualWhenValueAndFlagAreBoth) {
    const property<int> set{5, true};
    EXPECT_TRUE(set == (property<int>{5, true}));
    EXPECT_FALSE(set == (property<int>{6, true}));
    EXPECT_FALSE(set == (property<int>{5, false}));
    EXPECT_FALSE(set != (property<int>{5, true}));
    EXPECT_TRUE(set != (property<int>{6, true}));
    EXPECT_TRUE(set != (property<int>{5, false}));
}

TEST(Property, HoldsTypesThatCannotBeCompared) {
    struct Incomparable {
        int number = 7;
    };
    property<Incomparable> held;
    held.set(Incomparable{8});
    EXPECT_EQ(held.value.number, 8);
}

}  // namespace
}  // namespace lv
