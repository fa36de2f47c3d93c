#include <lvdata/analysis/figures/choice_of_mode.h>

#include <algorithm>
#include <cstddef>
#include <iterator>

namespace lv::analysis {
namespace {

auto hasIndex(const std::string& index) {
    return [&index](const ModeFigures& mode) {
        return mode.index == index;
    };
}

/// "known indices: 0, 1, 2", so that the user can choose.
std::string indicesOf(const std::vector<ModeFigures>& modes) {
    constexpr std::size_t most = 20;
    std::string text;
    std::size_t count = 0;
    for (const ModeFigures& mode : modes) {
        count += mode.index.empty() ? 0 : 1;
        const std::string index = count <= most ? mode.index : count == most + 1 ? "..." : "";
        text += index.empty() ? "" : (text.empty() ? "known indices: " : ", ") + index;
    }
    return text.empty() ? "no mode has an index" : text;
}

}  // namespace

std::vector<ModeFigures> modesOfIndex(const std::vector<ModeFigures>& modes, const std::string& index) {
    std::vector<ModeFigures> found;
    std::copy_if(modes.begin(), modes.end(), std::back_inserter(found), hasIndex(index));
    return found;
}

std::string whyNoModeOfIndex(const std::vector<ModeFigures>& modes, const std::string& index) {
    return "no colour mode has the index " + index + "; " + indicesOf(modes);
}

ChosenMode chooseMode(const std::vector<ModeFigures>& modes, const std::string& index) {
    if (!index.empty()) {
        const auto found = std::find_if(modes.begin(), modes.end(), hasIndex(index));
        return found == modes.end() ? ChosenMode{nullptr, whyNoModeOfIndex(modes, index)} : ChosenMode{&*found, ""};
    }
    if (modes.empty()) {
        return {nullptr, "there are no colour modes"};
    }
    const auto found = std::find_if(modes.begin(), modes.end(), &hasResult);
    return {found == modes.end() ? &modes.front() : &*found, ""};
}

}  // namespace lv::analysis
