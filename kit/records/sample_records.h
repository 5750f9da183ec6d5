#pragma once

#include "annotations.h"
#include "usage.h"

/// What the user of the sample application (menu/sample_menus.h) has done and said so far.
namespace quillon::SampleMenus {

/// By entry id; no dates.
const UsageRecords& usage();

/// By entry id.
const Annotations& annotations();

} // namespace quillon::SampleMenus
