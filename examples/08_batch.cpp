// One line for each document of a folder: 08_batch FOLDER
//
// The root element decides which record a document is.

#include <lvdata/lvdata.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <memory>
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

std::string summaryOf(const std::string& text) {
    lv::ParsedDocument document(text);
    if (const lv::ParseResult& parsed = document.parseResult(); !parsed) {
        return "line " + std::to_string(parsed.line) + ": " + parsed.reason;
    }
    const lv::RecordClass* const found = lv::recordClass(document.rootElementName());
    if (found == nullptr) {
        return "not a record: " + document.rootElementName();
    }
    const std::unique_ptr<lv::DataObject> record = found->make();
    if (const lv::ParseResult result = document.read(*record); !result) {
        return result.reason;
    }
    return found->name + (" " + std::to_string(record->version.value)) + '.' +
           std::to_string(record->minorVersion.value);
}

}  // namespace

int main(int argc, char** argv) {
    const std::vector<std::string> arguments(argv, std::next(argv, argc));
    if (arguments.size() != 2) {
        std::cerr << "usage: 08_batch FOLDER\n";
        return 2;
    }
    for (const fs::path& path : documentsIn(arguments[1])) {
        std::ifstream file(path, std::ios::binary);
        const std::string text(std::istreambuf_iterator<char>(file), {});
        std::cout << path.filename().string() << ": " << summaryOf(text) << '\n';
    }
}
