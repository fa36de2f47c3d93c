#include "ToolTest.h"

#include <lvdata/analysis/files/Descriptor.h>
#include <tools/lvdata/Output.h>

namespace {

/// A file in place of standard output.
class OutputToFile : public ToolTest {
protected:
    [[nodiscard]] int writer() const { return writer_.get(); }

    /// What was written since the last time.
    [[nodiscard]] std::string written() {
        const std::string text = read("written").substr(seen_);
        seen_ += text.size();
        return text;
    }

private:
    lv::analysis::Descriptor writer_{makeFile(path("written"))};
    std::size_t seen_ = 0;
};

TEST_F(OutputToFile, KeepsTextUntilItIsFlushed) {
    tool::Output output(writer());
    output.write("one");
    output.write(" two");
    EXPECT_EQ(written(), "");
    output.flush();
    EXPECT_EQ(written(), "one two");
}

TEST_F(OutputToFile, WritesWhatIsLeftAtTheEnd) {
    {
        tool::Output output(writer());
        output.write("one");
    }
    EXPECT_EQ(written(), "one");
}

TEST_F(OutputToFile, WritesLargeText) {
    tool::Output output(writer());
    output.write(std::string(65536, 'x'));
    EXPECT_EQ(written(), std::string(65536, 'x'));
}

TEST_F(OutputToFile, CallsBackBeforeItWrites) {
    tool::Output output(writer());
    std::string before = "nothing";
    output.callBeforeWriting([this, &before] { before = "before: " + written(); });
    output.flush();
    EXPECT_EQ(before, "nothing");  // there was nothing to write
    output.write("one");
    output.flush();
    EXPECT_EQ(before, "before: ");
    output.callBeforeWriting({});
    output.write(" two");
    output.flush();
    EXPECT_EQ(written(), "one two");
}

TEST_F(OutputToFile, IsWrittenBeforeAMessage) {
    tool::Output output(writer());
    std::string before = "nothing";
    output.callBeforeMessages([this, &before] { before = written(); });
    output.write("one");
    output.prepareForMessage();
    EXPECT_EQ(before, "one");
}

}  // namespace
