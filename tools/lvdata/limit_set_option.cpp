#include "limit_set_option.h"

#include "Failure.h"

#include <lvdata/analysis/figures/limit_files.h>

#include <utility>

namespace tool {

using lv::analysis::LimitSet;

void addLimitSetOption(CLI::App& command, std::string& name, const std::string& help) {
    command.add_option("--limits", name, help + ": " + lv::analysis::namesOfLimitSets() + ", or a file")
        ->type_name("FILE");
}

LimitSet readLimitSet(const std::string& name) {
    auto result = lv::analysis::findLimitSet(name);
    if (!result.set) {
        throw Failure(name, result.reason, result.line);
    }
    return std::move(*result.set);
}

}  // namespace tool
