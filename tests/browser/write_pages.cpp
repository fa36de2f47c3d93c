// write_pages FOLDER: writes pages of every kind, to be opened by open_pages.mjs.
#include <tests/analysis/report/report_pages.h>

#include <fstream>
#include <iostream>

int main(int count, char** arguments) {
    if (count != 2) {
        std::cerr << "usage: write_pages FOLDER\n";
        return 2;
    }
    for (const lv::test::NamedPage& page : lv::test::everyPage()) {
        std::ofstream file(std::string(arguments[1]) + "/" + page.name, std::ios::binary);
        file << page.text;
        if (!file.flush()) {
            std::cerr << "cannot write " << page.name << '\n';
            return 1;
        }
    }
    return 0;
}
