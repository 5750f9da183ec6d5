#include "commands.h"
#include "overloaded.h"

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

int codeOf(quillon::ExitCode code) {
    return static_cast<int>(code);
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
            [](const AppsCommand& command) { return codeOf(runApps(command)); },
            [](const SheetCommand& command) { return codeOf(runSheet(command)); },
            [](const DoctorCommand& command) { return codeOf(runDoctor(command)); },
            [](const QuitCommand& command) { return codeOf(runQuit(command)); },
            [](const PrintCommand& print) {
                std::fputs(print.text.c_str(), stdout);
                return codeOf(ExitCode::success);
            },
            [](const UsageError& error) {
                std::fprintf(stderr, "%s\n", error.message.c_str());
                return codeOf(ExitCode::usage);
            },
        },
        parseCommandLine(argumentsAfterName(argc, argv)));
}
