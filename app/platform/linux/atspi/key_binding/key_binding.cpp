#include "key_binding.h"

#include "key_equivalents.h"

namespace quillon::atspi {

AxKeyEquivalent keyEquivalent(const KeyBinding& binding) {
    switch (binding.family) {
    case ToolkitFamily::qt: return qtKeyEquivalent(binding.text, binding.title);
    case ToolkitFamily::gtk:
    case ToolkitFamily::other: break;
    }
    return gtkKeyEquivalent(binding.text);
}

} // namespace quillon::atspi
