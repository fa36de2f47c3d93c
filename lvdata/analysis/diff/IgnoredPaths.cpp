#include <lvdata/analysis/diff/IgnoredPaths.h>

#include <algorithm>
#include <cstddef>

namespace lv::analysis {
namespace {

/// The path without what is in brackets.
std::string withoutBrackets(const std::string& path) {
    std::string plain;
    bool isInside = false;
    for (const char character : path) {
        isInside = isInside || character == '[';
        plain += isInside ? "" : std::string(1, character);
        isInside = isInside && character != ']';
    }
    return plain;
}

/// Whether the path begins with these steps.
bool beginsWith(std::string_view path, std::string_view steps) {
    const bool isSame = path.substr(0, steps.size()) == steps;
    return isSame && (path.size() == steps.size() || path[steps.size()] == '/' || path[steps.size()] == '[');
}

bool isWithin(std::string_view path, std::string_view ignored) {
    constexpr std::string_view anywhere = "//";
    if (ignored.substr(0, anywhere.size()) != anywhere) {
        return beginsWith(path, ignored);
    }
    const std::string_view steps = ignored.substr(anywhere.size());
    for (std::size_t begin = 0; begin < path.size(); ++begin) {
        if ((begin == 0 || path[begin - 1] == '/') && beginsWith(path.substr(begin), steps)) {
            return true;
        }
    }
    return false;
}

}  // namespace

bool IgnoredPaths::match(const std::string& path) const {
    if (paths_.empty()) {
        return false;
    }
    const std::string plain = withoutBrackets(path);
    return std::any_of(paths_.begin(), paths_.end(),
                       [&](const std::string& ignored) { return isWithin(path, ignored) || isWithin(plain, ignored); });
}

}  // namespace lv::analysis
