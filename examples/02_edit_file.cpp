// Reads a document, changes one value and writes it again: 02_edit_file INPUT OUTPUT
//
// The new document holds what the record knows. Comments and elements of other applications are not kept; `lvdata
// check` lists what a document would lose.

#include <lvdata/analysis/files/files.h>
#include <lvdata/lvdata.h>

#include <iostream>
#include <iterator>
#include <string>
#include <vector>

namespace {

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
    lv::MonitorParameter parameter;
    if (const auto loaded = lv::analysis::load(arguments[1], parameter); !loaded) {
        return fail(arguments[1] + ": " + loaded.message());
    }

    const double before = parameter.redGain_x();
    if (!lv::trySet(parameter.redGain, before * 0.985, lv::quantities::gain)) {
        return fail("the new gain cannot be stored");
    }
    std::cout << "red gain: " << before << " -> " << parameter.redGain_x() << '\n';

    // The file is replaced in one step, or left as it was.
    const auto saved = lv::analysis::save(arguments[2], parameter);
    return saved ? 0 : fail(arguments[2] + ": " + saved.reason);
}
