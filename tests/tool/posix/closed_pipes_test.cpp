#include "PosixTest.h"

#include <lvdata/analysis/files/Descriptor.h>
#include <tools/lvdata/Output.h>

#include <array>
#include <csignal>

#include <fcntl.h>
#include <unistd.h>

// The reader of standard output ends first.

namespace {

TEST(OutputToAClosedPipe, ReportsThatTheReaderIsGone) {
    const auto before = std::signal(SIGPIPE, SIG_IGN);
    std::array<int, 2> ends{};
    lv::analysis::checked(::pipe2(ends.data(), 0));
    const lv::analysis::Descriptor writer(ends[1]);
    lv::analysis::Descriptor(ends[0]).close();
    tool::Output output(writer.get());
    output.write("one");
    EXPECT_THROW(output.flush(), tool::ClosedPipe);
    EXPECT_NO_THROW(output.flush());
    static_cast<void>(std::signal(SIGPIPE, before));
}

/// Makes standard output a pipe that nobody reads.
bool closePipe() {
    std::array<int, 2> ends{};
    return ::pipe2(ends.data(), 0) == 0 && ::dup2(ends[1], STDOUT_FILENO) >= 0 && ::close(ends[0]) == 0;
}

bool closePipeAndIgnoreSignal() {
    return closePipe() && std::signal(SIGPIPE, SIG_IGN) != SIG_ERR;
}

using ClosedPipe = PosixTest;

TEST_F(ClosedPipe, EndsTheToolQuietly) {
    write("a.xml", "<AssetInfo/>");
    const std::vector<std::vector<std::string>> commands{{"format", "a.xml"}, {"--help"}, {"--version"}};
    for (const auto& command : commands) {
        for (const auto& prepare : {closePipe, closePipeAndIgnoreSignal}) {
            EXPECT_EQ(run(command, {"", "", prepare}), (Outcome{128 + SIGPIPE, "", ""}));
        }
    }
}

TEST_F(ClosedPipe, EndsABatchQuietly) {
    write("in.xml", "1");
    const Outcome outcome = runBash("printf 'in.xml\\n%.0s' {1..20000} >list\n" LVDATA_PROBE
                                    " size --files-from list | head -n 1; echo ${PIPESTATUS[0]}");
    EXPECT_EQ(outcome, printed("in.xml 1\n141\n"));
}

}  // namespace
