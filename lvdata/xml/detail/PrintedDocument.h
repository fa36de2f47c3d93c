#pragma once

#include <lvdata/xml/XMLDocument.h>
#include <lvdata/xml/detail/Output.h>

#include <memory>
#include <string>

namespace lv::detail {

class Printer;

/// A document that is made for its text alone, in either of two ways: what is written to `output` is printed directly,
/// without nodes; `nodes` is an ordinary document, which is printed at the end.
class PrintedDocument {
public:
    PrintedDocument(bool declaration, bool pretty);
    ~PrintedDocument();
    PrintedDocument(const PrintedDocument&) = delete;
    PrintedDocument& operator=(const PrintedDocument&) = delete;
    PrintedDocument(PrintedDocument&&) = delete;
    PrintedDocument& operator=(PrintedDocument&&) = delete;

    [[nodiscard]] const XMLDocument& nodes() const { return nodes_; }

    /// For the root element.
    [[nodiscard]] Output output() { return Output(*printer_); }

    /// The whole text, what was written to the output first. To be called once.
    [[nodiscard]] std::string text();

private:
    XMLDocument nodes_;
    std::unique_ptr<Printer> printer_;
};

}  // namespace lv::detail
