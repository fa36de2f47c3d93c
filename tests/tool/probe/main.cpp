#include <tools/lvdata/CommandLine.h>
#include <tools/lvdata/Palette.h>
#include <tools/lvdata/batch.h>
#include <tools/lvdata/files.h>
#include <tools/lvdata/run_command.h>

#include <chrono>
#include <memory>
#include <string>
#include <thread>

// A command with one subcommand, "size", which prints the sizes of documents. It is not installed: tests see with it
// how the options, the batch and the exit status work together.

namespace {

struct SizeOptions {
    tool::BatchOptions batch;
    tool::ColorChoice color = tool::ColorChoice::automatic;
    int milliseconds = 0;  // for each document
};

struct Size {
    std::string file;
    std::size_t bytes;
};

tool::ExitStatus printSizes(const SizeOptions& options) {
    tool::Output output;
    const tool::Palette palette(options.color);
    const auto measure = [&options](const tool::Input& input) {
        std::this_thread::sleep_for(std::chrono::milliseconds(options.milliseconds));
        return Size{tool::inputName(input.file), tool::readInput(input.file, 1000).size()};
    };
    const auto print = [&](Size&& size) {
        output.write(palette.paint(tool::Style::name, size.file) + ' ' + std::to_string(size.bytes) + '\n');
        return size.bytes == 0 ? tool::ExitStatus::found : tool::ExitStatus::done;
    };
    return tool::forEachInput(options.batch, output, measure, print);
}

tool::Subcommand addSize(CLI::App& application) {
    CLI::App* const command =
        application.add_subcommand("size", "Print the sizes of documents; empty ones are findings");
    const auto options = std::make_shared<SizeOptions>();
    tool::addBatchOptions(*command, options->batch);
    tool::addColorOption(*command, options->color);
    command->add_option("--wait", options->milliseconds, "Wait this many milliseconds for each document");
    return {command, [options] {
                return printSizes(*options);
            }};
}

}  // namespace

int main(int argumentCount, char** arguments) {
    return tool::runCommand([=] { return tool::CommandLine({addSize}).run(argumentCount, arguments); });
}
