#pragma once

#include <string>
#include <string_view>

#include <CLI/CLI.hpp>

namespace tool {

/// When standard output is coloured.
enum class ColorChoice {
    automatic,  // on a terminal that supports it, unless the variable NO_COLOR is set and not empty
    always,
    never,
};

/// Adds the option "--color". The choice must outlive the command.
void addColorOption(CLI::App& command, ColorChoice& choice);

/// Whether standard output is to be coloured. Looks at standard output and at the variables NO_COLOR and TERM.
[[nodiscard]] bool isColored(ColorChoice choice);

/// The role of a piece of text, shown by its colour.
enum class Style { heading, name, added, removed, warning, error, faint };

/// Colours text for a terminal, or leaves it as it is.
class Palette {
public:
    explicit Palette(bool colored) : colored_(colored) {}
    explicit Palette(ColorChoice choice) : Palette(isColored(choice)) {}

    /// The text between the escape sequences of its style.
    [[nodiscard]] std::string paint(Style style, std::string_view text) const;

private:
    bool colored_;
};

}  // namespace tool
