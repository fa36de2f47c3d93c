#include "HTMLPage.h"
#include "report_pages.h"

#include <lvdata/analysis/utf8.h>

#include <gmock/gmock.h>

#include <nlohmann/json.hpp>

#include <string>

// Names that are markup, too long, or not text.
namespace {

using lv::test::HTMLPage;
using lv::test::monitorNamed;
using lv::test::pageOf;
using testing::Each;
using testing::HasSubstr;
using testing::IsEmpty;

constexpr const char* evil = "\"'></title></script></svg><script>alert(1)</script><!--<img src=x onerror=alert(2)>";

const std::string& evilPage() {
    static const std::string page = pageOf(monitorNamed(evil));
    return page;
}

std::string scriptsOf(const HTMLPage& page) {
    return page.text("//script[not(@type)]");
}

}  // namespace

TEST(ReportOfEvilNames, HasNoElementsFromNames) {
    const HTMLPage page(evilPage());
    EXPECT_EQ(page.count("//script"), 2U);
    EXPECT_EQ(page.count("//img"), 0U);
    EXPECT_THAT(page.texts("//@onerror"), IsEmpty());
    EXPECT_EQ(scriptsOf(page), scriptsOf(HTMLPage(pageOf(lv::MonitorInfo()))));
}

TEST(ReportOfEvilNames, ShowsNamesUnchanged) {
    const HTMLPage page(evilPage());
    EXPECT_EQ(page.texts("//h1").front(), std::string(evil).substr(0, 120));
    const auto data = nlohmann::json::parse(page.text("//script[@id='data']"));
    EXPECT_EQ(data.at("monitor_info").at("uuid"), evil);
}

TEST(ReportOfEvilNames, HasNoMarkupFromNamesAnywhere) {
    for (const char* const markup : {"<script>alert", "<img", "<!--", "</svg><script"}) {
        EXPECT_EQ(evilPage().find(markup), std::string::npos) << markup;
    }
}

TEST(ReportOfLongNames, ShortensThemAndHasThemInFull) {
    const std::string name(10000, 'W');
    const HTMLPage page(pageOf(monitorNamed(name)));
    EXPECT_LT(page.text("//h1").size(), 200U);
    EXPECT_EQ(page.texts("//section[@class='mode']/h2").front(), std::string(80, 'W') + "…");
    EXPECT_EQ(page.texts("//header//dd//summary").front(), std::string(80, 'W') + "…");
    EXPECT_THAT(page.texts("//header//dd//details"), Each(HasSubstr(name)));
}

TEST(ReportOfLongNames, CutsNoCharacterInTwo) {
    std::string name;
    for (int count = 0; count < 200; ++count) {
        name += "ü";
    }
    EXPECT_TRUE(lv::analysis::isUTF8(pageOf(monitorNamed(name))));
}

TEST(ReportOfBytesThatAreNotUTF8, IsUTF8) {
    lv::analysis::ReportedDocument document = lv::test::reportedDocument(lv::test::studioMonitor(), "st\xFF.xml");
    document.snapshot.figures.name = "Wall \xC3";
    document.snapshot.figures.modes.at(2).name = "\xE2\x82";
    document.json = "";
    const std::string page = pageOf(document);
    EXPECT_TRUE(lv::analysis::isUTF8(page));
    EXPECT_EQ(HTMLPage(page).text("//h1"), "Wall \uFFFD");
    EXPECT_EQ(HTMLPage(page).text("//script[@id='data']"), "null");
}
