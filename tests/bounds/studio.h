#pragma once

#include <tests/support/describe.h>

#include <lvdata/records/MonitorInfo.h>

#include <fstream>
#include <iterator>
#include <string>

#include <gtest/gtest.h>

namespace lv::test {

/// The sample document of a whole monitor.
[[nodiscard]] inline std::string studioDocument() {
    std::ifstream file(LVDATA_STUDIO_DOCUMENT, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

/// Parses a document of MonitorInfo cut off at each `step`-th length, and at each of the last 100, into a record that
/// holds something. What ends before the root element does is refused, and the record stays as it was; the rest says
/// what the whole document says.
inline void expectPrefixesAreHarmless(const std::string& document, std::size_t step) {
    const std::string end = "</MonitorInfo>";
    ASSERT_NE(document.find(end), std::string::npos);
    const std::size_t complete = document.find(end) + end.size();

    MonitorInfo record;
    record.uuid.set("before");
    record.correlationInfo.value.correlationDate.set("before");
    const std::string before = describe(record);
    MonitorInfo whole = record;
    ASSERT_TRUE(whole.parseXMLString(document));

    for (std::size_t length = 0; length <= document.size(); length += length + 100 < complete ? step : 1) {
        const bool accepted = record.parseXMLString(document.substr(0, length));
        ASSERT_EQ(accepted, length >= complete) << length;
        ASSERT_EQ(describe(record), accepted ? describe(whole) : before) << length;
    }
}

}  // namespace lv::test
