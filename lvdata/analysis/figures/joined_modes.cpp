#include <lvdata/analysis/figures/joined_modes.h>

#include <cstddef>
#include <deque>
#include <unordered_map>

namespace lv::analysis {
namespace {

/// The modes that have no result yet, by their index.
using Waiting = std::unordered_map<unsigned int, std::deque<std::size_t>>;

/// Gives the result to the first mode of its index that is waiting for one, or else makes a new mode of it.
void add(const CalibrationModeResultObject& result, std::vector<JoinedMode>& modes, Waiting& waiting) {
    const auto found = result.index.hasValue ? waiting.find(result.index.value) : waiting.end();
    if (found == waiting.end() || found->second.empty()) {
        modes.push_back({nullptr, &result});
        return;
    }
    modes[found->second.front()].result = &result;
    found->second.pop_front();
}

}  // namespace

std::vector<JoinedMode> joinedModes(const ColorModeSettings* settings, const CalibrationModeResult* results) {
    std::vector<JoinedMode> modes;
    Waiting waiting;
    if (settings != nullptr) {
        for (const ColorModeSettingsObject& setting : settings->objects) {
            if (setting.index.hasValue) {
                waiting[setting.index.value].push_back(modes.size());
            }
            modes.push_back({&setting, nullptr});
        }
    }
    if (results != nullptr) {
        for (const CalibrationModeResultObject& result : results->objects) {
            add(result, modes, waiting);
        }
    }
    return modes;
}

}  // namespace lv::analysis
