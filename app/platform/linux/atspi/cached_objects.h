#pragma once

#include "accessibility_calls.h"
#include "object_ref.h"

#include <cstddef>
#include <optional>
#include <string>
#include <unordered_map>

namespace quillon::atspi {

/// What an application's cache tells of one object.
struct CachedObject {
    std::string name;
    StateSet states;
    Role role{};
    bool mayHaveChildren = true; ///< which ones, and in what order, has to be asked
};

/// The menus of one application as `org.a11y.atspi.Cache` tells them at once: one answer instead of several
/// for each item. It has neither key bindings nor the order of menu items. Only GTK 2 and 3 fill it.
class CachedObjects {
  public:
    CachedObjects() = default;

    /// Asks for the cache of the application at `busName`; absent when it has none.
    static void
    ask(AccessibilityCalls& calls, const std::string& busName, AccessibilityCalls::Then<CachedObjects> then);

    /// The object, or nullptr when the cache lacks it or it is of no kind that menus are made of.
    const CachedObject* find(const ObjectRef& object) const;
    /// How many objects the cache told of, those of no menu included: what asking for it costs.
    std::size_t toldOf() const { return m_toldOf; }

  private:
    std::string m_busName;
    std::unordered_map<std::string, CachedObject> m_byPath;
    std::size_t m_toldOf = 0;
};

} // namespace quillon::atspi
