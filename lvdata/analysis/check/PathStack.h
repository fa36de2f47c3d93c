#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace lv::analysis {

/// Where a walk along a document is: the way from the root element, as an XPath expression when asked for.
class PathStack {
public:
    /// Enters an element for as long as the object lives.
    class Step {
    public:
        /// \param number  which of the elements of that name it is, counted from 1; 0 when there is one at most
        Step(PathStack& stack, std::string_view name, std::size_t number = 0) : stack_(stack) {
            stack_.steps_.push_back({name, number});
        }
        ~Step() { stack_.steps_.pop_back(); }
        Step(const Step&) = delete;
        Step& operator=(const Step&) = delete;
        Step(Step&&) = delete;
        Step& operator=(Step&&) = delete;

    private:
        PathStack& stack_;
    };

    /// "/MeasurementData/Measurements[3]".
    [[nodiscard]] std::string text() const {
        std::string path;
        for (const Entry& entry : steps_) {
            path += '/';
            path += entry.name;
            path += entry.number == 0 ? "" : '[' + std::to_string(entry.number) + ']';
        }
        return path;
    }

private:
    struct Entry {
        std::string_view name;
        std::size_t number;
    };

    std::vector<Entry> steps_{};
};

}  // namespace lv::analysis
