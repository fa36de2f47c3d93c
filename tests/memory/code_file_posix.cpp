#include "code_file.h"

#include <dlfcn.h>

namespace lv::test {

std::string fileOf(const void* code) {
    Dl_info found = {};
    if (dladdr(code, &found) == 0) {
        return "unknown";
    }
    const std::string path = found.dli_fname;
    return path.substr(path.rfind('/') + 1);
}

}  // namespace lv::test
