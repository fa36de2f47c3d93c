#include "files.h"

#include "Failure.h"
#include "limit_options.h"
#include "system.h"

#include <lvdata/analysis/files/files.h>

#include <filesystem>

namespace tool {
std::string inputName(const std::string& file) {
    return file == standardStream ? "<stdin>" : file;
}

std::string readInput(const std::string& file, std::size_t limit) {
    auto content = file == standardStream ? lv::analysis::readDescriptor(standardInput, limit + 1)
                                          : lv::analysis::readFile(std::filesystem::u8path(file), limit + 1);
    if (!content) {
        throw Failure(inputName(file), content.error.message());
    }
    if (content.text.size() > limit) {
        throw Failure(inputName(file), excessReason({lv::Excess::What::bytes, limit, limit, 0}));
    }
    return std::move(content.text);
}

}  // namespace tool
