#include <lvdata/core/ParsedDocument.h>
#include <lvdata/records/EveryRecord.h>
#include <lvdata/records/RecordClass.h>

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

namespace lv {
namespace {

template <class... Records>
std::vector<std::string> namesOf(RecordTypes<Records...> /*list*/) {
    return {Records::rootElementName...};
}

std::vector<std::string> names() {
    std::vector<std::string> names;
    for (const RecordClass& each : RecordClasses()) {
        names.emplace_back(each.name);
    }
    return names;
}

TEST(RecordClasses, AreTheRecordTypesInTheOrderOfTheirNames) {
    EXPECT_EQ(names(), namesOf(EveryRecord()));
    EXPECT_EQ(RecordClasses().size(), names().size());
    const std::vector<std::string> all = names();
    EXPECT_TRUE(std::is_sorted(all.begin(), all.end()));
    EXPECT_EQ(std::adjacent_find(all.begin(), all.end()), all.end());
}

TEST(RecordClasses, AreFoundByNameComparedExactly) {
    for (const RecordClass& each : RecordClasses()) {
        EXPECT_EQ(recordClass(each.name), &each);
    }
    for (const std::string_view name : {"", "monitorInfo", "MonitorInfo ", "Monitor", "MonitorInfoX"}) {
        EXPECT_EQ(recordClass(name), nullptr) << name;
    }
}

TEST(RecordClasses, MakeFreshRecordsThatReadTheirRootElement) {
    for (const RecordClass& each : RecordClasses()) {
        const std::string text = std::string("<") + each.name + " Version=\"9\"/>";
        ParsedDocument document(text);
        const auto record = each.make();
        EXPECT_FALSE(record->version.hasValue);
        EXPECT_TRUE(document.read(*record)) << each.name;
        EXPECT_EQ(record->version.value, 9U);
        EXPECT_NE(each.make()->version.value, 9U);
    }
}

TEST(RecordClasses, DescribeTheirRootElement) {
    for (const RecordClass& each : RecordClasses()) {
        EXPECT_EQ(each.describe().name, each.name);
        EXPECT_EQ(each.describe().record, each.name);
    }
}

}  // namespace
}  // namespace lv
