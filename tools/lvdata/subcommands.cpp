#include "subcommands.h"

#include "check.h"
#include "convert.h"
#include "diff.h"
#include "explain.h"
#include "format.h"
#include "plot.h"
#include "report.h"
#include "schema.h"
#include "show.h"

namespace tool {

std::vector<SubcommandAdder> everySubcommand() {
    return {
        addCheck,    //
        addConvert,  //
        addDiff,     //
        addFormat,   //
        addSchema,   //
        addShow,     //
        addReport,   //
        addPlot,     //
        addExplain,  //
    };
}

}  // namespace tool
