// Prints what a document of a record consists of: one line for each element, attribute and text.
//
// usage: 04_description RECORD

#include <lvdata/lvdata.h>

#include <iostream>
#include <iterator>
#include <string>
#include <vector>

namespace {

std::string nameOf(const lv::Description& node) {
    switch (node.place) {
    case lv::Description::Place::attribute:
        return '@' + node.name;
    case lv::Description::Place::text:
        return "text";
    case lv::Description::Place::element:
        break;
    }
    return node.keyText.empty() ? node.name : node.name + " for " + node.keyText;
}

const char* contentOf(const lv::Description& node) {
    switch (node.content) {
    case lv::Description::Content::none:
        return "";
    case lv::Description::Content::string:
        return ", string";
    case lv::Description::Content::boolean:
        return ", boolean";
    case lv::Description::Content::unsignedNumber:
        return ", unsigned";
    case lv::Description::Content::signedNumber:
        return ", signed";
    case lv::Description::Content::unsignedArray:
        return ", unsigned array";
    case lv::Description::Content::signedArray:
        break;
    }
    return ", signed array";
}

void print(const lv::Description& node, const std::string& indentation) {
    std::cout << indentation << nameOf(node) << contentOf(node);
    if (node.quantity && node.quantity->factor != 1) {
        std::cout << " x " << node.quantity->factor;
    }
    if (node.isOptional) {
        std::cout << ", written when set";
    }
    for (const lv::Condition& condition : node.writtenWhen) {
        std::cout << ", written when " << condition.toString();
    }
    std::cout << '\n';
    for (const lv::Description& child : node.children) {
        print(child, indentation + "    ");
    }
}

}  // namespace

int main(int argc, char** argv) {
    const std::vector<std::string> arguments(argv, std::next(argv, argc));
    const std::string name = arguments.size() > 1 ? arguments[1] : "ParameterSetting";
    const lv::RecordClass* const found = lv::recordClass(name);
    if (found == nullptr) {
        std::cerr << "There is no record " << name << ". There are:\n";
        for (const lv::RecordClass& known : lv::RecordClasses()) {
            std::cerr << "    " << known.name << '\n';
        }
        return 2;
    }
    print(found->describe(), "");
}
