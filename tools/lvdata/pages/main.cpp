#include "CommandModel.h"
#include "pages.h"

#include <lvdata/version.h>
#include <tools/lvdata/CommandLine.h>
#include <tools/lvdata/subcommands.h>

#include <fstream>
#include <iostream>
#include <iterator>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

std::string readFile(const std::string& name) {
    std::ifstream file(name, std::ios::binary);
    if (!file) {
        throw std::runtime_error("cannot read " + name);
    }
    return {std::istreambuf_iterator<char>(file), {}};
}

void writeFile(const std::string& name, const std::string& text) {
    std::ofstream file(name, std::ios::binary);
    if (!file.write(text.data(), static_cast<std::streamsize>(text.size())).flush()) {
        throw std::runtime_error("cannot write " + name);
    }
}

std::string pageOf(const tool::CommandModel& command, const std::string& kind) {
    return kind == "bash"   ? tool::bashCompletion(command)
           : kind == "zsh"  ? tool::zshCompletion(command)
           : kind == "fish" ? tool::fishCompletion(command)
                            : tool::manualPage(command, lv::versionText, readFile(kind));
}

}  // namespace

/// Writes the manual page or a completion of the command `lvdata` to a file.
///
/// The first argument is "bash", "zsh", "fish" or the file with the text of the manual page, the second the output.
int main(int argumentCount, char** arguments) {
    try {
        const std::vector<std::string> words(arguments, std::next(arguments, argumentCount));
        const tool::CommandLine commandLine(tool::everySubcommand());
        writeFile(words.at(2), pageOf(tool::modelOf(commandLine.parser()), words.at(1)));
        return 0;
    } catch (const std::exception& error) {
        std::cerr << "lvdata_pages: " << error.what() << '\n';
        return 1;
    }
}
