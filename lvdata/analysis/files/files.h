#pragma once

#include <lvdata/analysis/Catalogue.h>
#include <lvdata/core/DataObject.h>
#include <lvdata/records/RecordClass.h>
#include <lvdata/xml/Limits.h>

#include <cstddef>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>

namespace lv::analysis {

// Records and texts from files and into files. What goes wrong is a value, in words that can be shown; only
// `std::bad_alloc` is thrown. The functions have no state of their own and may be called from any thread.
//
//     const lv::analysis::LoadedRecord loaded = lv::analysis::load("monitor.xml");
//     if (!loaded) {
//         std::cerr << "monitor.xml: " << loaded.result.message() << '\n';
//     }

/// The content of a file, or why it could not be read. Converts to true when it was read.
struct FileContent {
    /// What was read; empty when it could not be read.
    std::string text;

    /// Why it could not be read: `error.message()` is "No such file or directory".
    std::error_code error;

    [[nodiscard]] explicit operator bool() const { return !error; }
};

/// Reads a file from its beginning, `most` bytes of it at most. To learn whether there is more, ask for one byte more
/// than you can take; so a device or a pipe without end does no harm.
[[nodiscard]] FileContent readFile(const std::filesystem::path& path, std::size_t most);

/// The same for an open descriptor, such as standard input, from where it stands. It stays open.
[[nodiscard]] FileContent readDescriptor(int descriptor, std::size_t most);

/// How loading a record ended: done, or why not. Converts to true when it is done.
struct LoadResult {
    /// How far loading came.
    enum class Outcome {
        done,                ///< The record was read.
        notReadable,         ///< The system did not let the file be read; `error` has its reason.
        beyondLimit,         ///< The document holds more than the limits allow; `excess` says of what.
        notXML,              ///< The text is not XML.
        nothingThere,        ///< The text is empty, or has no element.
        rootElementRefused,  ///< There is no record class of this root element, or the given record has another one.
    };

    /// Whether the record was read, and if not, what is wrong.
    Outcome outcome = Outcome::done;

    /// What is wrong, in words: "No such file or directory", "mismatched element". Empty when done.
    std::string reason;

    /// The line of the document that is to blame, counted from 1; 0 when none is.
    int line = 0;

    /// The reason of the system; set with `notReadable` only.
    std::error_code error;

    /// What there is too much of; set with `beyondLimit` only.
    std::optional<Excess> excess;

    /// What is wrong and where: "line 3: mismatched element"; without a line when none is to blame. Empty when done.
    [[nodiscard]] std::string message() const;

    [[nodiscard]] explicit operator bool() const { return outcome == Outcome::done; }
};

/// A record, or why there is none. Converts to true when there is one.
struct LoadedRecord {
    /// The record; null when it could not be loaded.
    std::unique_ptr<DataObject> record;

    /// How loading ended.
    LoadResult result;

    /// The class of the record; null when there is no record.
    const RecordClass* recordClass = nullptr;

    [[nodiscard]] explicit operator bool() const { return record != nullptr; }
};

/// Loads a record of the class that the document's root element names. A file, or a document in it, that is beyond the
/// limits is refused before it is parsed; so is a document with a NUL, where parsing would end. When the document has
/// an element "HLGSystemGamma" that is written on request only, `writeHLGSystemGamma` of the record is set, so that
/// saving keeps it.
[[nodiscard]] LoadedRecord load(const std::filesystem::path& path, const Limits& limits = {});

/// Loads into a record that you have, in the same way. When that is not possible, the record is unchanged.
[[nodiscard]] LoadResult load(const std::filesystem::path& path, DataObject& record, const Limits& limits = {});

/// As `load`, from a text.
[[nodiscard]] LoadedRecord loadText(const std::string& text, const Limits& limits = {});

/// The same for those who load many documents and have a catalogue: what a record class can contain is then not worked
/// out again for documents with an element "HLGSystemGamma". The catalogue is not needed afterwards.
[[nodiscard]] LoadedRecord load(const std::filesystem::path& path, const Catalogue& catalogue,
                                const Limits& limits = {});
[[nodiscard]] LoadedRecord loadText(const std::string& text, const Catalogue& catalogue, const Limits& limits = {});

/// As `load`, from a text into a record that you have.
[[nodiscard]] LoadResult loadText(const std::string& text, DataObject& record, const Limits& limits = {});

/// How saving ended: done, or why not. Converts to true when it is done.
struct SaveResult {
    /// What is wrong, in words: "No space left on device". Empty when done.
    std::string reason;

    /// The same as the system has it.
    std::error_code error;

    [[nodiscard]] explicit operator bool() const { return !error; }
};

/// The layout of a saved record.
struct SaveOptions {
    /// Whether it begins with the XML declaration.
    bool declaration = true;

    /// Whether it is indented by four spaces a level; otherwise there are no line breaks between elements.
    bool pretty = true;
};

/// Saves a record as an XML document in UTF-8, whose last line ends, as `writeFile` does.
[[nodiscard]] SaveResult save(const std::filesystem::path& path, const DataObject& record,
                              const SaveOptions& options = {});

/// Writes a text to a file. A regular file is replaced in one step by a finished new one with the rights of the old, or
/// it is left as it was; through a symbolic link it is the file that is replaced, not the link. Anything else of that
/// name, a device or a pipe, is written into; so is an open file under its name "/dev/fd/N", and what standard output
/// is redirected to.
///
/// A file that may not be written to is not replaced, and neither is one whose access list or attributes cannot be
/// kept. Other hard links to the file keep the old content. A signal that asks the program to end (SIGINT, SIGTERM,
/// SIGHUP) stops the writing with `std::errc::interrupted`, and nothing is left behind; with other threads see
/// `HeldSignals`.
[[nodiscard]] SaveResult writeFile(const std::filesystem::path& path, std::string_view text);

/// Writes a text to an open descriptor, such as standard output. It stays open.
[[nodiscard]] SaveResult writeDescriptor(int descriptor, std::string_view text);

}  // namespace lv::analysis
