#include "subcommands.h"

#include "check.h"
#include "diff.h"
#include "explain.h"
#include "format.h"

namespace tool {

std::vector<SubcommandAdder> everySubcommand() {
    return {
        addCheck,    //
        addDiff,     //
        addFormat,   //
        addExplain,  //
    };
}

}  // namespace tool
