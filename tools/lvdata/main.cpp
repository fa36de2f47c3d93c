#include "Failure.h"
#include "files.h"
#include "format.h"
#include "printable.h"

#include <lvdata/version.h>

#include <csignal>
#include <iostream>
#include <new>
#include <sstream>
#include <string>
#include <vector>

#include <CLI/CLI.hpp>

namespace {

constexpr int exitDone = 0;
constexpr int exitFailed = 2;
constexpr const char* program = "lvdata";

/// What `--help` and `--version` ask for arrives as an error of code 0.
void printRequested(const CLI::App& application, const CLI::ParseError& request) {
    std::ostringstream text;
    application.exit(request, text, text);
    tool::writeOutput(std::string(tool::standardStream), text.str());
}

std::string reasonOf(const CLI::App& application, const CLI::ParseError& error) {
    const std::vector<std::string> unknown = application.remaining();
    return unknown.empty() ? error.what() : "unknown subcommand or option: " + unknown.front();
}

void runCommand(int argumentCount, char** arguments) {
    CLI::App application("Works on XML documents with the records of a monitor-calibration application.", program);
    application.set_version_flag("--version", std::string(program) + " " + lv::versionText);
    application.require_subcommand(1);
    tool::addFormat(application);
    try {
        application.parse(argumentCount, arguments);
    } catch (const CLI::ParseError& error) {
        if (error.get_exit_code() != exitDone) {
            throw tool::Failure(program, reasonOf(application, error));
        }
        printRequested(application, error);
    }
}

int report(const tool::Failure& failure) {
    std::cerr << tool::printable(failure.what()) + '\n';
    return exitFailed;
}

}  // namespace

int main(int argumentCount, char** arguments) {
    try {
        // A file that grows too large is then an error of write(), which is cleaned up after.
        static_cast<void>(std::signal(SIGXFSZ, SIG_IGN));
        runCommand(argumentCount, arguments);
        return exitDone;
    } catch (const tool::Failure& failure) {
        return report(failure);
    } catch (const std::bad_alloc&) {
        return report({program, "out of memory"});
    } catch (const std::exception& error) {
        return report({program, error.what()});
    }
}
