#pragma once

namespace quillon {

class LibraryDetail;

/// Lets screen readers see the list as rows, those of commands with their buttons. Before the first list is
/// made; more than once does no harm.
void installDetailAccessible();

/// Tells screen readers: other rows are there, a row tells something else, the keyboard went to the current
/// row or its current button.
void tellRowsReplaced(LibraryDetail& detail);
void tellRowChanged(LibraryDetail& detail, int row);
void tellFocus(LibraryDetail& detail);

} // namespace quillon
