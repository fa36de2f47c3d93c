#include <lvdata/analysis/monitors/Fleet.h>

#include <string>
#include <utility>
#include <vector>

#include <gmock/gmock.h>

namespace {

using lv::analysis::Fleet;
using lv::analysis::MonitorDocument;
using testing::ElementsAre;
using Files = std::vector<std::string>;

MonitorDocument documentOf(const std::string& file, const std::string& identity, const std::string& when,
                           const std::string& name = "") {
    MonitorDocument document;
    document.file = file;
    document.identity = identity;
    document.snapshot.when = when;
    document.snapshot.figures.name = name;
    return document;
}

std::vector<Files> filesOf(std::vector<MonitorDocument> documents) {
    Fleet fleet;
    for (MonitorDocument& document : documents) {
        fleet.add(std::move(document));
    }
    std::vector<Files> result;
    for (const auto& monitor : fleet.take()) {
        Files& files = result.emplace_back();
        for (const MonitorDocument& document : monitor) {
            files.push_back(document.file);
        }
    }
    EXPECT_EQ(fleet.size(), 0);
    return result;
}

}  // namespace

TEST(Fleet, PutsTheDocumentsOfAMonitorInTheOrderOfTime) {
    EXPECT_THAT(filesOf({documentOf("1", "a", "2024-02-01"), documentOf("2", "b", "2024-01-01"),
                         documentOf("3", "a", "2023-12-31")}),
                ElementsAre(Files{"3", "1"}, Files{"2"}));
}

TEST(Fleet, SortsMonitorsByName) {
    EXPECT_THAT(filesOf({documentOf("1", "a", "", "Wall"), documentOf("2", "b", "", "Desk")}),
                ElementsAre(Files{"2"}, Files{"1"}));
}

TEST(Fleet, TreatsEachDocumentWithoutAMonitorAsItsOwnMonitor) {
    EXPECT_THAT(filesOf({documentOf("1", "", ""), documentOf("2", "", "")}), ElementsAre(Files{"1"}, Files{"2"}));
}
