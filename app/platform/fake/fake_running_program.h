#pragma once

#include <quillon/app/ports/running_program.h>

#include <string>
#include <vector>

namespace quillon {

/// A running program that answers as it was told to.
class FakeRunningProgram final : public RunningProgram {
  public:
    Answer ask(ProgramRequest request) override {
        asked.push_back(request);
        return answer;
    }

    Answer askForPractice(const std::string& bundleID) override {
        practised.push_back(bundleID);
        return answer;
    }

    Answer answer = Answer::notRunning;
    std::vector<ProgramRequest> asked;
    std::vector<std::string> practised;
};

} // namespace quillon
