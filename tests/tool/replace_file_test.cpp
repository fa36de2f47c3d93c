#include "OutputTest.h"

namespace {

namespace fs = std::filesystem;

using ReplaceFile = OutputTest;

TEST_F(ReplaceFile, OutputReplacesALongerFileCompletely) {
    write("out.xml", large());
    EXPECT_EQ(formatTo("out.xml"), done());
    EXPECT_EQ(read("out.xml"), tidy);
    EXPECT_TRUE(holdsBesides({"out.xml"}));
}

TEST_F(ReplaceFile, OutputIntoAnotherFolderLeavesNothingElse) {
    fs::create_directory(path("folder"));
    EXPECT_EQ(formatTo("folder/out.xml"), done());
    EXPECT_EQ(formatTo(pathText("folder/absolute.xml")), done());
    EXPECT_EQ(read("folder/out.xml"), tidy);
    EXPECT_EQ(read("folder/absolute.xml"), tidy);
    EXPECT_EQ(std::distance(fs::directory_iterator(path("folder")), {}), 2);
    EXPECT_TRUE(holdsBesides({"folder"}));
}

TEST_F(ReplaceFile, InPlaceFormattingRepeatsWithoutChange) {
    EXPECT_EQ(formatTo("in.xml"), done());
    EXPECT_EQ(read("in.xml"), tidy);
    EXPECT_EQ(formatTo("in.xml"), done());
    EXPECT_EQ(read("in.xml"), tidy);
    EXPECT_TRUE(holdsBesides({}));
}

TEST_F(ReplaceFile, ReplacingIsOneStep) {
    write("out.xml", "old");
    fs::create_hard_link(path("out.xml"), path("witness"));
    EXPECT_EQ(formatTo("out.xml"), done());
    EXPECT_EQ(read("witness"), "old") << "the old file was written into";
    EXPECT_EQ(read("out.xml"), tidy);
}

TEST_F(ReplaceFile, ABadInputKeepsTheOldFile) {
    write("out.xml", "old");
    for (const std::string input : {"broken.xml", "missing.xml", "."}) {
        EXPECT_EQ(run({"format", input, "-o", "out.xml"}).exitCode, 2);
        EXPECT_EQ(read("out.xml"), "old");
    }
    EXPECT_TRUE(holdsBesides({"out.xml"}));
}

TEST_F(ReplaceFile, ABadInputMakesNoNewFile) {
    EXPECT_EQ(run({"format", "broken.xml", "-o", "out.xml"}).exitCode, 2);
    EXPECT_EQ(run({"format", "broken.xml", "-o", "broken.xml"}).exitCode, 2);
    EXPECT_EQ(read("broken.xml"), "<AssetInfo>");
    EXPECT_TRUE(holdsBesides({}));
}

}  // namespace
