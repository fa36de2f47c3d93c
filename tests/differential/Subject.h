#pragma once

#include <map>
#include <memory>
#include <string>

namespace differential {

/// A record of either style, with what the test compares.
class [[gnu::visibility("default")]] Subject {
public:
    Subject() = default;
    virtual ~Subject() = default;
    Subject(const Subject&) = delete;
    Subject& operator=(const Subject&) = delete;
    Subject(Subject &&) = delete;
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

/// Of the library, and of its records over plain code: all that the shared library of these shows.
[[nodiscard]] Makers librarySubjects();
[[nodiscard, gnu::visibility("default")]] Makers plainSubjects();

}  // namespace differential
