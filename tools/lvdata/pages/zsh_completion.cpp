#include "pages.h"
#include "text.h"

namespace tool {
namespace {

/// The text in single quotes, which end where the text itself has one.
std::string quoted(const std::string& text) {
    std::string result;
    for (const char character : text) {
        result += character == '\'' ? std::string("'\\''") : std::string(1, character);
    }
    return '\'' + result + '\'';
}

/// ":FILE:_files", what comes after an option
std::string valueText(const OptionModel& option, const std::string& name) {
    const std::string action = !option.words().empty() ? '(' + joined(option.words(), " ") + ')'
                               : option.isFile()       ? "_files"
                                                       : " ";
    return ':' + escaped(name, ":") + ':' + action;
}

/// One line for each name of an option; a name excludes the others.
std::string optionLines(const OptionModel& option) {
    std::string text;
    for (const std::string& name : option.names) {
        const std::string excluded = option.isRepeated ? "*" : '(' + joined(option.names, " ") + ')';
        const std::string mark = option.value.empty() ? "" : name.size() == 2 ? "+" : "=";
        const std::string value =
            option.value.empty() ? "" : valueText(option, option.words().empty() ? option.value : "word");
        text += " \\\n            " + quoted(excluded + name + mark + '[' + escaped(option.help, "[]\\") + ']' + value);
    }
    return text;
}

std::string positionalLine(const OptionModel& option) {
    return " \\\n            " + quoted((option.isRepeated ? "*" : "") + valueText(option, option.names.front()));
}

std::string caseOf(const CommandModel& subcommand) {
    std::string text = "        " + subcommand.name + ")\n            _arguments -S";
    for (const OptionModel& option : subcommand.options) {
        text += optionLines(option);
    }
    for (const OptionModel& option : subcommand.positionals) {
        text += positionalLine(option);
    }
    return text + "\n            ;;\n";
}

std::string listOf(const std::vector<CommandModel>& subcommands) {
    std::string text;
    for (const CommandModel& subcommand : subcommands) {
        text += "            " + quoted(subcommand.name + ':' + subcommand.help) + '\n';
    }
    return text;
}

}  // namespace

std::string zshCompletion(const CommandModel& command) {
    std::string text =
        "#compdef " + command.name + "\n# Completion of command lines of " + command.name + " in zsh.\n\n";
    text += '_' + command.name + "() {\n    local context state state_descr line\n    typeset -A opt_args\n";
    text += "    _arguments -C";
    for (const OptionModel& option : command.options) {
        text += optionLines(option);
    }
    text += " \\\n            '1:subcommand:->subcommand' \\\n            '*::argument:->argument'\n";
    text += "    case $state in\n    subcommand)\n        local -a subcommands=(\n" + listOf(command.subcommands);
    text +=
        "        )\n        _describe subcommand subcommands\n        ;;\n    argument)\n        case $line[1] in\n";
    for (const CommandModel& subcommand : command.subcommands) {
        text += caseOf(subcommand);
    }
    return text + "        esac\n        ;;\n    esac\n}\n\n_" + command.name + " \"$@\"\n";
}

}  // namespace tool
