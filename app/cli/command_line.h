#pragma once

#include <quillon/app/ports/windows.h>
#include <quillon/kit/shortcut/key_labels.h>

#include <QStringList>

#include <cstdint>
#include <optional>
#include <string>
#include <variant>

namespace quillon {

/// What the exit code of the program means.
enum class ExitCode {
    success = 0,
    failure = 1,
    usage = 2,
    noSuchApp = 3,
    noAccessibility = 4,
    noShortcuts = 5,
};

enum class SheetFormat { text, json, markdown, pdf };

/// `quillon` alone: be the program.
struct RunCommand {
    bool operator==(const RunCommand&) const = default;
};
/// `quillon --service`, as the session bus starts it: be the program, and wait to be told what for.
struct ServeCommand {
    bool operator==(const ServeCommand&) const = default;
};
/// `quillon apps`
struct AppsCommand {
    bool operator==(const AppsCommand&) const = default;
};
/// A practice round to print instead of the whole sheet.
struct PracticeRequest {
    std::int64_t count = 0;            ///< how many commands are asked, at least 1
    std::optional<std::uint64_t> seed; ///< for a round that comes out the same again; absent for any round

    bool operator==(const PracticeRequest&) const = default;
};
/// `quillon sheet`: of the application called `appName`, of process `pid`, or of the front application.
struct SheetCommand {
    std::optional<std::string> appName;
    std::optional<std::int64_t> pid;
    std::string query;
    SheetFormat format = SheetFormat::text;
    std::optional<std::string> output;       ///< the file to write, in the system's encoding; with PDF alone
    std::optional<PracticeRequest> practice; ///< with text and JSON alone
    KeyLabels keys = KeyLabels::symbols;     ///< without effect on JSON

    bool operator==(const SheetCommand&) const = default;
};
/// `quillon show`
struct ShowCommand {
    bool sample = false;

    bool operator==(const ShowCommand&) const = default;
};
/// `quillon library` and the other windows by their identifiers.
struct WindowCommand {
    WindowName window = WindowName::welcome;
    std::optional<std::string> appName = {}; ///< what to practise; of the practice window alone

    bool operator==(const WindowCommand&) const = default;
};
enum class StatsFormat { text, json };

/// `quillon stats`: of the application called `appName`, or of all.
struct StatsCommand {
    std::optional<std::string> appName;
    StatsFormat format = StatsFormat::text;
    KeyLabels keys = KeyLabels::symbols; ///< without effect on JSON

    bool operator==(const StatsCommand&) const = default;
};
/// `quillon doctor`
struct DoctorCommand {
    bool operator==(const DoctorCommand&) const = default;
};
/// `quillon quit`
struct QuitCommand {
    bool operator==(const QuitCommand&) const = default;
};
/// `--help`, `--version`: a text to print.
struct PrintCommand {
    std::string text;

    bool operator==(const PrintCommand&) const = default;
};
/// Not a command line of this program.
struct UsageError {
    std::string message; ///< one sentence, without the program's name

    bool operator==(const UsageError&) const = default;
};

using Command = std::variant<
    RunCommand, ServeCommand, AppsCommand, SheetCommand, ShowCommand, WindowCommand, StatsCommand,
    DoctorCommand, QuitCommand, PrintCommand, UsageError>;

/// Takes a leading --verbose away from the arguments after the program's name; whether there was one.
bool takeVerbose(QStringList& arguments);

/// Reads the arguments after the program's name. What it says is in the language that is spoken then.
Command parseCommandLine(const QStringList& arguments);

} // namespace quillon
