#pragma once

#include <QAccessible>

namespace quillon {

/// Lets screen readers read and set a `StepSlider` by its number instead of by its steps. More than once does
/// no harm.
void installStepSliderAccessible();

} // namespace quillon
