#pragma once

#include "application_list.h"
#include "background.h"
#include "clock.h"
#include "desktop.h"
#include "diagnosis.h"
#include "instance.h"
#include "menu_reader.h"
#include "running_program.h"

#include <filesystem>
#include <memory>
#include <optional>
#include <string>

namespace quillon {

/// Everything that the program is wired to on one kind of system. It outlives whatever it hands out.
class Platform {
  public:
    virtual ~Platform() = default;

    virtual ApplicationList& applications() = 0;
    virtual MenuReader& menuReader() = 0;
    virtual Diagnosis& diagnosis() = 0;
    virtual RunningProgram& runningProgram() = 0;
    /// The file that holds the settings; empty when the user has no home.
    virtual std::filesystem::path settingsFile() const = 0;
    /// The folder that holds what the program has learned; empty when the user has no home.
    virtual std::filesystem::path dataFolder() const = 0;

    /// Makes ready what the toolkit looks at when it starts. Where there is no display for it, what the user
    /// is to be told; absent when there is one.
    virtual std::optional<std::string> prepareDisplay() = 0;
    /// For this process to become the running program.
    virtual std::unique_ptr<Instance> makeInstance() = 0;
    /// The desktop to run on. `background` and `clock` outlive it.
    virtual std::unique_ptr<Desktop> openDesktop(Background& background, const Clock& clock) = 0;
    /// Replaces this process by a new start of this program, with `arguments` (the program's name first, a
    /// null pointer last). Returns only when that is not possible: false.
    virtual bool startAnew(char** arguments) = 0;
};

} // namespace quillon
