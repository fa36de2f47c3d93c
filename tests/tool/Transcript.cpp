#include "Transcript.h"

#include <tests/support/lines.h>

#include <cstddef>
#include <iterator>
#include <regex>

namespace {

using Lines = std::vector<std::string>;

constexpr const char* indentation = "    ";
constexpr const char* fence = "```";

bool startsWith(const std::string& text, const std::string& start) {
    return text.compare(0, start.size(), start) == 0;
}

Lines withoutEmptyEnd(Lines lines) {
    while (!lines.empty() && lines.back().empty()) {
        lines.pop_back();
    }
    return lines;
}

/// Whether the shell asks for another line.
bool isUnfinished(const std::string& command) {
    static const std::regex hereDocument("(?:^|[^<])<<-? *['\"]?([A-Za-z_]+)");
    std::smatch found;
    if (std::regex_search(command, found, hereDocument)) {
        const std::string end = '\n' + found[1].str();
        return command.size() < end.size() || command.compare(command.size() - end.size(), end.size(), end) != 0;
    }
    return !command.empty() && command.back() == '\\';
}

void addLine(Transcript& transcript, int number, const std::string& line) {
    if (startsWith(line, "$ ")) {
        transcript.push_back({number, line.substr(2), {}});
    } else if (startsWith(line, ">") && isUnfinished(transcript.back().text)) {
        transcript.back().text += '\n' + (line.size() > 2 ? line.substr(2) : "");
    } else {
        transcript.back().shown.push_back(line);
    }
}

/// Lines of code, in order, where their block starts at that line of the page.
Transcript transcriptOf(const Lines& block, int firstLine) {
    Transcript transcript;
    for (const std::string& line : block) {
        addLine(transcript, firstLine++, line);
    }
    for (TypedCommand& command : transcript) {
        command.shown = withoutEmptyEnd(command.shown);
    }
    return transcript;
}

/// Walks over the lines of a page, block by block.
class Page {
public:
    explicit Page(const std::string& text) : lines_(linesOf(text)) {}

    std::vector<Transcript> transcripts() {
        std::vector<Transcript> found;
        while (next_ < lines_.size()) {
            const std::size_t first = next_ + (isFence() ? 1 : 0);
            const Lines block = isFence() ? takeFenced() : takeIndented();
            if (!block.empty() && startsWith(block.front(), "$ ")) {
                found.push_back(transcriptOf(block, static_cast<int>(first) + 1));
            }
        }
        return found;
    }

private:
    [[nodiscard]] bool isFence() const { return startsWith(lines_[next_], fence); }

    Lines takeFenced() {
        Lines block;
        for (++next_; next_ < lines_.size() && !isFence(); ++next_) {
            block.push_back(lines_[next_]);
        }
        ++next_;
        return block;
    }

    /// Empty when the next line is not indented.
    Lines takeIndented() {
        Lines block;
        while (next_ < lines_.size() &&
               (startsWith(lines_[next_], indentation) || (!block.empty() && lines_[next_].empty()))) {
            block.push_back(lines_[next_].empty() ? "" : lines_[next_].substr(4));
            ++next_;
        }
        next_ += block.empty() ? 1 : 0;
        return block;
    }

    Lines lines_;
    std::size_t next_ = 0;
};

using Iterator = Lines::const_iterator;

/// What is left of a stream.
struct Rest {
    Iterator next;
    Iterator end;

    [[nodiscard]] bool isEmpty() const { return next == end; }
    [[nodiscard]] bool startsWith(const std::string& line) const { return !isEmpty() && *next == line; }
    [[nodiscard]] Rest afterLine() const { return {std::next(next), end}; }
};

bool shows(Rest shown, Rest output, Rest error) {
    if (shown.isEmpty()) {
        return output.isEmpty() && error.isEmpty();
    }
    if (shown.startsWith("...")) {
        return shows(shown.afterLine(), output, error) ||
               (!output.isEmpty() && shows(shown, output.afterLine(), error));
    }
    return (output.startsWith(*shown.next) && shows(shown.afterLine(), output.afterLine(), error)) ||
           (error.startsWith(*shown.next) && shows(shown.afterLine(), output, error.afterLine()));
}

}  // namespace

std::vector<Transcript> transcriptsIn(const std::string& page) {
    return Page(page).transcripts();
}

bool showsStreams(const Lines& shown, const Lines& output, const Lines& error) {
    return shows({shown.begin(), shown.end()}, {output.begin(), output.end()}, {error.begin(), error.end()});
}

std::vector<std::string> linesOf(const std::string& text) {
    return withoutEmptyEnd(lv::test::linesOf(text));
}
