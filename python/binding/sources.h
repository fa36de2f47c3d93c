#pragma once

#include <lvdata/analysis/Document.h>

#include <memory>
#include <string>

// Texts of documents, checked against the limits. None of these needs the GIL. The name of the file is empty for a
// document without a file.
namespace lv::python {

/// The content of a file. Throws `FileFailure` when it cannot be read, `ParseFailure` when it is too large.
[[nodiscard]] std::string readDocument(const std::string& file);

/// Throws `ParseFailure` when the text exceeds the limits.
void refuseExcess(const std::string& text, const std::string& file);

/// The record of a text, for those who do not look at the text itself. Throws `ParseFailure` when it holds none.
[[nodiscard]] std::unique_ptr<DataObject> recordIn(const std::string& text, const std::string& file);

/// The document of a text. Throws `ParseFailure` when it holds none.
[[nodiscard]] analysis::Document documentOf(const std::string& text, const std::string& file);

/// "monitor.xml: reason", as messages say it; without a file the reason alone.
[[nodiscard]] std::string inFile(const std::string& file, const std::string& reason);

}  // namespace lv::python
