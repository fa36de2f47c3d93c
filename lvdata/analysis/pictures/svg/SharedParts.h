#pragma once

#include <map>
#include <set>
#include <string>

namespace lv::analysis::svg {

/// Parts that several pictures of one page share. Each picture refers to them, and the page holds them once.
class SharedParts {
public:
    /// The id of a part, which is remembered: "p1", "p2", ...
    [[nodiscard]] std::string idOf(const std::string& part);

    /// Remembers a part that is never drawn itself.
    void define(const std::string& part);

    /// An invisible picture with all parts, for the page; empty without any.
    [[nodiscard]] std::string definitions() const;

private:
    std::map<std::string, std::string> ids_{};
    std::set<std::string> defined_{};
    std::string definitions_{};
};

}  // namespace lv::analysis::svg
