#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace lv::analysis {

/// The current place in a sequence of calls to a sink: "monitor_info.color_mode[3].name", for messages.
class EventPath {
public:
    /// An object begins.
    void beginObject() { steps_.push_back({}); }

    /// A key of the object.
    void key(std::string_view name) { steps_.back().key = name; }

    /// An array begins.
    void beginArray() { steps_.push_back({{}, true, 0}); }

    /// A value: in an array, the next entry.
    void beginValue() {
        if (!steps_.empty()) {
            ++steps_.back().count;
        }
    }

    /// The innermost open object or array ends.
    void end() { steps_.pop_back(); }

    /// The number of objects and arrays that are open.
    [[nodiscard]] std::size_t depth() const { return steps_.size(); }

    /// Empty outside of everything. Long keys are cut.
    [[nodiscard]] std::string toString() const;

private:
    struct Step {
        std::string key{};
        bool isArray = false;
        std::size_t count = 0;
    };

    std::vector<Step> steps_{};
};

}  // namespace lv::analysis
