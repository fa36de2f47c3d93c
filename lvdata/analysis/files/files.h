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

// Reading and writing records and texts as files. Errors are return values with a readable reason; only
// `std::bad_alloc` is thrown. The functions have no state and may be called from any thread.
//
//     const lv::analysis::LoadedRecord loaded = lv::analysis::load("monitor.xml");
//     if (!loaded) {
//         std::cerr << "monitor.xml: " << loaded.result.message() << '\n';
//     }

/// The content of a file, or why it could not be read. Converts to true when it was read.
struct FileContent {
    /// The content; empty when the file could not be read.
    std::string text;

    /// Why it could not be read: `error.message()` is "No such file or directory".
    std::error_code error;

    [[nodiscard]] explicit operator bool() const { return !error; }
};

/// Reads a file from its beginning, `most` bytes of it at most. To find out whether there is more, request one byte
/// more than you can take. So a device or a pipe without end does no harm.
[[nodiscard]] FileContent readFile(const std::filesystem::path& path, std::size_t most);

/// The same for an open descriptor, such as standard input, from its current position. It stays open.
[[nodiscard]] FileContent readDescriptor(int descriptor, std::size_t most);

/// The result of loading a record: done, or the reason for the failure. Converts to true when it is done.
struct LoadResult {
    /// The result of loading.
    enum class Outcome {
        done,                ///< The record was read.
        notReadable,         ///< The system could not read the file; `error` has its reason.
        beyondLimit,         ///< The document exceeds a limit; `excess` says which.
        notXML,              ///< The text is not XML.
        nothingThere,        ///< The text is empty, or has no element.
        rootElementRefused,  ///< No record class has this root element, or the given record has a different one.
    };

    /// Whether the record was read; if not, the kind of error.
    Outcome outcome = Outcome::done;

    /// The reason in words: "No such file or directory", "mismatched element". Empty when done.
    std::string reason;

    /// The line of the error, counted from 1; 0 when no line applies.
    int line = 0;

    /// The reason of the system; set with `notReadable` only.
    std::error_code error;

    /// The limit that is exceeded; set with `beyondLimit` only.
    std::optional<Excess> excess;

    /// The line and the reason: "line 3: mismatched element"; without a line when none applies. Empty when done.
    [[nodiscard]] std::string message() const;

    [[nodiscard]] explicit operator bool() const { return outcome == Outcome::done; }
};

/// A record, or why there is none. Converts to true when there is one.
struct LoadedRecord {
    /// The record; null when it could not be loaded.
    std::unique_ptr<DataObject> record;

    /// The result of loading.
    LoadResult result;

    /// The class of the record; null when there is no record.
    const RecordClass* recordClass = nullptr;

    [[nodiscard]] explicit operator bool() const { return record != nullptr; }
};

/// Loads a record of the class that the document's root element names. A file or document that exceeds the limits is
/// refused before it is parsed. A document with a NUL is refused, too, because parsing would end there. When the
/// document has an element "HLGSystemGamma" that is written on request only, `writeHLGSystemGamma` of the record is
/// set, so that saving keeps it.
[[nodiscard]] LoadedRecord load(const std::filesystem::path& path, const Limits& limits = {});

/// Loads into an existing record, in the same way. When that is not possible, the record is unchanged.
[[nodiscard]] LoadResult load(const std::filesystem::path& path, DataObject& record, const Limits& limits = {});

/// As `load`, from a text.
[[nodiscard]] LoadedRecord loadText(const std::string& text, const Limits& limits = {});

/// The same with a catalogue, for loading many documents: documents with an element "HLGSystemGamma" need the
/// descriptions, which are then not computed again each time. The catalogue is not needed afterwards.
[[nodiscard]] LoadedRecord load(const std::filesystem::path& path, const Catalogue& catalogue,
                                const Limits& limits = {});
[[nodiscard]] LoadedRecord loadText(const std::string& text, const Catalogue& catalogue, const Limits& limits = {});

/// As `load`, from a text into a record that you have.
[[nodiscard]] LoadResult loadText(const std::string& text, DataObject& record, const Limits& limits = {});

/// The result of saving: done, or the reason for the failure. Converts to true when it is done.
struct SaveResult {
    /// The reason in words: "No space left on device". Empty when done.
    std::string reason;

    /// The same as an error of the system.
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

/// Saves a record as an XML document in UTF-8 with a line feed at the end, as `writeFile` does.
[[nodiscard]] SaveResult save(const std::filesystem::path& path, const DataObject& record,
                              const SaveOptions& options = {});

/// Writes a text to a file. A regular file is replaced in one step by a complete new one with the same permissions, or
/// it stays unchanged. If the name is a symbolic link, the file is replaced, not the link. Anything else with that
/// name, a device or a pipe, is written to directly; so is an open file under its name "/dev/fd/N", and the target of a
/// redirected standard output.
///
/// A file that the user may not write to is not replaced, and neither is one whose access list or attributes cannot be
/// kept. Other hard links to the file keep the old content. A signal that asks the program to end (SIGINT, SIGTERM,
/// SIGHUP) stops the writing with `std::errc::interrupted`, and no file is left behind; if there are other threads, see
/// `HeldSignals`.
[[nodiscard]] SaveResult writeFile(const std::filesystem::path& path, std::string_view text);

/// Writes a text to an open descriptor, such as standard output. It stays open.
[[nodiscard]] SaveResult writeDescriptor(int descriptor, std::string_view text);

}  // namespace lv::analysis
