#include <fuzz/support/picked_record.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <string>
#include <vector>

// make_seeds GOLDEN OUTPUT: makes the first inputs of every harness from the golden documents, in OUTPUT/<harness>/.

namespace lv::fuzz {
namespace {

namespace fs = std::filesystem;

struct Document {
    std::string name;
    std::string text;
};

std::vector<Document> documentsIn(const fs::path& folder) {
    std::vector<Document> documents;
    for (const fs::directory_entry& entry : fs::directory_iterator(folder)) {
        std::ifstream file(entry.path(), std::ios::binary);
        documents.push_back({entry.path().filename().string(), {std::istreambuf_iterator<char>(file), {}}});
    }
    std::sort(documents.begin(), documents.end(),
              [](const Document& left, const Document& right) { return left.name < right.name; });
    return documents;
}

/// What stands between the tags of a document, white space alone left out.
std::vector<std::string> textsOf(const std::string& document) {
    std::vector<std::string> texts;
    for (std::size_t end = document.find('>'); end != std::string::npos; end = document.find('>', end + 1)) {
        const std::string text = document.substr(end + 1, document.find('<', end) - end - 1);
        if (text.find_first_not_of(" \n") != std::string::npos) {
            texts.push_back(text);
        }
    }
    return texts;
}

class Seeds {
public:
    explicit Seeds(fs::path folder) : folder_(std::move(folder)) {}

    void add(const std::string& harness, const std::string& name, const std::string& input) const {
        fs::create_directories(folder_ / harness);
        std::ofstream(folder_ / harness / name, std::ios::binary) << input;
    }

    void addDocument(const std::string& record, char letter, const Document& document, const Document& next) const {
        const std::string name = record + '.' + document.name;
        add("record_fuzzer", name, letter + document.text);
        add("second_parse_fuzzer", name, letter + document.text + '\0' + next.text);
        add("tool_fuzzer", name, document.text);
        int count = 0;
        for (const std::string& text : textsOf(document.text)) {
            add("text_fuzzer", name + '.' + std::to_string(++count), "\1|" + text);
        }
    }

    void addRecord(const std::string& record, char letter, const std::vector<Document>& documents) const {
        for (std::size_t index = 0; index < documents.size(); ++index) {
            addDocument(record, letter, documents[index], documents[(index + 1) % documents.size()]);
        }
    }

private:
    fs::path folder_;
};

void makeSeeds(const fs::path& golden, const fs::path& output) {
    const Seeds seeds(output);
    const std::vector<std::string> records = rootElementNames(EveryRecord());
    for (std::size_t index = 0; index < records.size(); ++index) {
        seeds.addRecord(records[index], letterOf(index), documentsIn(golden / records[index]));
    }
}

}  // namespace
}  // namespace lv::fuzz

int main(int argumentCount, char** arguments) {
    if (argumentCount != 3) {
        std::cerr << "usage: make_seeds GOLDEN OUTPUT\n";
        return 2;
    }
    lv::fuzz::makeSeeds(arguments[1], arguments[2]);
}
