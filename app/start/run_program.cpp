#include "run_program.h"

#include "panel_log.h"
#include "stall_hook.h"

#include <quillon/app/languages/translations.h>
#include <quillon/app/platform/qt/end_signals.h>

#include <QApplication>

#include <array>
#include <string_view>

namespace quillon {

namespace {

ExitCode failUnanswered(Output& output) {
    return output.fail(
        ExitCode::failure, TerminalText::sentence(QCoreApplication::translate(
                               "CommandLine", "the running instance does not answer")));
}

ExitCode failWithoutWindow(Output& output) {
    return output.fail(ExitCode::failure, "the running instance has no such window");
}

/// How the event loop ended.
enum LoopEnd { quit = 0, startAnew = 1 };

/// Runs until the user quits or the session that was lost is back.
LoopEnd run(Program& program, Instance& instance, const ProgramWish& wish) {
    const Subscription returned = instance.onReturn([](Instance::Return how) {
        QApplication::exit(how == Instance::Return::startAnew ? LoopEnd::startAnew : LoopEnd::quit);
    });
    const EndSignals signals([] { QApplication::quit(); });
    program.start(wish);
    return static_cast<LoopEnd>(QApplication::exec());
}

struct Ended {
    ExitCode code = ExitCode::success;
    LoopEnd how = LoopEnd::quit;
};

RunningProgram::Answer askFor(const ProgramWish& wish, RunningProgram& program) {
    return wish.practiceApp.empty() ? program.ask(wish.request) : program.askForPractice(wish.practiceApp);
}

Ended runInstance(Platform& platform, const ProgramWish& wish, Output& output) {
    switch (askFor(wish, platform.runningProgram())) {
    case RunningProgram::Answer::done: return {};
    case RunningProgram::Answer::refused: return {failWithoutWindow(output)};
    case RunningProgram::Answer::silent: return {failUnanswered(output)};
    case RunningProgram::Answer::notRunning:
    case RunningProgram::Answer::unreachable: break;
    }
    const std::unique_ptr<QObject> panels = panelLog();
    Program program(platform);
    const std::unique_ptr<Instance> instance = platform.makeInstance();
    switch (instance->claim(program.requests())) {
    case Instance::Claim::first: break;
    case Instance::Claim::noSession:
        output.say(TerminalText::sentence(QCoreApplication::translate(
            "CommandLine", "the session bus cannot be reached; menus cannot be read, see quillon doctor")));
        break;
    case Instance::Claim::taken:
        if (askFor(wish, platform.runningProgram()) == RunningProgram::Answer::done)
            return {};
        return {failUnanswered(output)};
    case Instance::Claim::unreachable: return {failUnanswered(output)};
    }
    const std::unique_ptr<QObject> measuring = stallHook();
    return {ExitCode::success, run(program, *instance, wish)};
}

} // namespace

ExitCode runProgram(Platform& platform, const ProgramWish& wish, int& argc, char** argv, Output& output) {
    if (const auto problem = platform.prepareDisplay())
        return output.fail(ExitCode::failure, TerminalText::of(*problem));
    QApplication::setApplicationName(QStringLiteral("Quillon")); // trays and screen readers tell it
    QApplication::setDesktopFileName(QStringLiteral("app.quillon.Quillon"));

    // What was asked of the first start is done; how it tells what it does stays.
    char* const verbose = argc > 1 && std::string_view(argv[1]) == "--verbose" ? argv[1] : nullptr;
    Ended ended;
    {
        const QApplication application(argc, argv);
        const Translations translations;
        QApplication::setQuitOnLastWindowClosed(false);
        ended = runInstance(platform, wish, output);
    }
    if (ended.how == LoopEnd::startAnew) {
        std::array<char*, 3> again{argv[0], verbose, nullptr};
        if (!platform.startAnew(again.data()))
            return output.fail(ExitCode::failure, "could not start again after the session bus was lost");
    }
    return ended.code;
}

} // namespace quillon
