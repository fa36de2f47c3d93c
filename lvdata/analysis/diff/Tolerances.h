#pragma once

#include <lvdata/analysis/Catalogue.h>

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace lv::analysis {

/// The largest differences that are not listed. There is one limit for each kind of value: a quantity, by its name,
/// such as "gain"; or a colour difference, `duv` or `de00`.
///
/// The limit of a quantity is absolute, in the values that are shown: of a gain 0.001, of a code value 1 (of 255).
/// Kinds without a limit allow no difference.
class Tolerances {
public:
    /// Δu'v' of two chromaticities.
    static constexpr std::string_view duv = "duv";

    /// ΔE00 of two tristimulus values.
    static constexpr std::string_view de00 = "de00";

    /// All kinds: the two above and the quantities that records have, in the order of their names.
    [[nodiscard]] static std::vector<std::string> kinds(const Catalogue& catalogue);

    /// Sets the limit of a kind.
    void set(std::string_view kind, double limit) { limits_[std::string(kind)] = limit; }

    /// The limit of a kind; no value when there is none.
    [[nodiscard]] std::optional<double> of(std::string_view kind) const;

    /// Sets the limits in a text such as "de00=0.5,chromaticity=0.0005". Returns an empty text; if the text is wrong,
    /// sets nothing and returns the reason.
    [[nodiscard]] std::string take(std::string_view text, const Catalogue& catalogue);

private:
    std::map<std::string, double, std::less<>> limits_{};
};

}  // namespace lv::analysis
