#pragma once

#include <ostream>
#include <string>
#include <vector>

/// A command line of a transcript, and what a terminal shows after it.
struct TypedCommand {
    int line;  // of the page, counted from 1
    std::string text;
    std::vector<std::string> shown;  // a line "..." stands for any number of lines of standard output
};

inline void PrintTo(const TypedCommand& command, std::ostream* out) {
    *out << command.text;
}

/// The commands of one code block, typed one after the other in one shell.
using Transcript = std::vector<TypedCommand>;

/// The code blocks of a page in Markdown whose first line starts with "$ ". Lines that start with "> " continue a
/// command that ends with a backslash or has an open here-document, as a shell prompts for them. Empty lines before the
/// next command do not count.
[[nodiscard]] std::vector<Transcript> transcriptsIn(const std::string& page);

/// Whether the terminal shows all lines of both streams, each stream in its order and nothing else.
[[nodiscard]] bool showsStreams(const std::vector<std::string>& shown, const std::vector<std::string>& output,
                                const std::vector<std::string>& error);

/// The lines of a text, without empty ones at its end.
[[nodiscard]] std::vector<std::string> linesOf(const std::string& text);
