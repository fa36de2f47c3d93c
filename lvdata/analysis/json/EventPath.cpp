#include <lvdata/analysis/json/EventPath.h>
#include <lvdata/analysis/wording.h>

namespace lv::analysis {

std::string EventPath::toString() const {
    std::string path;
    for (const Step& step : steps_) {
        if (step.isArray) {
            path += step.count == 0 ? "" : '[' + std::to_string(step.count - 1) + ']';
        } else if (!step.key.empty()) {
            path += path.empty() ? "" : ".";
            path += excerpt(step.key);
        }
    }
    return path;
}

}  // namespace lv::analysis
