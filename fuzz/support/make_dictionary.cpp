#include <lvdata/records/RecordClass.h>

#include <iostream>
#include <set>
#include <string>

// make_dictionary: prints a dictionary for libFuzzer, the words that it tries in its inputs: what XML and the texts of
// numbers consist of, and every name and every text that the records know.

namespace lv::fuzz {
namespace {

using Words = std::set<std::string>;

constexpr const char* syntax = R"("<"
"</"
"/>"
">"
"=\""
"<!--"
"-->"
"<![CDATA["
"]]>"
"<?xml version=\"1.0\"?>"
"<!DOCTYPE"
"&amp;"
"&lt;"
"&quot;"
"&#13;"
"&#32;"
"&#x0;"
"\x0D\x0A"
"\xEF\xBB\xBF"
"\x00"
"|"
"true"
"TRUE"
"2147483647"
"2147483648"
"-2147483648"
"-2147483649"
"4294967295"
"4294967296"
"-1"
)";

void addWords(Words& words, const Condition& condition) {
    words.insert(condition.texts.begin(), condition.texts.end());
    for (const Condition& alternative : condition.alternatives) {
        addWords(words, alternative);
    }
}

void addWords(Words& words, const Description& node) {
    words.insert({node.name, node.keyText, node.constant.value_or("")});
    for (const auto* const conditions : {&node.writtenWhen, &node.readWhen}) {
        for (const Condition& condition : *conditions) {
            addWords(words, condition);
        }
    }
    for (const Description::QuantityWhen& other : node.otherQuantities) {
        addWords(words, other.condition);
    }
    for (const Description& child : node.children) {
        addWords(words, child);
    }
}

std::string quoted(const std::string& word) {
    std::string text = "\"";
    for (const char letter : word) {
        text += letter == '"' || letter == '\\' ? std::string("\\") + letter : std::string(1, letter);
    }
    return text + '"';
}

Words wordsOfRecords() {
    Words words;
    for (const RecordClass& each : RecordClasses()) {
        addWords(words, each.describe());
    }
    words.erase("");
    return words;
}

}  // namespace
}  // namespace lv::fuzz

int main() {
    std::cout << lv::fuzz::syntax;
    for (const std::string& word : lv::fuzz::wordsOfRecords()) {
        std::cout << lv::fuzz::quoted(word) << '\n';
    }
}
