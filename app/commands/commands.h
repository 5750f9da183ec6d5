#pragma once

#include <quillon/app/cli/command_line.h>
#include <quillon/app/cli/output.h>
#include <quillon/app/ports/application_list.h>
#include <quillon/app/ports/cheat_sheet_exports.h>
#include <quillon/app/ports/clock.h>
#include <quillon/app/ports/diagnosis.h>
#include <quillon/app/ports/menu_reader.h>
#include <quillon/app/ports/running_program.h>

#include <filesystem>
#include <string>
#include <variant>

namespace quillon {

/// Each carries out one command of the command line and says how it ended. `dataFolder` holds what the user
/// has learned and noted; it need not exist, nor be named.

ExitCode runApps(ApplicationList& applications, MenuReader& menuReader, Output& output);

/// What sheets are made with.
struct SheetServices {
    ApplicationList& applications;
    MenuReader& menuReader;
    CheatSheetExports& exports; ///< for documents
    const Clock& clock;
};
ExitCode runSheet(
    const SheetCommand& command, const SheetServices& services, const std::filesystem::path& dataFolder,
    Output& output);

ExitCode runStats(const StatsCommand& command, const std::filesystem::path& dataFolder, Output& output);

/// The application that `quillon practice --app NAME` means, by its bundle identifier: one whose shortcuts
/// have been read. Says why there is none, and how the command ends then.
std::variant<std::string, ExitCode>
appToPractise(const std::string& name, const std::filesystem::path& dataFolder, Output& output);

ExitCode runDoctor(Diagnosis& diagnosis, const std::filesystem::path& dataFolder, Output& output);

ExitCode runQuit(RunningProgram& program, Output& output);

} // namespace quillon
