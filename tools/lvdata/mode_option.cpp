#include "mode_option.h"

#include "Failure.h"

#include <lvdata/analysis/figures/choice_of_mode.h>

namespace tool {
namespace {

using lv::analysis::ModeFigures;

std::string complaintIfNoIndex(const std::string& text) {
    const bool isIndex = !text.empty() && text.find_first_not_of("0123456789") == std::string::npos;
    return isIndex ? "" : "'" + text + "' is not an index";
}

}  // namespace

void addModeOption(CLI::App& command, std::string& mode, const std::string& help) {
    command.add_option("--mode", mode, help)->type_name("N")->check(complaintIfNoIndex);
}

std::vector<ModeFigures> modesOfIndex(const std::vector<ModeFigures>& modes, const std::string& index,
                                      const std::string& name) {
    std::vector<ModeFigures> found = lv::analysis::modesOfIndex(modes, index);
    if (found.empty()) {
        throw Failure(name, whyNoModeOfIndex(modes, index));
    }
    return found;
}

}  // namespace tool
