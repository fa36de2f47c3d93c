#include <lvdata/analysis/snake_case.h>

#include <cstddef>

namespace lv::analysis {
namespace {

bool isCapital(char character) {
    return character >= 'A' && character <= 'Z';
}

bool isSmall(char character) {
    return character >= 'a' && character <= 'z';
}

bool beginsWord(std::string_view name, std::size_t index) {
    if (index == 0 || !isCapital(name[index])) {
        return false;
    }
    return isSmall(name[index - 1]) || (index + 1 < name.size() && isSmall(name[index + 1]));
}

char inLowerCase(char character) {
    return isCapital(character) ? static_cast<char>(character - 'A' + 'a') : character;
}

}  // namespace

std::string snakeCase(std::string_view name) {
    std::string key;
    for (std::size_t index = 0; index < name.size(); ++index) {
        if (beginsWord(name, index)) {
            key += '_';
        }
        key += inLowerCase(name[index]);
    }
    return key;
}

}  // namespace lv::analysis
