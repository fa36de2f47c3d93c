#include "pages.h"
#include "text.h"

namespace tool {
namespace {

std::string quoted(const std::string& text) {
    return '\'' + escaped(text, "'\\") + '\'';
}

/// "-s o -l output", the names without their dashes
std::string nameText(const OptionModel& option) {
    std::string text;
    for (const std::string& name : option.names) {
        const bool isShort = name.size() == 2;
        text += (isShort ? " -s " : " -l ") + name.substr(isShort ? 1 : 2);
    }
    return text;
}

/// Whether there is a value, and what completes it.
std::string valueText(const OptionModel& option) {
    if (!option.words().empty()) {
        return " -x -a " + quoted(joined(option.words(), " "));
    }
    return option.isFile() ? " -r -F" : option.value.empty() ? "" : " -x";
}

std::string linesOf(const std::string& condition, const std::vector<OptionModel>& options) {
    std::string text;
    for (const OptionModel& option : options) {
        text += condition + nameText(option) + valueText(option) + " -d " + quoted(option.help) + '\n';
    }
    return text;
}

/// What completes the positional arguments of a subcommand.
std::string positionalLine(const std::string& condition, const CommandModel& subcommand) {
    if (subcommand.positionals.empty()) {
        return "";
    }
    const OptionModel& first = subcommand.positionals.front();
    return condition + (first.words().empty() ? " -F" : " -a " + quoted(joined(first.words(), " "))) + '\n';
}

}  // namespace

std::string fishCompletion(const CommandModel& command) {
    const std::string start = "complete -c " + command.name;
    const std::string beforeSubcommand = start + " -n __fish_use_subcommand";
    std::string text = "# Completion of command lines of " + command.name + " in fish.\n\n" + start + " -f\n";
    text += linesOf(beforeSubcommand, command.options);
    for (const CommandModel& subcommand : command.subcommands) {
        const std::string inside = start + " -n '__fish_seen_subcommand_from " + subcommand.name + "'";
        text += '\n' + beforeSubcommand + " -a " + subcommand.name + " -d " + quoted(subcommand.help) + '\n';
        text += linesOf(inside, subcommand.options) + positionalLine(inside, subcommand);
    }
    return text;
}

}  // namespace tool
