#pragma once

#include <memory>
#include <string>

namespace benchmarks {

/// A monitor's record in one of the styles that are compared, each compiled from sources of its own.
class [[gnu::visibility("default")]] Monitor {
public:
    Monitor() = default;
    virtual ~Monitor() = default;
    Monitor(const Monitor&) = delete;
    Monitor& operator=(const Monitor&) = delete;
    Monitor(Monitor &&) = delete;
    Monitor& operator=(Monitor&&) = delete;

    /// Reads the record from a whole document; false when the document is refused.
    [[nodiscard]] virtual bool parse(const std::string& text) = 0;

    /// The record's document: compact, without a declaration.
    [[nodiscard]] virtual std::string print() const = 0;
};

/// Fresh monitors: of the library, of its records over plain code, and of its records over pugixml. All that the shared
/// libraries of the last two show.
[[nodiscard]] std::unique_ptr<Monitor> libraryMonitor();
[[nodiscard, gnu::visibility("default")]] std::unique_ptr<Monitor> plainMonitor();
[[nodiscard, gnu::visibility("default")]] std::unique_ptr<Monitor> pugixmlMonitor();

}  // namespace benchmarks
