#pragma once

#include <optional>
#include <string_view>

namespace lv::analysis {

/// Whether a text begins with a day of the calendar, year first: "2024-03-17", "2024/3/17", "2024.03.17" or "20240317",
/// alone or followed by a time of day: "T09:31", " 09:31:00", "T09:31:00.250+02:00", "T093100Z". The records do not
/// define a date format, so this accepts the usual ones.
[[nodiscard]] bool isDate(std::string_view text);

/// A date that `isDate` takes as days since 1970-01-01 and parts of a day, in UTC where it has a zone. No value for any
/// other text.
[[nodiscard]] std::optional<double> daysSince1970(std::string_view text);

}  // namespace lv::analysis
