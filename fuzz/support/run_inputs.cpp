#include <fuzz/support/harness.h>

#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <string>
#include <vector>

// The `main` of a harness that is built without libFuzzer: feeds it every file of the folders that are named, as a
// test.

namespace {

namespace fs = std::filesystem;

/// Whether the library kept its promises for the file's content.
bool runFile(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    const std::vector<char> content{std::istreambuf_iterator<char>(file), {}};
    const std::vector<std::uint8_t> bytes(content.begin(), content.end());
    try {
        return LLVMFuzzerTestOneInput(bytes.data(), bytes.size()) == 0;
    } catch (const std::exception& find) {
        std::cerr << path.string() << ": " << find.what() << '\n';
        return false;
    }
}

struct Count {
    int inputs = 0;
    int finds = 0;
};

void runFolder(const fs::path& folder, Count& count) {
    for (const fs::directory_entry& entry : fs::directory_iterator(folder)) {
        ++count.inputs;
        count.finds += runFile(entry.path()) ? 0 : 1;
    }
}

}  // namespace

int main(int argumentCount, char** arguments) {
    Count count;
    for (const std::string& folder : std::vector<std::string>(arguments + 1, arguments + argumentCount)) {
        runFolder(folder, count);
    }
    std::cout << count.inputs << " inputs, " << count.finds << " finds\n";
    return count.inputs > 0 && count.finds == 0 ? 0 : 1;
}
