#include "pages.h"
#include "text.h"

namespace tool {
namespace {

std::vector<std::string> namesOf(const std::vector<OptionModel>& options) {
    std::vector<std::string> names;
    for (const OptionModel& option : options) {
        names.insert(names.end(), option.names.begin(), option.names.end());
    }
    return names;
}

std::vector<std::string> namesOf(const std::vector<CommandModel>& commands) {
    std::vector<std::string> names;
    for (const CommandModel& command : commands) {
        names.push_back(command.name);
    }
    return names;
}

/// What completes a value.
std::string actionFor(const OptionModel& option) {
    if (!option.words().empty()) {
        return "words='" + joined(option.words(), " ") + "'";
    }
    return option.isFile() ? "files=yes" : ":";
}

/// What completes the value of an option, where the word before is its name.
std::string valueCases(const CommandModel& command) {
    std::string text;
    for (const OptionModel& option : command.options) {
        if (!option.value.empty()) {
            text += "        " + joined(option.names, " | ") + ") " + actionFor(option) + "; return ;;\n";
        }
    }
    return text;
}

/// A function that completes the words of a subcommand.
std::string functionOf(const CommandModel& command, const CommandModel& subcommand) {
    std::string text = '_' + command.name + '_' + subcommand.name + "() {\n    case $previous in\n";
    text += valueCases(subcommand) + "    esac\n    if [[ $current == -* ]]; then\n";
    text += "        words='" + joined(namesOf(subcommand.options), " ") + "'\n    else\n        ";
    text += subcommand.positionals.empty() ? ":" : actionFor(subcommand.positionals.front());
    return text + "\n    fi\n}\n\n";
}

constexpr const char* start = R"(# shellcheck shell=bash
# Completion of command lines of COMMAND in bash.

)";

/// Bash treats the "=" of "--option=value" as a word.
constexpr const char* mainFunction = R"(_COMMAND() {
    local current="${COMP_WORDS[COMP_CWORD]}" previous="${COMP_WORDS[COMP_CWORD - 1]}"
    local subcommand='' words='' files='' word
    if [[ $previous == '=' ]]; then
        previous="${COMP_WORDS[COMP_CWORD - 2]}"
    elif [[ $current == '=' ]]; then
        current=''
    fi
    for word in "${COMP_WORDS[@]:1:COMP_CWORD - 1}"; do
        case $word in
        SUBCOMMANDS) subcommand="$word" && break ;;
        esac
    done
    if [[ -n $subcommand ]]; then
        "_COMMAND_$subcommand"
    else
        words='EVERYTHING'
    fi
    COMPREPLY=()
    if [[ -n $files ]]; then
        compopt -o filenames 2>/dev/null
        mapfile -t COMPREPLY < <(compgen -f -- "$current")
    elif [[ -n $words ]]; then
        mapfile -t COMPREPLY < <(compgen -W "$words" -- "$current")
    fi
}

complete -F _COMMAND COMMAND
)";

std::string replaced(std::string text, const std::string& what, const std::string& by) {
    for (std::size_t at = text.find(what); at != std::string::npos; at = text.find(what, at + by.size())) {
        text.replace(at, what.size(), by);
    }
    return text;
}

}  // namespace

std::string bashCompletion(const CommandModel& command) {
    const std::vector<std::string> subcommands = namesOf(command.subcommands);
    std::string functions;
    for (const CommandModel& subcommand : command.subcommands) {
        functions += functionOf(command, subcommand);
    }
    std::string text = replaced(mainFunction, "SUBCOMMANDS", joined(subcommands, " | "));
    text = replaced(text, "EVERYTHING", joined(subcommands, " ") + ' ' + joined(namesOf(command.options), " "));
    return replaced(start + functions + text, "COMMAND", command.name);
}

}  // namespace tool
