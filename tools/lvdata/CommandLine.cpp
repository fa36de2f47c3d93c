#include "CommandLine.h"

#include "Failure.h"
#include "Output.h"
#include "format.h"
#include "schema.h"

#include <lvdata/version.h>

#include <algorithm>
#include <array>
#include <sstream>
#include <string>

namespace tool {
namespace {

/// Every subcommand, in the order of the help.
constexpr std::array subcommandAdders{addFormat, addSchema};

/// What `--help` and `--version` ask for arrives as an error of code 0.
void printRequested(const CLI::App& application, const CLI::ParseError& request) {
    std::ostringstream text;
    application.exit(request, text, text);
    Output output;
    output.write(text.str());
    output.flush();
}

std::string reasonOf(const CLI::App& application, const CLI::ParseError& error) {
    const std::vector<std::string> unknown = application.remaining();
    return unknown.empty() ? error.what() : "unknown subcommand or option: " + unknown.front();
}

}  // namespace

CommandLine::CommandLine()
    : application_("Works on XML documents with the records of a monitor-calibration application.", program) {
    application_.set_version_flag("--version", std::string(program) + " " + lv::versionText, "Print the version");
    application_.set_help_flag("-h,--help", "Print this help");
    application_.require_subcommand(1);
    for (const auto& add : subcommandAdders) {
        subcommands_.push_back(add(application_));
    }
}

ExitStatus CommandLine::run(int argumentCount, char** arguments) {
    try {
        application_.parse(argumentCount, arguments);
    } catch (const CLI::ParseError& error) {
        if (error.get_exit_code() != 0) {
            throw Failure(program, reasonOf(application_, error));
        }
        printRequested(application_, error);
        return ExitStatus::done;
    }
    return std::find_if(subcommands_.begin(), subcommands_.end(),
                        [](const Subcommand& each) { return each.parser->parsed(); })
        ->run();
}

}  // namespace tool
