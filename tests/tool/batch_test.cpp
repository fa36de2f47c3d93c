#include "ToolTest.h"

#include <lvdata/analysis/files/Descriptor.h>
#include <tools/lvdata/Failure.h>
#include <tools/lvdata/batch.h>
#include <tools/lvdata/files.h>

#include <cerrno>
#include <chrono>
#include <mutex>
#include <new>
#include <set>
#include <system_error>
#include <thread>

#include <gmock/gmock.h>

namespace {

using tool::ExitStatus;
using tool::Input;

/// What a batch came to.
struct Batch {
    ExitStatus status;
    std::string output;
    std::string error;
};

/// Runs batches over files of the test's folder. The result of an input is its content.
class BatchTest : public ToolTest, public testing::WithParamInterface<int> {
protected:
    using Work = std::function<std::string(const Input&)>;
    using Deliver = std::function<ExitStatus(std::string&&, tool::Output&)>;

    static std::string read(const Input& input) { return tool::readInput(input.file, 1000); }

    static ExitStatus print(std::string&& text, tool::Output& output) {
        output.write(text + '\n');
        return text == "found" ? ExitStatus::found : ExitStatus::done;
    }

    [[nodiscard]] Batch run(const tool::InputOptions& inputs, const Work& work = read,
                            const Deliver& deliver = print) const {
        Batch batch{};
        testing::internal::CaptureStderr();
        {
            const lv::analysis::Descriptor file(makeFile(path("output")));
            tool::Output output(file.get());
            batch.status = tool::runBatch(inputs, static_cast<std::size_t>(GetParam()), output,
                                          [&](const Input& input) -> tool::Delivery {
                                              return [&, text = work(input)]() mutable {
                                                  return deliver(std::move(text), output);
                                              };
                                          });
        }
        batch.output = ToolTest::read("output");
        batch.error = testing::internal::GetCapturedStderr();
        return batch;
    }

