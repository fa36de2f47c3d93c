#include "output_option.h"

namespace tool {

void addOutputOption(CLI::App& command, std::string& output, const std::string& help) {
    command.add_option("-o,--output", output, help)->type_name("FILE")->check([](const std::string& name) {
        return name.empty() ? std::string("is empty") : std::string();
    });
}

}  // namespace tool
