// One line for each document of a folder: 08_batch FOLDER
//
// The root element decides which record a document is.

#include <lvdata/analysis/files/files.h>

#include <algorithm>
#include <filesystem>
#include <iostream>
#include <iterator>
#include <string>
#include <vector>

namespace {

namespace fs = std::filesystem;

std::vector<fs::path> documentsIn(const fs::path& folder) {
    std::vector<fs::path> paths;
    for (const fs::directory_entry& entry : fs::directory_iterator(folder)) {
        if (entry.path().extension() == ".xml") {
            paths.push_back(entry.path());
        }
    }
    std::sort(paths.begin(), paths.end());
    return paths;
}

std::string summaryOf(const fs::path& path) {
    const lv::analysis::LoadedRecord loaded = lv::analysis::load(path);
    if (!loaded) {
        return loaded.result.message();
    }
    const lv::DataObject& record = *loaded.record;
    return std::string(loaded.recordClass->name) + ' ' + std::to_string(record.version.value) + '.' +
           std::to_string(record.minorVersion.value);
}

}  // namespace

int main(int argc, char** argv) {
    const std::vector<std::string> arguments(argv, std::next(argv, argc));
    if (arguments.size() != 2) {
        std::cerr << "usage: 08_batch FOLDER\n";
        return 2;
    }
    for (const fs::path& path : documentsIn(arguments[1])) {
        std::cout << path.filename().string() << ": " << summaryOf(path) << '\n';
    }
}
