#pragma once

#include "library_rows.h"

#include <quillon/app/views/learned/learned_summary.h>

#include <vector>

namespace quillon {

/// The foot of an application's page: what its user learned. Without a chart where none of its weeks has a
/// count.
std::vector<LibraryRow> learnedRows(const LearnedSummary& summary);

} // namespace quillon
