#include "Folder.h"

#include <algorithm>
#include <fstream>
#include <iterator>

#include <windows.h>

namespace lv::test {

namespace fs = std::filesystem;

Folder::Folder() {
    static int made = 0;
    folder_ = fs::temp_directory_path() /
              fs::u8path("lvdata-größe-日本-" + std::to_string(::GetCurrentProcessId()) + '-' + std::to_string(++made));
    fs::create_directory(folder_);
}

Folder::~Folder() {
    std::error_code ignored;
    fs::remove_all(folder_, ignored);
}

void Folder::write(const std::string& name, const std::string& text) const {
    std::ofstream(path(name), std::ios::binary) << text;
}

std::string Folder::read(const std::string& name) const {
    std::ifstream file(path(name), std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

std::vector<std::string> Folder::names() const {
    std::vector<std::string> found;
    for (const fs::directory_entry& entry : fs::directory_iterator(folder_)) {
        found.push_back(entry.path().filename().u8string());
    }
    std::sort(found.begin(), found.end());
    return found;
}

}  // namespace lv::test
