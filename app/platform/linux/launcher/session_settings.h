#pragma once

#include "launcher_rule.h"

#include <quillon/app/platform/linux/session/session_kind.h>

namespace quillon {

/// The settings of this session's user: GSettings, and the folders of configuration that `environment` names.
LauncherSources sessionSettings(const Environment& environment = processEnvironment);

} // namespace quillon
