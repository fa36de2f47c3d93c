#include "pages.h"
#include "text.h"

#include <algorithm>
#include <stdexcept>

namespace tool {
namespace {

/// A character as the page has it. A line may break after a "|".
std::string plain(char character) {
    switch (character) {
    case '\\':
        return "\\e";
    case '-':
        return "\\-";
    case '|':
        return "|\\:";
    default:
        return std::string(1, character);
    }
}

/// Text that is not a macro: a line must not start with a dot or an apostrophe.
std::string plain(const std::string& text) {
    std::string result;
    for (const char character : text) {
        result += plain(character);
    }
    const bool looksLikeMacro = !text.empty() && (text.front() == '.' || text.front() == '\'');
    return (looksLikeMacro ? "\\&" : "") + result;
}

/// The length of the first line: up to the last space within the width, else all of the text.
std::size_t lineLength(const std::string& text) {
    constexpr std::size_t width = 75;
    return text.size() > width ? std::min(text.rfind(' ', width), text.size()) : text.size();
}

/// Words and a full stop, in lines that are not macros.
std::string sentence(const std::string& words) {
    std::string lines;
    for (std::string rest = words + '.'; !rest.empty();) {
        const std::size_t length = lineLength(rest);
        lines += plain(rest.substr(0, length)) + '\n';
        rest.erase(0, length + 1);
    }
    return lines;
}

/// "Fl o" and "Fl \-output" for "-o" and "--output": the macro puts one dash before them.
std::string optionName(const std::string& name) {
    return "Fl " + plain(name.substr(1));
}

/// ".It Fl o , Fl \-output Ar FILE"
std::string optionTitle(const OptionModel& option) {
    std::vector<std::string> names;
    for (const std::string& name : option.names) {
        names.push_back(option.isPositional ? "Ar " + plain(name) : optionName(name));
    }
    const std::string value = (option.words().empty() ? " Ar " : " Cm ") + plain(option.value);
    return ".It " + joined(names, " , ") + (option.value.empty() ? "" : value) + '\n';
}

std::string optionList(const std::vector<OptionModel>& options) {
    std::string text;
    for (const OptionModel& option : options) {
        text += optionTitle(option) + sentence(option.help);
    }
    return text;
}

std::string positionalText(const OptionModel& option) {
    const std::string name = "Ar " + plain(option.names.front()) + (option.isRepeated ? " ..." : "");
    return (option.isRequired ? "." : ".Op ") + name + '\n';
}

std::string synopsis(const CommandModel& command) {
    std::string text;
    for (const CommandModel& subcommand : command.subcommands) {
        text += ".Nm " + command.name + " Cm " + subcommand.name + "\n.Op Ar OPTION ...\n";
        for (const OptionModel& positional : subcommand.positionals) {
            text += positionalText(positional);
        }
    }
    for (const OptionModel& option : command.options) {
        text += ".Nm " + command.name + ' ' + optionName(option.names.back()) + '\n';
    }
    return text;
}

std::string sections(const CommandModel& command) {
    std::string text;
    for (const CommandModel& subcommand : command.subcommands) {
        text += ".Ss " + command.name + ' ' + subcommand.name + '\n' + sentence(subcommand.help);
        text += ".Bl -tag -width Ds\n";
        text += optionList(subcommand.positionals) + optionList(subcommand.options) + ".El\n";
    }
    return text;
}

void replaceIn(std::string& text, const std::string& mark, const std::string& by) {
    const std::size_t at = text.find(mark);
    if (at == std::string::npos) {
        throw std::runtime_error("the text of the manual page has no " + mark);
    }
    text.replace(at, mark.size(), by);
}

}  // namespace

std::string manualPage(const CommandModel& command, const std::string& version, const std::string& text) {
    std::string page = text;
    replaceIn(page, "@VERSION@", version);
    replaceIn(page, "@SYNOPSIS@\n", synopsis(command));
    replaceIn(page, "@OPTIONS@\n", ".Bl -tag -width Ds\n" + optionList(command.options) + ".El\n");
    replaceIn(page, "@SUBCOMMANDS@\n", sections(command));
    return page;
}

}  // namespace tool
