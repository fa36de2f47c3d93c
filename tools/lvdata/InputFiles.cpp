#include "InputFiles.h"

#include "Failure.h"
#include "files.h"

#include <sys/stat.h>
#include <unistd.h>

namespace tool {

void InputFiles::add(const std::string& file) {
    struct stat status {};
    const int result = file == standardStream ? ::fstat(STDIN_FILENO, &status) : ::stat(file.c_str(), &status);
    if (result == 0 && S_ISREG(status.st_mode)) {
        const std::lock_guard lock(mutex_);
        files_.insert({status.st_dev, status.st_ino});
    }
}

void InputFiles::refuseToOverwrite(const std::string& file) const {
    struct stat status {};
    const bool isThere = file != standardStream && ::stat(file.c_str(), &status) == 0;
    const std::lock_guard lock(mutex_);
    if (isThere && files_.count({status.st_dev, status.st_ino}) != 0) {
        throw Failure(file, "not overwritten, since it is one of the inputs");
    }
}

}  // namespace tool
