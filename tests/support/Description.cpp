#include <tests/support/Description.h>

#include <limits>
#include <sstream>

namespace lv::test {

std::string textOf(int value) {
    return std::to_string(value);
}

std::string textOf(unsigned int value) {
    return std::to_string(value);
}

std::string textOf(bool value) {
    return value ? "true" : "false";
}

std::string textOf(double value) {
    std::ostringstream text;
    text.precision(std::numeric_limits<double>::max_digits10);
    text << value;
    return text.str();
}

std::string textOf(const std::string& value) {
    return '"' + value + '"';
}

}  // namespace lv::test
