#include <tools/lvdata/OrderedWork.h>

#include <atomic>
#include <chrono>
#include <memory>
#include <set>

#include <gmock/gmock.h>

namespace {

using Numbers = tool::OrderedWork<int, int>;

/// Gives 0 to `count` - 1.
Numbers::Source countTo(int count) {
    return [count, next = 0]() mutable {
        return next < count ? std::optional(next++) : std::nullopt;
    };
}

void sleepFor(int milliseconds) {
    std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds));
}

std::vector<int> takeAll(Numbers& work) {
    std::vector<int> results;
    while (const auto result = work.take()) {
        results.push_back(*result);
    }
    return results;
}

TEST(OrderedWork, KeepsTheOrderOfTasksThatTakeDifferentTimes) {
    constexpr int count = 100;
    const auto square = [](int number) {
        sleepFor(number % 7 == 0 ? 3 : 0);
        return number * number;
    };
    Numbers work(countTo(count), square, 8, 16);
    std::vector<int> expected;
    for (int number = 0; number < count; ++number) {
        expected.push_back(number * number);
    }
    EXPECT_EQ(takeAll(work), expected);
}

TEST(OrderedWork, HasNoResultsWithoutTasks) {
    Numbers work(
        countTo(0), [](int number) { return number; }, 4, 8);
    EXPECT_EQ(work.take(), std::nullopt);
    EXPECT_EQ(work.take(), std::nullopt);
}

TEST(OrderedWork, UsesAllThreadsAtATime) {
    std::atomic<int> waiting{0};
    const auto waitForTheOther = [&waiting](int number) {
        ++waiting;
        for (int tries = 0; tries < 5000 && waiting < 2; ++tries) {
            sleepFor(1);
        }
        return waiting >= 2 ? number : -1;
    };
    Numbers work(countTo(2), waitForTheOther, 2, 2);
    EXPECT_THAT(takeAll(work), testing::ElementsAre(0, 1));
}

TEST(OrderedWork, BeginsNoMoreThanTheWindow) {
    constexpr int window = 3;
    std::atomic<int> begun{0};
    int taken = 0;
    const auto work = [&begun](int number) {
        ++begun;
        return number;
    };
    Numbers numbers(countTo(50), work, 8, window);
    do {
        sleepFor(1);  // time to begin too many
        EXPECT_LE(begun, taken + window);
        ++taken;
    } while (numbers.take());
    EXPECT_EQ(begun, 50);
}

TEST(OrderedWork, MovesResults) {
    tool::OrderedWork<int, std::unique_ptr<int>> work(
        countTo(3), [](int number) { return std::make_unique<int>(number); }, 2, 2);
    for (int number = 0; number < 3; ++number) {
        EXPECT_THAT(work.take(), testing::Optional(testing::Pointee(number)));
    }
}

TEST(OrderedWork, PassesOnWhatItsFunctionsThrow) {
    const auto identity = [](int number) {
        return number;
    };
    const auto fail = [](int /*number*/) -> int {
        throw std::runtime_error("work");
    };
    Numbers failingWork(countTo(50), fail, 4, 8);
    EXPECT_THROW(takeAll(failingWork), std::runtime_error);
    Numbers failingSource([]() -> std::optional<int> { throw std::runtime_error("source"); }, identity, 4, 8);
    EXPECT_THROW(takeAll(failingSource), std::runtime_error);
}

TEST(OrderedWork, CanEndBeforeAllIsTaken) {
    std::atomic<int> begun{0};
    const auto count = [&begun](int number) {
        ++begun;
        return number;
    };
    {
        Numbers work(countTo(1000), count, 4, 8);
        EXPECT_EQ(work.take(), 0);
    }
    EXPECT_LE(begun, 1 + 8);
}

}  // namespace
