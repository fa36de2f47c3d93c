#pragma once

#include <algorithm>
#include <initializer_list>
#include <string>
#include <utility>
#include <vector>

#include <CLI/CLI.hpp>

namespace tool {

/// A word for each choice, in the order in which they were given.
template <class Choice>
class Choices {
public:
    Choices() = default;
    Choices(std::initializer_list<std::pair<std::string, Choice>> choices) : choices_(choices) {}

    /// The choice of the word; a new word is added at the end.
    Choice& operator[](const std::string& word) {
        const auto found = std::find_if(choices_.begin(), choices_.end(), is(word));
        return found != choices_.end() ? found->second : choices_.emplace_back(word, Choice()).second;
    }

    /// The choice of the word; null when the word is not one of them.
    [[nodiscard]] const Choice* find(const std::string& word) const {
        const auto found = std::find_if(choices_.begin(), choices_.end(), is(word));
        return found != choices_.end() ? &found->second : nullptr;
    }

    /// The words, separated by "|". Such a text as the type name of an option says what its value can be: in the help,
    /// in the man page and in the completions.
    [[nodiscard]] std::string words() const {
        std::string words;
        for (const auto& [word, choice] : choices_) {
            words += words.empty() ? word : '|' + word;
        }
        return words;
    }

private:
    static auto is(const std::string& word) {
        return [&word](const std::pair<std::string, Choice>& each) {
            return each.first == word;
        };
    }

    std::vector<std::pair<std::string, Choice>> choices_;
};

/// Adds an option whose value is one of these words, exactly. The choice must outlive the command.
template <class Choice>
CLI::Option* addChoiceOption(CLI::App& command, const std::string& name, Choice& choice, const Choices<Choice>& choices,
                             const std::string& help) {
    const auto complaint = [choices](const std::string& text) {
        return choices.find(text) != nullptr ? std::string() : "'" + text + "' is not one of " + choices.words();
    };
    const auto take = [choices, &choice](const std::string& text) {
        choice = *choices.find(text);  // the check has refused other words
    };
    return command.add_option_function<std::string>(name, take, help)->type_name(choices.words())->check(complaint);
}

}  // namespace tool
