#include "InputFiles.h"

#include "Failure.h"
#include "files.h"

namespace tool {

void InputFiles::add(const std::string& file) {
    if (const auto identity = identityOf(file)) {
        const std::lock_guard lock(mutex_);
        files_.insert(*identity);
    }
}

void InputFiles::refuseToOverwrite(const std::string& file) const {
    const auto identity = file == standardStream ? std::nullopt : identityOf(file);
    const std::lock_guard lock(mutex_);
    if (identity && files_.count(*identity) != 0) {
        throw Failure(file, "not overwritten, since it is one of the inputs");
    }
}

}  // namespace tool
