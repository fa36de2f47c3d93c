#include "Palette.h"

#include "choice_option.h"
#include "environment.h"
#include "system.h"

namespace tool {
namespace {

bool terminalIsColored() {
    return isTerminal(standardOutput) && terminalUnderstandsEscapes() && environmentVariable("NO_COLOR").empty();
}

/// The parameters of the escape sequence "select graphic rendition".
constexpr std::string_view renditionOf(Style style) {
    switch (style) {
    case Style::heading:
        return "1";
    case Style::name:
        return "36";
    case Style::added:
        return "32";
    case Style::removed:
        return "31";
    case Style::warning:
        return "33";
    case Style::error:
        return "1;31";
    case Style::faint:
        return "2";
    }
    return "";
}

}  // namespace

void addColorOption(CLI::App& command, ColorChoice& choice) {
    const Choices<ColorChoice> choices{
        {"auto", ColorChoice::automatic}, {"always", ColorChoice::always}, {"never", ColorChoice::never}};
    addChoiceOption(command, "--color", choice, choices,
                    "When to colour the output (default auto: on a terminal, unless NO_COLOR is set)");
}

bool isColored(ColorChoice choice) {
    return choice == ColorChoice::always || (choice == ColorChoice::automatic && terminalIsColored());
}

std::string Palette::paint(Style style, std::string_view text) const {
    if (!colored_ || text.empty()) {
        return std::string(text);
    }
    return "\x1b[" + std::string(renditionOf(style)) + 'm' + std::string(text) + "\x1b[0m";
}

}  // namespace tool
