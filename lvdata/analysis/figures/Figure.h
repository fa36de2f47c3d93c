#pragma once

#include <optional>
#include <string>

namespace lv::analysis {

/// A number that was computed, or why it could not be.
struct Figure {
    std::optional<double> value{};  ///< The number; no value when there is none.
    std::string reason{};           ///< Why there is none, in a few words; otherwise empty.

    /// The number with that many digits after the point, or "n/a (reason)". Figures become text only here, so that each
    /// has the same text everywhere.
    [[nodiscard]] std::string text(int decimals) const;
};

/// A number with that many digits after the point, whatever locale the application has set. Never "-0.0".
[[nodiscard]] std::string fixedText(double value, int decimals);

}  // namespace lv::analysis
