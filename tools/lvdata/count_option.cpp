#include "count_option.h"

#include <charconv>
#include <iterator>

namespace tool {
namespace {

std::string complaintUnlessIn(CountRange range, const std::string& text) {
    std::size_t count = 0;
    const char* const end = std::next(text.data(), static_cast<std::ptrdiff_t>(text.size()));
    const auto [stop, error] = std::from_chars(text.data(), end, count);
    const bool isNumber = error == std::errc() && stop == end && (text.front() != '0' || text.size() == 1);
    if (isNumber && range.smallest <= count && count <= range.largest) {
        return "";
    }
    return "'" + text + "' is not a number between " + std::to_string(range.smallest) + " and " +
           std::to_string(range.largest);
}

}  // namespace

CLI::Option* addCountOption(CLI::App& command, const std::string& name, std::size_t& count, CountRange range,
                            const std::string& help) {
    const auto complaint = [range](const std::string& text) {
        return complaintUnlessIn(range, text);
    };
    return command.add_option(name, count, help)->type_name("N")->check(complaint);
}

}  // namespace tool
