#include "MonitorTest.h"

#include <tests/support/files.h>

namespace {

using testing::HasSubstr;
using testing::StartsWith;

const std::vector<std::string> pictures = {"gamut",      "tone",        "balance", "lut",    "uniformity",
                                           "brightness", "six-colours", "patches", "history"};

using Plot = MonitorTest;

TEST_F(Plot, MakesEachPicture) {
    for (const std::string& picture : pictures) {
        const std::string made = this->made({"plot", picture, studio});
        EXPECT_TRUE(contains(made, "<svg ") && contains(made, "</svg>")) << picture;
        EXPECT_LT(made.size(), 60'000U) << picture;
        EXPECT_TRUE(this->made({"plot", picture, studio, "--jobs", "2"}) == made);
        for (const std::string& other : pictures) {
            EXPECT_EQ(this->made({"plot", other, studio}) == made, other == picture) << picture << ' ' << other;
        }
    }
}

TEST_F(Plot, DrawsDocumentsWithNothingMeasured) {
    for (const std::string& picture : pictures) {
        EXPECT_TRUE(contains(made({"plot", picture, "-"}, {monitor()}), "</svg>")) << picture;
    }
}

TEST_F(Plot, DrawsTheModeThatIsAskedFor) {
    EXPECT_TRUE(made({"plot", "tone", studio, "--mode", "3"}) != made({"plot", "tone", studio}));
    EXPECT_TRUE(made({"plot", "tone", studio, "--mode", "2"}) ==
                made({"plot", "tone", studio}));  // the first calibrated
    EXPECT_EQ(run({"plot", "tone", studio, "--mode", "9"}),
              failed(studio + ": error: no colour mode has the index 9; known indices: 0, 1, 2, 3, 4"));
    EXPECT_EQ(run({"plot", "tone", "-"}, {"<MonitorInfo/>"}), failed("<stdin>: error: there are no colour modes"));
    EXPECT_TRUE(contains(made({"plot", "uniformity", "-"}, {"<MonitorInfo/>"}), "</svg>"));
}

TEST_F(Plot, DrawsTheFirstModeWhenNoneIsCalibrated) {
    const std::string mode = "<ColorMode Type='SyncSignal'><Index>7</Index></ColorMode>";
    EXPECT_TRUE(
        contains(made({"plot", "tone", "-"}, {"<ColorModeSettings>" + mode + "</ColorModeSettings>"}), "</svg>"));
}

TEST_F(Plot, DrawsBothDiagrams) {
    EXPECT_TRUE(made({"plot", "gamut", studio, "--plane", "uv"}) == made({"plot", "gamut", studio}));
    EXPECT_TRUE(made({"plot", "gamut", studio, "--plane", "xy"}) != made({"plot", "gamut", studio}));
    EXPECT_EQ(run({"plot", "gamut", studio, "--plane", "XY"}).exitCode, 2);
}

TEST_F(Plot, DrawsLimitsOnRequest) {
    EXPECT_TRUE(made({"plot", "patches", studio, "--limits", "default"}) != made({"plot", "patches", studio}));
    EXPECT_TRUE(made({"plot", "history", studio, "--limits", "default"}) != made({"plot", "history", studio}));
    EXPECT_EQ(run({"plot", "patches", studio, "--limits", "none"}).exitCode, 2);
}

TEST_F(Plot, HasTheUnitsThatItsUserKnows) {
    const std::string map = made({"plot", "uniformity", studio});
    EXPECT_TRUE(contains(made({"plot", "uniformity", studio, "--map-unit", "my unit"}), "my unit"));
    EXPECT_TRUE(made({"plot", "uniformity", studio, "--grid", "5"}) != map);
    EXPECT_TRUE(contains(made({"plot", "history", "--figure", "white_tristimulus_y", "--y-unit", "my unit", studio}),
                         "my unit"));
}

TEST_F(Plot, DrawsTheHistoryOfAFigure) {
    write("b.xml", monitor({"Wall", "1", "u-1", "2024-05-02T09:31:00"}));
    write("a.xml", monitor({"Wall", "1", "u-1", "2023-05-02T09:31:00"}));
    const std::string history = made({"plot", "history", "a.xml", "b.xml"});
    EXPECT_TRUE(made({"plot", "history", "b.xml", "a.xml"}) == history);
    EXPECT_TRUE(made({"plot", "history", "."}) == history);
    EXPECT_TRUE(made({"plot", "history", ".", "--figure", "white_delta_uv"}) == history);
    EXPECT_TRUE(made({"plot", "history", ".", "--figure", "white_tristimulus_y"}) != history);
    EXPECT_THAT(run({"plot", "history", ".", "--figure", "x"}).error,
                StartsWith("lvdata: error: unknown figure 'x'; known figures: "));
    write("c.xml", monitor({"Wall", "2", "u-2"}));
    EXPECT_EQ(run({"plot", "history", "a.xml", "c.xml"}),
              failed("c.xml: error: is about a different monitor than the documents before it"));
}

TEST_F(Plot, MakesThePicturesOfTheReadme) {
    for (const std::string picture : {"gamut", "tone"}) {
        const std::string file = LVDATA_PICTURES "/" + picture + ".svg";
        EXPECT_TRUE(made({"plot", picture, studio}) == lv::test::contentOf(file))
            << "lvdata plot " << picture << " examples/data/studio.xml -o " << file;
    }
}

TEST_F(Plot, TakesOneDocument) {
    EXPECT_EQ(run({"plot", "gamut", studio, studio}),
              failed("lvdata: error: all pictures but history take one document"));
    EXPECT_EQ(run({"plot", "gamut"}).exitCode, 2);
}

TEST_F(Plot, RefusesOptionsOfOtherPictures) {
    EXPECT_EQ(run({"plot", "tone", studio, "--plane", "xy"}), failed("lvdata: error: --plane is for gamut only"));
    EXPECT_EQ(run({"plot", "tone", studio, "--figure", "x"}), failed("lvdata: error: --figure is for history only"));
    EXPECT_EQ(run({"plot", "tone", studio, "--limits", "default"}),
              failed("lvdata: error: --limits is for patches and history only"));
    EXPECT_EQ(run({"plot", "brightness", studio, "--mode", "2"}),
              failed("lvdata: error: --mode is not for maps: a map does not belong to a colour mode"));
    EXPECT_THAT(run({"plot", "gamuts", studio}).error, HasSubstr("'gamuts' is not one of gamut|tone|"));
    EXPECT_EQ(run({"plot"}).exitCode, 2);
}

TEST_F(Plot, RefusesWhatIsNotOfAMonitor) {
    write("in.xml", "<AssetInfo/>");
    EXPECT_EQ(run({"plot", "gamut", "in.xml", "-o", "out.svg"}),
              failed("in.xml: error: a document of AssetInfo does not describe a monitor"));
    EXPECT_EQ(run({"plot", "gamut", "none.xml", "-o", "out.svg"}),
              failed("none.xml: error: No such file or directory"));
    EXPECT_EQ(names(), Arguments{"in.xml"});
}

TEST_F(Plot, WritesIntoAFile) {
    EXPECT_EQ(run({"plot", "gamut", studio, "-o", "out.svg"}), done());
    EXPECT_EQ(read("out.svg"), made({"plot", "gamut", studio}));
    EXPECT_EQ(names(), Arguments{"out.svg"});
    EXPECT_EQ(run({"plot", "gamut", studio, "-o", "."}), failed(".: error: Is a directory"));
    write("in.xml", monitor());
    EXPECT_EQ(run({"plot", "gamut", "in.xml", "-o", "in.xml"}),
              failed("in.xml: error: not overwritten, since it is one of the inputs"));
    EXPECT_EQ(read("in.xml"), monitor());
}

}  // namespace
