#include "limit_set_option.h"

#include "Failure.h"
#include "files.h"

#include <lvdata/analysis/files/files.h>

#include <cstddef>
#include <system_error>

namespace tool {
namespace {

using lv::analysis::LimitSet;

/// "default, iso14861, ...".
std::string namesOfSets() {
    std::string names;
    for (const LimitSet& set : lv::analysis::knownLimitSets()) {
        names += (names.empty() ? "" : ", ") + set.name;
    }
    return names;
}

std::string textOf(const std::string& file) {
    constexpr std::size_t mostBytes = 1'000'000;
    auto content = lv::analysis::readFile(file, mostBytes + 1);
    if (content.error == std::errc::no_such_file_or_directory) {
        throw Failure(file, "there is no such file, and no limits of that name; known are " + namesOfSets());
    }
    if (!content) {
        throw Failure(file, content.error.message());
    }
    if (content.text.size() > mostBytes) {
        throw Failure(file, "more than " + std::to_string(mostBytes) + " bytes, which no limits need");
    }
    return std::move(content.text);
}

}  // namespace

void addLimitSetOption(CLI::App& command, std::string& name, const std::string& help) {
    command.add_option("--limits", name, help + ": " + namesOfSets() + ", or a file")->type_name("FILE");
}

LimitSet readLimitSet(const std::string& name) {
    for (const LimitSet& set : lv::analysis::knownLimitSets()) {
        if (set.name == name) {
            return set;
        }
    }
    auto result = lv::analysis::readLimitSet(textOf(name));
    if (!result.set) {
        throw Failure(name, result.reason, result.line);
    }
    return std::move(*result.set);
}

}  // namespace tool
