#pragma once

#include <map>
#include <memory>
#include <string>

namespace differential {

/// A record of either style, with what the test compares.
class Subject {
public:
    Subject() = default;
    virtual ~Subject() = default;
    Subject(const Subject&) = delete;
    Subject& operator=(const Subject&) = delete;
    Subject(Subject&&) = delete;
    Subject& operator=(Subject&&) = delete;

    /// Gives every member a value of its own.
    virtual void fill() = 0;

    [[nodiscard]] virtual bool parse(const std::string& document) = 0;

    /// Every member and flag as text.
    [[nodiscard]] virtual std::string members() const = 0;

    [[nodiscard]] virtual std::string print(bool pretty) const = 0;
};

/// How a fresh record of each name is made.
using Makers = std::map<std::string, std::unique_ptr<Subject> (*)()>;

}  // namespace differential

// One function, defined in one source that is compiled once in each style.

namespace lv::test {
[[nodiscard]] differential::Makers subjects();
}

namespace plain_lv::test {
[[nodiscard]] differential::Makers subjects();
}
