#pragma once

#include <tests/properties/Sample.h>
#include <tests/properties/holds.h>
#include <tests/support/round_trip.h>

#include <gtest/gtest.h>

#include <memory>
#include <ostream>
#include <string>

namespace lv::test {

/// How GoogleTest shows the parameter of a test.
inline void PrintTo(const SharedRecord& fresh, std::ostream* out) {
    *out << fresh->rootName();
}

/// A property of every record, run for each class.
class AnyRecordTest : public testing::TestWithParam<SharedRecord> {
protected:
    /// A record of this class in any state.
    [[nodiscard]] static SharedRecord anyRecord(Texts texts = Texts::any) {
        return (*samplesOf(GetParam(), texts)).record;
    }

    [[nodiscard]] static std::string compactTextOf(const AnyRecord& record) { return record.text(false, false); }

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
