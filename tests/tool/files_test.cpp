#include "OutputTest.h"

namespace {

namespace fs = std::filesystem;

using Files = OutputTest;

TEST_F(Files, OutputGoesIntoANewFile) {
    EXPECT_EQ(formatTo("out.xml"), done());
    EXPECT_EQ(read("out.xml"), tidy);
    EXPECT_EQ(read("in.xml"), untidy);
    EXPECT_TRUE(holdsBesides({"out.xml"}));
}

TEST_F(Files, OutputHasALongOption) {
    EXPECT_EQ(run({"format", "--no-declaration", "--output", "one.xml", "in.xml"}), done());
    EXPECT_EQ(run({"format", "--no-declaration", "--output=two.xml", "in.xml"}), done());
    EXPECT_EQ(read("one.xml"), tidy);
    EXPECT_EQ(read("two.xml"), tidy);
}

TEST_F(Files, OutputMayBeStandardOutput) {
    EXPECT_EQ(formatTo("-"), printed(tidy));
    EXPECT_TRUE(holdsBesides({}));
}

TEST_F(Files, AMissingFolderIsReported) {
    EXPECT_EQ(formatTo("no/out.xml"), failed("no/out.xml: error: No such file or directory"));
    EXPECT_EQ(formatTo("no/"), failed("no/: error: No such file or directory"));
    EXPECT_TRUE(holdsBesides({}));
}

TEST_F(Files, AFolderIsNotReplaced) {
    fs::create_directory(path("folder"));
    EXPECT_EQ(formatTo("folder"), failed("folder: error: Is a directory"));
    EXPECT_EQ(formatTo("folder/"), failed("folder/: error: Is a directory"));
    EXPECT_TRUE(fs::is_empty(path("folder")));
    EXPECT_TRUE(holdsBesides({"folder"}));
}

}  // namespace
