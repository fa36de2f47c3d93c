#include <lvdata/analysis/files/Descriptor.h>
#include <lvdata/analysis/files/files.h>
#include <lvdata/analysis/files/system_files.h>

#include <algorithm>
#include <array>

namespace lv::analysis {
namespace {

using Path = std::filesystem::path;

/// Up to that many bytes; fewer at the end.
std::string readUpTo(std::size_t most, int descriptor) {
    std::string text;
    std::array<char, 65536> block{};
    while (text.size() < most) {
        const std::size_t got = readSome(descriptor, block.data(), std::min(block.size(), most - text.size()));
        if (got == 0) {
            break;
        }
        text.append(block.data(), got);
    }
    return text;
}

template <class Read>
FileContent contentOf(const Read& read) {
    try {
        return {read(), {}};
    } catch (const std::system_error& error) {
        return {"", error.code()};
    }
}

template <class Write>
SaveResult resultOf(const Write& write) {
    try {
        write();
        return {};
    } catch (const std::system_error& error) {
        return {error.what(), error.code()};
    }
}

}  // namespace

FileContent readFile(const Path& path, std::size_t most) {
    return contentOf([&] { return readUpTo(most, Descriptor(openForReading(path)).get()); });
}

FileContent readDescriptor(int descriptor, std::size_t most) {
    return contentOf([&] { return readUpTo(most, descriptor); });
}

SaveResult save(const Path& path, const DataObject& record, const SaveOptions& options) {
    std::string text = record.toXMLString(options.declaration, options.pretty);
    if (text.empty() || text.back() != '\n') {
        text += '\n';
    }
    return writeFile(path, text);
}

SaveResult writeFile(const Path& path, std::string_view text) {
    return resultOf([&] { writeTo(path, text); });
}

SaveResult writeDescriptor(int descriptor, std::string_view text) {
    return resultOf([&] { writeAll(descriptor, text); });
}

}  // namespace lv::analysis
