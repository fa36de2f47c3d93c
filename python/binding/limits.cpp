#include "limits.h"

#include "sources.h"

#include <lvdata/analysis/figures/limit_files.h>

#include <stdexcept>
#include <utility>

namespace lv::python {

analysis::LimitSet limitSet(const std::string& nameOrFile) {
    auto result = analysis::findLimitSet(nameOrFile);
    if (!result.set) {
        const std::string line = result.line > 0 ? "line " + std::to_string(result.line) + ": " : "";
        throw std::invalid_argument(inFile(nameOrFile, line + result.reason));
    }
    return std::move(*result.set);
}

}  // namespace lv::python
