#include "ToolTest.h"

namespace {

/// Runs the command of the tests over documents in a folder "in".
class ManyDocuments : public ToolTest {
protected:
    ManyDocuments() {
        std::filesystem::create_directories(path("in/deep"));
        write("in/a.xml", "1");
        write("in/deep/b.xml", "22");
        write("in/z.xml", "333");
    }

    [[nodiscard]] Outcome size(std::vector<std::string> arguments, const Surroundings& around = {}) const {
        arguments.insert(arguments.begin(), "size");
        return runProgram(LVDATA_PROBE, arguments, around);
    }
};

constexpr const char* sizes = "in/a.xml 1\nin/deep/b.xml 2\nin/z.xml 3\n";

TEST_F(ManyDocuments, AreFoundInFolders) {
    EXPECT_EQ(size({"in"}), printed(sizes));
    EXPECT_EQ(size({"in", "-j1"}), printed(sizes));
}

TEST_F(ManyDocuments, ComeFromStandardInputToo) {
    EXPECT_EQ(size({"in/z.xml", "-"}, {"4444"}), printed("in/z.xml 3\n<stdin> 4\n"));
}

TEST_F(ManyDocuments, CanBeNamedOnStandardInput) {
    const std::string listed = "in/z.xml\nin/deep\n";
    EXPECT_EQ(size({"--files-from", "-"}, {listed}), printed("in/z.xml 3\nin/deep/b.xml 2\n"));
    EXPECT_EQ(size({"-0", "--files-from=-"}, {std::string("in/z.xml\0in/a.xml", 17)}),
              printed("in/z.xml 3\nin/a.xml 1\n"));
}

TEST_F(ManyDocuments, SetTheExitStatus) {
    write("in/m.xml", "");
    EXPECT_EQ(size({"in/m.xml", "in/a.xml"}), (Outcome{1, "in/m.xml 0\nin/a.xml 1\n", ""}));
    EXPECT_EQ(size({"in/m.xml", "no.xml", "in/a.xml"}),
              (Outcome{2, "in/m.xml 0\nin/a.xml 1\n", "no.xml: error: No such file or directory\n"}));
}

TEST_F(ManyDocuments, AreColoredOnRequest) {
    EXPECT_EQ(size({"in/a.xml", "--color=always"}), printed("\x1b[36min/a.xml\x1b[0m 1\n"));
    EXPECT_EQ(size({"in/a.xml", "--color", "auto"}), printed("in/a.xml 1\n"));
}

}  // namespace
