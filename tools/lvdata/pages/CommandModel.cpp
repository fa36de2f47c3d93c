#include "CommandModel.h"

#include <sstream>

namespace tool {
namespace {

std::vector<std::string> withDashes(const CLI::Option& option) {
    std::vector<std::string> names;
    for (const std::string& name : option.get_snames()) {
        names.push_back('-' + name);
    }
    for (const std::string& name : option.get_lnames()) {
        names.push_back("--" + name);
    }
    return names;
}

OptionModel modelOf(const CLI::Option& option) {
    const bool isPositional = option.get_positional();
    const bool isFlag = option.get_items_expected_max() == 0;
    return {isPositional ? std::vector{option.get_name(true)} : withDashes(option),
            isFlag ? "" : option.get_type_name(),
            option.get_description(),
            isPositional,
            option.get_required(),
            option.get_items_expected_max() > 1};
}

}  // namespace

std::vector<std::string> OptionModel::words() const {
    std::vector<std::string> words;
    std::istringstream text(value.find('|') == std::string::npos ? "" : value);
    for (std::string word; std::getline(text, word, '|');) {
        words.push_back(word);
    }
    return words;
}

bool OptionModel::isFile() const {
    return isPositional ? words().empty() : value == "FILE";
}

CommandModel modelOf(const CLI::App& application) {
    CommandModel model{application.get_name(), application.get_description(), {}, {}, {}};
    for (const CLI::Option* const option : application.get_options()) {
        if (!option->get_group().empty()) {
            (option->get_positional() ? model.positionals : model.options).push_back(modelOf(*option));
        }
    }
    for (const CLI::App* const subcommand :
         application.get_subcommands([](const CLI::App* each) { return !each->get_group().empty(); })) {
        model.subcommands.push_back(modelOf(*subcommand));
    }
    return model;
}

}  // namespace tool
