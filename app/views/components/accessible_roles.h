#pragma once

namespace quillon {

/// Tells the toolkit how screen readers see the shared components: key caps are one text, symbols and icons
/// are no part of what is read. Each component asks for it; more than once does no harm.
void installAccessibleRoles();

} // namespace quillon
