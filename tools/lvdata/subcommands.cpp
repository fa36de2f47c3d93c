#include "subcommands.h"

#include "format.h"

namespace tool {

std::vector<SubcommandAdder> everySubcommand() {
    return {
        addFormat,
    };
}

}  // namespace tool
