#pragma once

#include <benchmarks/Monitor.h>

#include <string>

namespace benchmarks {

/// The monitor of the style that `MonitorInfo` is compiled in.
template <class MonitorInfo>
class MonitorOf final : public Monitor {
public:
    [[nodiscard]] bool parse(const std::string& text) override { return record_.parseXMLString(text); }
    [[nodiscard]] std::string print() const override { return record_.toXMLString(false, false); }

private:
    MonitorInfo record_;
};

}  // namespace benchmarks
