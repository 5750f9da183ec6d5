#include "commands.h"
#include "overloaded.h"

#include <QCoreApplication>
#include <QStringList>

#include <clocale>
#include <cstdio>
#include <utility>

namespace {

QStringList argumentsAfterName(int argc, char** argv) {
    QStringList arguments;
    for (int i = 1; i < argc; ++i)
        arguments << QString::fromLocal8Bit(argv[i]);
    return arguments;
}

/// Commands without windows still need what makes Qt's sockets and buses work.
template <class Command>
auto withEventLoop(int& argc, char** argv, quillon::ExitCode (*run)(const Command&)) {
    return [&argc, argv, run](const Command& command) {
        const QCoreApplication application(argc, argv);
        return static_cast<int>(run(command));
    };
}

} // namespace

int main(int argc, char** argv) {
    using namespace quillon;
    std::setlocale(LC_ALL, "");
    return std::visit(
        Overloaded{
            [&](const RunCommand&) { return runProgram(argc, argv, FirstShow::nothing); },
            [&](const ShowCommand& show) {
                return runProgram(argc, argv, show.sample ? FirstShow::sample : FirstShow::overlay);
            },
            withEventLoop(argc, argv, runApps),
            withEventLoop(argc, argv, runSheet),
            withEventLoop(argc, argv, runDoctor),
            withEventLoop(argc, argv, runQuit),
            [](const PrintCommand& print) {
                std::fputs(print.text.c_str(), stdout);
                return static_cast<int>(ExitCode::success);
            },
            [](const UsageError& error) {
                std::fprintf(stderr, "%s\n", error.message.c_str());
                return static_cast<int>(ExitCode::usage);
            },
        },
        parseCommandLine(argumentsAfterName(argc, argv)));
}
