#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace lv::analysis::svg {

/// A coordinate: at most one digit after the point, no needless zeros (".5", "4"). Numbers beyond 99,999 are set to
/// that limit, NaN to 0.
[[nodiscard]] std::string coordinateText(double value);

/// A value for people: `fixedText`, and for numbers of more than nine digits their first digits with an exponent.
[[nodiscard]] std::string valueText(double value, int decimals);

/// The text made valid for XML and one line: as `printable`, and U+FFFE and U+FFFF, which XML excludes, become U+FFFD.
[[nodiscard]] std::string cleaned(std::string_view text);

/// The text with the special characters replaced by the five entities of XML.
[[nodiscard]] std::string escaped(std::string_view text);

/// How wide a text is at most in the sans-serif fonts in use, in pixels. An estimate: fonts differ.
[[nodiscard]] double textWidth(std::string_view text, double fontSize);

/// The text cut to that width, with "…" at its end if something is missing.
[[nodiscard]] std::string shortened(std::string_view text, double width, double fontSize);

/// A text of a document for a description or a hover text: cleaned, and cut after about that many characters.
[[nodiscard]] std::string quotable(std::string_view text, std::size_t characters = 80);

}  // namespace lv::analysis::svg
