#include <tests/support/model/model.h>
#include <tests/support/model/reading.h>
#include <tests/support/model/writing.h>

namespace lv::test {

bool readText(Node& root, const std::string& text) {
    tinyxml2::XMLDocument document;
    return document.Parse(text.c_str(), text.size()) == tinyxml2::XML_SUCCESS &&
           read(root, Found(document.RootElement()));
}

std::string writtenText(const Node& root, bool hlgSwitch, const PrintForm& form) {
    tinyxml2::XMLDocument document;
    if (form.declaration) {
        document.InsertEndChild(document.NewDeclaration("xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"no\""));
    }
    write(root, document, hlgSwitch);
    tinyxml2::XMLPrinter printer(nullptr, !form.pretty);
    document.Print(&printer);
    return printer.CStr();
}

}  // namespace lv::test
