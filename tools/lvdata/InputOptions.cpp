#include "InputOptions.h"

#include "files.h"

#include <algorithm>

namespace tool {
namespace {

std::string complaintIfEmpty(const std::string& name) {
    return name.empty() ? "is empty" : "";
}

auto standardInputs(const std::vector<std::string>& names) {
    return std::count(names.begin(), names.end(), standardStream);
}

void checkInputs(const InputOptions& options) {
    if (options.paths.empty() && options.lists.empty()) {
        throw CLI::RequiredError("PATH or --files-from");
    }
    if (standardInputs(options.paths) + standardInputs(options.lists) > 1) {
        throw CLI::ValidationError("-", "standard input can be read only once");
    }
}

}  // namespace

void addInputOptions(CLI::App& command, InputOptions& options) {
    command
        .add_option("PATH", options.paths,
                    "XML document, or folder with documents named *.xml at any depth; - for standard input")
        ->type_name("")
        ->check(complaintIfEmpty);
    CLI::Option* const lists =
        command
            .add_option("--files-from", options.lists, "Read more PATHs from FILE, one per line; - for standard input")
            ->type_name("FILE")
            ->allow_extra_args(false)
            ->check(complaintIfEmpty);
    command.add_flag("-0,--null", options.listsAreNulSeparated, "PATHs in FILE are separated by NUL characters")
        ->needs(lists);
    command.parse_complete_callback([&options] { checkInputs(options); });
}

}  // namespace tool
