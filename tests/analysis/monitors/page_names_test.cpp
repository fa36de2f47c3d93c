#include <lvdata/analysis/monitors/page_names.h>

#include <string>
#include <vector>

#include <gmock/gmock.h>

namespace {

using lv::analysis::MonitorDocument;
using lv::analysis::MonitorDocuments;
using lv::analysis::pageNames;
using testing::ElementsAre;

MonitorDocuments monitor(const std::string& name, const std::string& serial, const std::string& uuid = "") {
    MonitorDocument document;
    document.snapshot.figures.name = name;
    document.snapshot.figures.serial = serial;
    document.snapshot.figures.uuid = uuid;
    return {document};
}

}  // namespace

TEST(PageNames, AreSafeAndDifferent) {
    EXPECT_THAT(pageNames({monitor("Wall, left", "17"), monitor("../Desk", ""), monitor("", "", "u"), monitor("", "")}),
                ElementsAre("Wall-left-17.html", "Desk.html", "u.html", "monitor.html"));
    EXPECT_THAT(pageNames({monitor("A", "1", "x"), monitor("a", "1", "y"), monitor("index", "")}),
                ElementsAre("A-1-x.html", "a-1-y.html", "index-2.html"));
}
