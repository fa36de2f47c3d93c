// Reads a document, changes one value and writes it again: 02_edit_file INPUT OUTPUT
//
// The new document holds what the record knows. Comments and elements of other applications are not kept.

#include <lvdata/lvdata.h>

#include <fstream>
#include <iostream>
#include <iterator>
#include <string>
#include <vector>

namespace {

bool load(const std::string& path, std::string& text) {
    std::ifstream file(path, std::ios::binary);
    text.assign(std::istreambuf_iterator<char>(file), {});
    return file.is_open() && !file.bad();
}

bool save(const std::string& path, const std::string& text) {
    std::ofstream file(path, std::ios::binary);
    file << text;
    return static_cast<bool>(file.flush());
}

int fail(const std::string& message) {
    std::cerr << message << '\n';
    return 1;
}

}  // namespace

int main(int argc, char** argv) {
    const std::vector<std::string> arguments(argv, std::next(argv, argc));
    if (arguments.size() != 3) {
        return fail("usage: 02_edit_file INPUT OUTPUT");
    }
    std::string text;
    if (!load(arguments[1], text)) {
        return fail("cannot read the input");
    }
    lv::MonitorParameter parameter;
    if (const lv::ParseResult result = parameter.parseXML(text); !result) {
        return fail("refused, line " + std::to_string(result.line) + ": " + result.reason);
    }

    const double before = parameter.redGain_x();
    if (!lv::trySet(parameter.redGain, before * 0.985, lv::quantities::gain)) {
        return fail("the new gain cannot be stored");
    }
    std::cout << "red gain: " << before << " -> " << parameter.redGain_x() << '\n';

    return save(arguments[2], parameter.toXMLString(true, true)) ? 0 : fail("cannot write the output");
}
