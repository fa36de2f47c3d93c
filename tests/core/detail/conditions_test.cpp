#include <lvdata/core/detail/Describer.h>
#include <lvdata/core/detail/MemberCollector.h>
#include <lvdata/core/detail/Reader.h>
#include <lvdata/core/detail/Writer.h>
#include <lvdata/core/detail/conditions.h>

#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

namespace lv::detail {
namespace {

TEST(Conditions, OneOfComparesWholeTexts) {
    const std::string type = "Lut24";
    EXPECT_TRUE(oneOf(type, "Lut24").holds());
    EXPECT_TRUE(oneOf(type, "Lut", "Lut24").holds());
    EXPECT_FALSE(oneOf(type, "Lut").holds());
    EXPECT_FALSE(oneOf(type, "Lut245").holds());
    EXPECT_FALSE(oneOf(type, "lut24", "Lut2a", "").holds());
    const std::string empty;
    EXPECT_TRUE(oneOf(empty, "").holds());
    EXPECT_FALSE(oneOf(empty, "a").holds());
    const std::string withNul("a\0b", 3);
    EXPECT_FALSE(oneOf(withNul, "a").holds());
}

TEST(Conditions, OneOfComparesNumbers) {
    const unsigned int kind = 17;
    EXPECT_TRUE(oneOf(kind, 1U, 17U).holds());
    EXPECT_FALSE(oneOf(kind, 1U, 18U).holds());
    EXPECT_TRUE(oneOf(kind, std::array{17U, 3U}).holds());
    EXPECT_FALSE(oneOf(kind, std::array{16U, 3U}).holds());
}

TEST(Conditions, NoneOfIsTheOppositeOfOneOf) {
    const std::string type = "SyncSignal";
    EXPECT_FALSE(noneOf(type, "SyncSignal").holds());
    EXPECT_FALSE(noneOf(type, "Value", "SyncSignal").holds());
    EXPECT_TRUE(noneOf(type, "Value", "Fixed").holds());
}

TEST(Conditions, IsSetAsksTheFlagAlone) {
    bool flag = true;
    EXPECT_TRUE(isSet(flag).holds());
    flag = false;
    EXPECT_FALSE(isSet(flag).holds());
    property<int> member{0, true};
    EXPECT_TRUE(isSet(member).holds());
    member = {1, false};
    EXPECT_FALSE(isSet(member).holds());
}

TEST(Conditions, NotEmptyHoldsForStringsAndArrays) {
    std::string text = " ";
    EXPECT_TRUE(notEmpty(text).holds());
    text.clear();
    EXPECT_FALSE(notEmpty(text).holds());
    std::vector<int> array = {0};
    EXPECT_TRUE(notEmpty(array).holds());
    array.clear();
    EXPECT_FALSE(notEmpty(array).holds());
}

TEST(Conditions, HaveEntriesAsksEachArray) {
    const std::vector<unsigned int> three = {1, 2, 3};
    const std::vector<unsigned int> two = {1, 2};
    EXPECT_TRUE(haveEntries(3, three).holds());
    EXPECT_FALSE(haveEntries(3, two).holds());
    EXPECT_TRUE(haveEntries(3, three, three).holds());
    EXPECT_FALSE(haveEntries(3, three, two).holds());
    EXPECT_FALSE(haveEntries(3, two, three).holds());
}

TEST(Conditions, AnyOfNeedsOne) {
    const bool yes = true;
    const bool no = false;
    EXPECT_TRUE(anyOf(isSet(no), isSet(yes)).holds());
    EXPECT_TRUE(anyOf(isSet(yes), isSet(no)).holds());
    EXPECT_FALSE(anyOf(isSet(no), isSet(no)).holds());
}

TEST(Conditions, ARuleHoldsAsItWasFound) {
    EXPECT_TRUE(rule("words", true).holds());
    EXPECT_FALSE(rule("words", false).holds());
}

TEST(Conditions, AChoiceIsTheFirstWhoseConditionHolds) {
    bool first = true;
    bool second = true;
    const auto choice =
        choose(quantities::number, when(isSet(first), quantities::candela), when(isSet(second), quantities::percent));
    EXPECT_EQ(&choice.chosen(), &quantities::candela);
    first = false;
    EXPECT_EQ(&choice.chosen(), &quantities::percent);
    second = false;
    EXPECT_EQ(&choice.chosen(), &quantities::number);
}

// Nothing but a condition gates: a bool does not compile, in no direction and at no gate.

template <class Io, class Gate, class = void>
constexpr bool readsWhen = false;
template <class Io, class Gate>
constexpr bool readsWhen<Io, Gate, std::void_t<decltype(std::declval<const Io&>().readWhen(std::declval<Gate>()))>> =
    true;

template <class Io, class Gate, class = void>
constexpr bool writesWhen = false;
template <class Io, class Gate>
constexpr bool writesWhen<Io, Gate, std::void_t<decltype(std::declval<const Io&>().writeWhen(std::declval<Gate>()))>> =
    true;

template <class Io, class Gate, class = void>
constexpr bool gatesBoth = false;
template <class Io, class Gate>
constexpr bool gatesBoth<Io, Gate, std::void_t<decltype(std::declval<const Io&>().when(std::declval<Gate>()))>> = true;

template <class Io, class Gate>
constexpr bool gates = readsWhen<Io, Gate>&& writesWhen<Io, Gate>&& gatesBoth<Io, Gate>;
template <class Io, class Gate>
constexpr bool gatesNowhere = !readsWhen<Io, Gate> && !writesWhen<Io, Gate> && !gatesBoth<Io, Gate>;

static_assert(gates<Reader, IsSet> && gates<Writer, IsSet> && gates<Describer, IsSet> && gates<MemberCollector, IsSet>);
static_assert(gatesNowhere<Reader, bool> && gatesNowhere<Writer, bool>);
static_assert(gatesNowhere<Describer, bool> && gatesNowhere<MemberCollector, bool>);

// Nor can a bool become a condition on the way.

template <class T, class = void>
constexpr bool canBeSet = false;
template <class T>
constexpr bool canBeSet<T, std::void_t<decltype(isSet(std::declval<T>()))>> = true;

static_assert(canBeSet<bool&> && canBeSet<property<int>&>);
static_assert(!canBeSet<bool> && !canBeSet<property<int>>);

// Neither does a flag take a bool from elsewhere, when it is described.
static_assert(!std::is_constructible_v<Describer::Found, bool>);

}  // namespace
}  // namespace lv::detail
