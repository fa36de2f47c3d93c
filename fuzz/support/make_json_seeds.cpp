#include <lvdata/analysis/Document.h>
#include <lvdata/analysis/json/JSON.h>

#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <string>

// make_json_seeds GOLDEN OUTPUT: makes the first inputs of json_fuzzer from the golden documents, in
// OUTPUT/json_fuzzer/.

namespace lv::fuzz {
namespace {

namespace fs = std::filesystem;

void makeSeed(const fs::path& source, const fs::path& target, const analysis::Catalogue& catalogue) {
    std::ifstream file(source, std::ios::binary);
    const analysis::Document document({std::istreambuf_iterator<char>(file), {}}, catalogue);
    if (document.refusal() == nullptr) {
        std::ofstream(target, std::ios::binary) << analysis::toJSON(document.record(), catalogue, {true}).text;
    }
}

void makeSeeds(const fs::path& golden, const fs::path& output) {
    const analysis::Catalogue catalogue;
    fs::create_directories(output);
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(golden)) {
        if (entry.path().extension() == ".xml") {
            const std::string record = entry.path().parent_path().filename().string();
            makeSeed(entry.path(), output / (record + '.' + entry.path().stem().string() + ".json"), catalogue);
        }
    }
}

}  // namespace
}  // namespace lv::fuzz

int main(int argumentCount, char** arguments) {
    if (argumentCount != 3) {
        std::cerr << "usage: make_json_seeds GOLDEN OUTPUT\n";
        return 2;
    }
    lv::fuzz::makeSeeds(arguments[1], std::filesystem::path(arguments[2]) / "json_fuzzer");
}
