#include <lvdata/xml/detail/PrintedDocument.h>
#include <lvdata/xml/detail/Printer.h>
#include <lvdata/xml/detail/handle.h>

namespace lv::detail {

PrintedDocument::PrintedDocument(bool declaration, bool pretty) : printer_(std::make_unique<Printer>(!pretty)) {
    if (declaration) {
        printer_->addDeclaration();
    }
}

PrintedDocument::~PrintedDocument() = default;

std::string PrintedDocument::text() {
    printer_->closeInside({});
    toDocument(nodes_)->Accept(printer_.get());
    return printer_->text();
}

}  // namespace lv::detail
