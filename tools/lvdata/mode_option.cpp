#include "mode_option.h"

#include "Failure.h"

#include <algorithm>
#include <cstddef>
#include <iterator>

namespace tool {
namespace {

using lv::analysis::ModeFigures;

std::string complaintIfNoIndex(const std::string& text) {
    const bool isIndex = !text.empty() && text.find_first_not_of("0123456789") == std::string::npos;
    return isIndex ? "" : "'" + text + "' is not an index";
}

/// "there are 0, 1, 2", so that the user can choose.
std::string indicesOf(const std::vector<ModeFigures>& modes) {
    constexpr std::size_t most = 20;
    std::string text;
    std::size_t count = 0;
    for (const ModeFigures& mode : modes) {
        count += mode.index.empty() ? 0 : 1;
        const std::string index = count <= most ? mode.index : count == most + 1 ? "..." : "";
        text += index.empty() ? "" : (text.empty() ? "there are " : ", ") + index;
    }
    return text.empty() ? "there are none" : text;
}

}  // namespace

void addModeOption(CLI::App& command, std::string& mode, const std::string& help) {
    command.add_option("--mode", mode, help)->type_name("N")->check(complaintIfNoIndex);
}

std::vector<ModeFigures> modesOfIndex(const std::vector<ModeFigures>& modes, const std::string& index,
                                      const std::string& name) {
    std::vector<ModeFigures> found;
    std::copy_if(modes.begin(), modes.end(), std::back_inserter(found),
                 [&index](const ModeFigures& mode) { return mode.index == index; });
    if (found.empty()) {
        throw Failure(name, "no colour mode has the index " + index + "; " + indicesOf(modes));
    }
    return found;
}

}  // namespace tool
