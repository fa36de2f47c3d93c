#include "unit_options.h"

#include "count_option.h"

namespace tool {

void addUnitOptions(CLI::App& command, lv::analysis::KnownUnits& units) {
    command.add_option("--y-unit", units.yUnit, "Unit of Y, such as cd/m²; the records do not state it")
        ->type_name("UNIT");
    command.add_option("--map-unit", units.mapUnit, "Unit of the entries of candela maps")->type_name("UNIT");
    addCountOption(command, "--grid", units.gridWidth, {0, 10000},
                   "Entries per row of a candela map (default: not known)");
}

}  // namespace tool
