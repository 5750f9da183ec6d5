#include "run_program.h"
#include "this_platform.h"

#include <quillon/app/cheatsheet/exports/system_exports.h>
#include <quillon/app/cli/log_output.h>
#include <quillon/app/commands/commands.h>
#include <quillon/app/languages/translations.h>
#include <quillon/app/platform/qt/system_clock.h>
#include <quillon/app/ports/diagnostics/log.h>

#include <QCoreApplication>
#include <QGuiApplication>
#include <QStringList>

#include <clocale>

namespace {

using namespace quillon;

QStringList argumentsAfterName(int argc, char** argv) {
    QStringList arguments;
    for (int i = 1; i < argc; ++i)
        arguments << QString::fromLocal8Bit(argv[i]);
    return arguments;
}

/// Carries out what the command line asks for.
class Execution {
  public:
    Execution(int& argc, char** argv, const QStringList& arguments, Output& output)
        : m_argc(argc), m_argv(argv), m_arguments(arguments), m_output(output) {}

    ExitCode operator()(const RunCommand&) { return run(ProgramRequest::activate); }
    ExitCode operator()(const ServeCommand&) { return run(ProgramRequest::serve); }
    ExitCode operator()(const ShowCommand& show) {
        return run(show.sample ? ProgramRequest::showSample : ProgramRequest::showOverlay);
    }
    ExitCode operator()(const WindowCommand& command) {
        if (!command.appName)
            return run(openingOf(command.window));
        std::variant<std::string, ExitCode> app;
        withPlatform([&](Platform& platform) {
            app = appToPractise(*command.appName, platform.dataFolder(), m_output);
            return ExitCode::success;
        });
        if (const auto* failed = std::get_if<ExitCode>(&app))
            return *failed;
        return run(ProgramRequest::openPractice, std::get<std::string>(app));
    }
    ExitCode operator()(const AppsCommand&) {
        return withPlatform([&](Platform& platform) {
            return runApps(platform.applications(), platform.menuReader(), m_output);
        });
    }
    ExitCode operator()(const SheetCommand& sheet) {
        const auto run = [&](Platform& platform) {
            SystemExports exports;
            const SystemClock clock;
            return runSheet(
                sheet, {platform.applications(), platform.menuReader(), exports, clock},
                platform.dataFolder(), m_output);
        };
        if (sheet.format != SheetFormat::pdf)
            return withPlatform<QCoreApplication>(run);
        // Documents need the toolkit's fonts, and no display.
        qputenv("QT_QPA_PLATFORM", "offscreen");
        return withPlatform<QGuiApplication>(run);
    }
    ExitCode operator()(const StatsCommand& stats) {
        return withPlatform(
            [&](Platform& platform) { return runStats(stats, platform.dataFolder(), m_output); });
    }
    ExitCode operator()(const DoctorCommand&) {
        return withPlatform([&](Platform& platform) {
            return runDoctor(platform.diagnosis(), platform.dataFolder(), m_output);
        });
    }
    ExitCode operator()(const QuitCommand&) {
        return withPlatform([&](Platform& platform) { return runQuit(platform.runningProgram(), m_output); });
    }
    ExitCode operator()(const PrintCommand&) {
        const Said said(*this);
        m_output.print(TerminalText::linesOf(std::get<PrintCommand>(said.command).text));
        return ExitCode::success;
    }
    ExitCode operator()(const UsageError&) {
        const Said said(*this);
        return m_output.fail(ExitCode::usage, TerminalText::of(std::get<UsageError>(said.command).message));
    }

  private:
    ExitCode run(ProgramRequest request, const std::string& practiceApp = {}) {
        return runProgram(*thisPlatform(), {request, practiceApp}, m_argc, m_argv, m_output);
    }

    /// The command once more, with its texts in the session's language.
    struct Said {
        explicit Said(Execution& execution)
            : application(execution.m_argc, execution.m_argv),
              command(parseCommandLine(execution.m_arguments)) {}

        QCoreApplication application;
        Translations translations;
        Command command;
    };

    /// Commands without windows still need what makes Qt's sockets and buses work.
    template <class Application = QCoreApplication, class Work>
    ExitCode withPlatform(Work work) {
        const Application application(m_argc, m_argv);
        const Translations translations;
        const std::unique_ptr<Platform> platform = thisPlatform();
        return work(*platform);
    }

    int& m_argc;
    char** m_argv;
    const QStringList& m_arguments;
    Output& m_output;
};

} // namespace

int main(int argc, char** argv) {
    fillClosedStreams();
    std::setlocale(LC_ALL, "");
    logToOutput();
    QStringList arguments = argumentsAfterName(argc, argv);
    if (takeVerbose(arguments))
        logEverything();
    Output output;
    const ExitCode code = std::visit(Execution(argc, argv, arguments, output), parseCommandLine(arguments));
    return static_cast<int>(output.finish(code));
}
