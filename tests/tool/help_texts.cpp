#include "help_texts.h"

#include <regex>
#include <sstream>

std::vector<std::string> subcommandsIn(const std::string& help) {
    std::vector<std::string> names;
    std::istringstream lines(help.substr(help.find("Subcommands:")));
    std::string line;
    std::getline(lines, line);
    static const std::regex name("^  ([a-z]\\S*).*");
    std::smatch found;
    while (std::getline(lines, line)) {
        if (std::regex_match(line, found, name)) {
            names.push_back(found[1]);
        }
    }
    return names;
}

std::vector<std::string> optionsIn(const std::string& help) {
    std::vector<std::string> names;
    std::istringstream lines(help);
    std::string line;
    static const std::regex name("(?:^  |,)(-[^\\s,]+)");
    while (std::getline(lines, line)) {
        const std::string title = line.substr(0, line.find(' ', line.find_first_not_of(' ')));
        for (std::sregex_iterator at(title.begin(), title.end(), name); at != std::sregex_iterator(); ++at) {
            names.push_back((*at)[1]);
        }
    }
    return names;
}
