#pragma once

#include <quillon/app/cli/command_line.h>
#include <quillon/app/cli/output.h>
#include <quillon/app/ports/application_list.h>
#include <quillon/app/ports/clock.h>
#include <quillon/app/ports/diagnosis.h>
#include <quillon/app/ports/menu_reader.h>
#include <quillon/app/ports/running_program.h>

#include <filesystem>

namespace quillon {

/// Each carries out one command of the command line and says how it ended. `dataFolder` holds what the user
/// has learned and noted; it need not exist, nor be named.

ExitCode runApps(ApplicationList& applications, MenuReader& menuReader, Output& output);

ExitCode runSheet(
    const SheetCommand& command, ApplicationList& applications, MenuReader& menuReader,
    const std::filesystem::path& dataFolder, const Clock& clock, Output& output);

ExitCode runStats(const StatsCommand& command, const std::filesystem::path& dataFolder, Output& output);

ExitCode runDoctor(Diagnosis& diagnosis, const std::filesystem::path& dataFolder, Output& output);

ExitCode runQuit(RunningProgram& program, Output& output);

} // namespace quillon
