#include <tests/properties/holds.h>
#include <tests/support/lines.h>

#include <gtest/gtest.h>

#include <cstdlib>
#include <set>
#include <sstream>
#include <vector>

#include <rapidcheck.h>

namespace lv::test {
namespace {

/// The lines of one text that are not in the other, in their order.
std::string linesOnlyIn(const std::string& text, const std::string& other) {
    const std::vector<std::string> lines = linesOf(other);
    const std::set<std::string> present(lines.begin(), lines.end());
    std::string only;
    for (const std::string& line : linesOf(text)) {
        only += present.count(line) == 0 ? "  " + line + '\n' : "";
    }
    return only;
}

/// What RC_PARAMS says, and so many cases when it does not say how many.
rc::detail::TestParams paramsWith(int cases) {
    rc::detail::Configuration configuration = rc::detail::configuration();
    configuration.testParams.maxSuccess = cases;
    const char* const set = std::getenv("RC_PARAMS");
    return rc::detail::configFromString(set != nullptr ? set : "", configuration).testParams;
}

}  // namespace

void expectHolds(const std::function<void()>& property, int cases) {
    const auto* const test = testing::UnitTest::GetInstance()->current_test_info();
    const std::string name = std::string(test->test_suite_name()) + '.' + test->name();
    const auto result = rc::detail::checkTestable(property, rc::detail::TestMetadata{name, name}, paramsWith(cases));
    std::ostringstream message;
    rc::detail::printResultMessage(result, message);
    EXPECT_TRUE(result.is<rc::detail::SuccessResult>()) << message.str();
}

void requireEqual(const std::string& actual, const std::string& expected) {
    if (actual != expected) {
        RC_FAIL("expected:\n" + linesOnlyIn(expected, actual) + "found:\n" + linesOnlyIn(actual, expected));
    }
}

void requireAllLinesDiffer(const std::string& actual, const std::string& other) {
    const std::vector<std::string> lines = linesOf(other);
    const std::set<std::string> present(lines.begin(), lines.end());
    for (const std::string& line : linesOf(actual)) {
        if (present.count(line) != 0) {
            RC_FAIL("not changed: " + line);
        }
    }
}

}  // namespace lv::test