    [[nodiscard]] Batch run(const std::vector<std::string>& names, const Work& work = read) const {
        tool::InputOptions inputs;
        for (const std::string& name : names) {
            inputs.paths.push_back(pathText(name));
        }
        return run(inputs, work);
    }
};

TEST_P(BatchTest, DeliversInTheOrderOfInputs) {
    std::filesystem::create_directory(path("in"));
    std::string expected;
    for (int number = 100; number < 400; ++number) {
        write("in/" + std::to_string(number) + ".xml", std::to_string(number));
        expected += std::to_string(number) + '\n';
    }
    const Batch batch = run({"in"});
    EXPECT_EQ(batch.output, expected);
    EXPECT_EQ(batch.error, "");
    EXPECT_EQ(batch.status, ExitStatus::done);
}

TEST_P(BatchTest, RemembersTheWorstStatus) {
    write("a", "done");
    write("b", "found");
    EXPECT_EQ(run({"a"}).status, ExitStatus::done);
    EXPECT_EQ(run({"a", "b", "a"}).status, ExitStatus::found);
    EXPECT_EQ(run({"missing", "b", "a"}).status, ExitStatus::failed);
}

TEST_P(BatchTest, GoesOnAfterInputsThatFail) {
    write("a", "one");
    write("b", "two");
    std::filesystem::create_directory(path("empty"));
    const Batch batch = run({"missing", "a", "empty", "b"});
    EXPECT_EQ(batch.output, "one\ntwo\n");
    EXPECT_EQ(batch.error, pathText("missing") + ": error: " + std::generic_category().message(ENOENT) + '\n' +
                               pathText("empty") + ": error: no files named *.xml in this folder\n");
    EXPECT_EQ(batch.status, ExitStatus::failed);
}

TEST_P(BatchTest, NamesTheInputInEveryMessage) {
    const auto fail = [](const Input& input) -> std::string {
        if (input.file == "-") {
            throw std::bad_alloc();
        }
        throw std::runtime_error("broken\n");
    };
    EXPECT_EQ(run({{"a", "-"}, {}, false}, fail).error, "a: error: broken\\x0A\n<stdin>: error: out of memory\n");
}

TEST_P(BatchTest, PrintsMessagesInTheOrderOfInputs) {
    write("a", "one");
    const auto printToBoth = [](std::string&& /*text*/, tool::Output& /*output*/) {
        std::cerr << "delivered\n";
        return ExitStatus::done;
    };
    const Batch batch = run({{pathText("x"), pathText("a"), pathText("y")}, {}, false}, read, printToBoth);
    const std::string missing = ": error: " + std::generic_category().message(ENOENT) + '\n';
    EXPECT_EQ(batch.error, pathText("x") + missing + "delivered\n" + pathText("y") + missing);
}

TEST_P(BatchTest, EndsWhenAResultCannotBeDelivered) {
    write("a", "one");
    int delivered = 0;
    const auto refuse = [&delivered](std::string&& /*text*/, tool::Output& /*output*/) -> ExitStatus {
        ++delivered;
        throw tool::ClosedPipe();
    };
    const std::vector<std::string> many(200, pathText("a"));
    EXPECT_THROW(static_cast<void>(run({many, {}, false}, read, refuse)), tool::ClosedPipe);
    EXPECT_EQ(delivered, 1);
    testing::internal::GetCapturedStderr();
}

TEST_P(BatchTest, DeliversOnTheCallingThread) {
    write("a", "one");
    std::set<std::thread::id> delivering;
    const auto note = [&delivering](std::string&& /*text*/, tool::Output& /*output*/) {
        delivering.insert(std::this_thread::get_id());
        return ExitStatus::done;
    };
    EXPECT_EQ(run({std::vector<std::string>(50, pathText("a")), {}, false}, read, note).status, ExitStatus::done);
    EXPECT_THAT(delivering, testing::ElementsAre(std::this_thread::get_id()));
}

TEST_P(BatchTest, WorksOnTheCallingThreadForOneJobOnly) {
    write("a", "one");
    std::mutex mutex;
    std::set<std::thread::id> working;
    const auto note = [&](const Input& /*input*/) {
        const std::lock_guard lock(mutex);
        working.insert(std::this_thread::get_id());
        return std::string();
    };
    EXPECT_EQ(run(std::vector<std::string>(50, "a"), note).status, ExitStatus::done);
    EXPECT_EQ(working.count(std::this_thread::get_id()), GetParam() == 1 ? 1 : 0);
}

INSTANTIATE_TEST_SUITE_P(Jobs, BatchTest, testing::Values(1, 2, 8));

TEST(Batch, UsesNoMoreThreadsThanProcessors) {
    tool::Output output;
    std::mutex mutex;
    std::set<std::thread::id> threads;
    const auto note = [&](const Input& /*input*/) {
        std::this_thread::sleep_for(std::chrono::milliseconds(2));  // time for each thread to get something
        const std::lock_guard lock(mutex);
        threads.insert(std::this_thread::get_id());
        return 0;
    };
    const auto deliver = [](int&& /*result*/) {
        return ExitStatus::done;
    };
    const std::vector<std::string> many(8 * tool::processorCount(), "a");
    EXPECT_EQ(tool::forEachInput({{many, {}, false}, 100}, output, note, deliver), ExitStatus::done);
    EXPECT_LE(threads.size(), tool::processorCount());
}

TEST(Batch, MovesResultsThatCannotBeCopied) {
    tool::Output output;
    const auto work = [](const Input& input) {
        return std::make_unique<std::string>(input.file);
    };
    std::string delivered;
    const auto deliver = [&delivered](std::unique_ptr<std::string>&& name) {
        delivered += *name;
        return ExitStatus::found;
    };
    EXPECT_EQ(tool::forEachInput({{{"a", "b"}, {}, false}, 4}, output, work, deliver), ExitStatus::found);
    EXPECT_EQ(delivered, "ab");
}

}  // namespace
