#include "subcommands.h"

#include "check.h"
#include "diff.h"
#include "explain.h"
#include "format.h"
#include "schema.h"

namespace tool {

std::vector<SubcommandAdder> everySubcommand() {
    return {
        addCheck,    //
        addDiff,     //
        addFormat,   //
        addSchema,   //
        addExplain,  //
    };
}

}  // namespace tool
