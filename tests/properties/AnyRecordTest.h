#pragma once

#include <tests/properties/Sample.h>
#include <tests/properties/holds.h>
#include <tests/support/every_record.h>

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <ostream>
#include <set>
#include <string>

namespace lv::test {

/// How GoogleTest shows the parameter of a test.
inline void PrintTo(const SharedRecord& fresh, std::ostream* out) {
    *out << fresh->rootName();
}

/// How many cases are tried, unless RC_PARAMS says it. One of a record that holds many others, or rows of many members,
/// takes as long as ten of the rest.
[[nodiscard]] inline int casesFor(const std::string& rootName) {
    static const std::set<std::string> slow = {CalibrationModeResult::rootElementName,
                                               ColorModeSettings::rootElementName,
                                               MonitorConfiguration::rootElementName, MonitorInfo::rootElementName};
    return slow.count(rootName) != 0 ? 100 : 1000;
}

/// A property of every record, run for each class.
class AnyRecordTest : public testing::TestWithParam<SharedRecord> {
protected:
    /// Fails the test when the property does not hold for this class.
    static void expectHolds(const std::function<void()>& property) {
        test::expectHolds(property, casesFor(GetParam()->rootName()));
    }

    /// A record of this class in any state.
    [[nodiscard]] static SharedRecord anyRecord(Texts texts = Texts::any) {
        return (*samplesOf(GetParam(), texts)).record;
    }

    [[nodiscard]] static std::string compactTextOf(const AnyRecord& record) { return record.text({false, false}); }

    /// A fresh record that has read the text.
    [[nodiscard]] static std::unique_ptr<AnyRecord> parsed(const std::string& text) {
        std::unique_ptr<AnyRecord> record = GetParam()->fresh();
        RC_ASSERT(record->parse(text));
        return record;
    }
};

[[nodiscard]] inline std::string nameOf(const testing::TestParamInfo<SharedRecord>& info) {
    return info.param->rootName();
}

}  // namespace lv::test
