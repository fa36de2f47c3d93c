#include "CommandLine.h"
#include "run_command.h"
#include "subcommands.h"

int main(int argumentCount, char** arguments) {
    return tool::runCommand([=] { return tool::CommandLine(tool::everySubcommand()).run(argumentCount, arguments); });
}
