#include <gtest/gtest.h>

#include <cstdlib>
#include <locale>
#include <sstream>
#include <stdexcept>
#include <string>

// Part of every test program: runs the tests under the global locale that LVDATA_TEST_LOCALE names, "grouping" for one
// that groups digits in pairs, anything else as the system knows it. No test passes under a locale that is missing.

namespace lv::test {
namespace {

class GroupingDigits : public std::numpunct<char> {
    [[nodiscard]] char do_decimal_point() const override { return ';'; }
    [[nodiscard]] char do_thousands_sep() const override { return '\''; }
    [[nodiscard]] std::string do_grouping() const override { return "\2"; }
};

std::locale localeNamed(const std::string& name) {
    if (name == "grouping") {
        return {std::locale::classic(), new GroupingDigits};
    }
    return std::locale(name);
}

/// A number as whoever asks no further prints it.
std::string printed(double number) {
    std::ostringstream stream;
    stream << number;
    return stream.str();
}

class GlobalLocale : public ::testing::Environment {
public:
    explicit GlobalLocale(std::string name) : name_(std::move(name)) {}

    void SetUp() override {
        try {
            std::locale::global(localeNamed(name_));
        } catch (const std::runtime_error& error) {
            FAIL() << "no locale " << name_ << ": " << error.what();
        }
        ASSERT_NE(printed(12345.5), "12345.5") << name_ << " prints numbers as the classic locale does";
    }

private:
    std::string name_;
};

[[maybe_unused]] const auto* const environment = [] {
    const char* const name = std::getenv("LVDATA_TEST_LOCALE");
    return name == nullptr ? nullptr : ::testing::AddGlobalTestEnvironment(new GlobalLocale(name));
}();

}  // namespace
}  // namespace lv::test
