#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace lv::analysis {

/// Paths whose differences are not listed, as `DiffOptions::ignoredPaths` explains them.
class IgnoredPaths {
public:
    /// The paths must outlive the object.
    explicit IgnoredPaths(const std::vector<std::string>& paths) : paths_(paths) {}

    /// Whether one of the paths stands for this one, or for something that it is in.
    [[nodiscard]] bool match(const std::string& path) const;

private:
    const std::vector<std::string>& paths_;
};

}  // namespace lv::analysis
