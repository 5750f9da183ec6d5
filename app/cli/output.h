#pragma once

#include "command_line.h"
#include "terminal_text.h"

#include <optional>
#include <string>
#include <string_view>

#include <unistd.h>

namespace quillon {

/// Where a command's results and messages go: the only way out for whatever is printed.
class Output {
  public:
    /// Open descriptors; `results` may be one that takes nothing.
    explicit Output(int results = STDOUT_FILENO, int messages = STDERR_FILENO)
        : m_results(results), m_messages(messages) {}

    /// A result for a person.
    void print(const TerminalText& text) { write(text.bytes()); }
    /// A result for another program, which gets it byte by byte.
    void printData(std::string_view bytes) { write(bytes); }
    /// Whether a person sees the results as they come.
    bool isTerminal() const { return ::isatty(m_results) == 1; }
    /// A result in JSON, on a line of its own. Absent is one that JSON cannot hold, which is a failure.
    void printJson(const std::optional<std::string>& json);
    /// A message to the user, in one line.
    void say(const TerminalText& message);
    /// A line of the log, beside the messages.
    void log(const TerminalText& line);
    /// Says `message` and passes `code` on.
    ExitCode fail(ExitCode code, const TerminalText& message);

    /// How the command ended that ended with `code`: results that did not arrive or could not be made make it
    /// a failure, and the user is told.
    ExitCode finish(ExitCode code);

  private:
    void write(std::string_view bytes);

    int m_results;
    int m_messages;
    int m_error = 0; ///< why results were lost, an errno; 0 when none were
    bool m_isMissingJson = false;
};

/// Where the program was started with standard streams closed, puts something in their places that takes
/// nothing, so that no file or socket opened later is taken for one of them. Before anything else is opened.
void fillClosedStreams();

} // namespace quillon
