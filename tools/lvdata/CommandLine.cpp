#include "CommandLine.h"

#include "Failure.h"
#include "Output.h"
#include "system.h"

#include <lvdata/version.h>

#include <algorithm>
#include <iterator>
#include <sstream>
#include <string>

namespace tool {
namespace {

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

/// As the parser takes them: the last one first, without the name of the program.
std::vector<std::string> argumentsInReverse(int argumentCount, char** arguments) {
    const std::vector<std::string> words = wordsOf(argumentCount, arguments);
    return words.empty() ? words : std::vector<std::string>(words.rbegin(), std::prev(words.rend()));
}

}  // namespace

CommandLine::CommandLine(const std::vector<SubcommandAdder>& subcommands)
    : application_("Works on XML documents with the records of a monitor-calibration application.", program) {
    application_.set_version_flag("--version", std::string(program) + " " + lv::versionText, "Print the version");
    application_.set_help_flag("-h,--help", "Print this help");
    application_.require_subcommand(1);
    for (const auto& add : subcommands) {
        subcommands_.push_back(add(application_));
    }
}

ExitStatus CommandLine::run(int argumentCount, char** arguments) {
    try {
        application_.parse(argumentsInReverse(argumentCount, arguments));
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
