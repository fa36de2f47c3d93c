#pragma once

#include <map>
#include <string>

#include <CLI/CLI.hpp>

namespace tool {

/// A word for each choice.
template <class Choice>
using Choices = std::map<std::string, Choice>;

/// The words, separated by "|". Such a text as the type name of an option says what its value can be: in the help, in
/// the man page and in the completions.
template <class Choice>
std::string wordsOf(const Choices<Choice>& choices) {
    std::string words;
    for (const auto& [word, choice] : choices) {
        words += words.empty() ? word : '|' + word;
    }
    return words;
}

/// Adds an option whose value is one of these words, exactly. The choice must outlive the command.
template <class Choice>
CLI::Option* addChoiceOption(CLI::App& command, const std::string& name, Choice& choice, const Choices<Choice>& choices,
                             const std::string& help) {
    const std::string words = wordsOf(choices);
    const auto complaint = [choices, words](const std::string& text) {
        return choices.count(text) == 1 ? std::string() : "'" + text + "' is not one of " + words;
    };
    const auto take = [choices, &choice](const std::string& text) {
        choice = choices.at(text);
    };
    return command.add_option_function<std::string>(name, take, help)->type_name(words)->check(complaint);
}

}  // namespace tool
