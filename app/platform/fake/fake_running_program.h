#pragma once

#include <quillon/app/ports/running_program.h>

#include <vector>

namespace quillon {

/// A running program that answers as it was told to.
class FakeRunningProgram final : public RunningProgram {
  public:
    Answer ask(ProgramRequest request) override {
        asked.push_back(request);
        return answer;
    }

    Answer answer = Answer::notRunning;
    std::vector<ProgramRequest> asked;
};

} // namespace quillon
