#pragma once

#include "call_pipeline.h"
#include "object_ref.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace quillon::atspi {

/// The name and the version of the toolkit behind an application.
struct Toolkit {
    std::string name;
    std::string version;
};

/// What `descendants` looks for; nothing set fits every object.
struct Condition {
    std::optional<Role> role = {};
    std::vector<State> states = {};        ///< all of them
    std::vector<State> missingStates = {}; ///< none of them; not together with `states`
};

/// The questions that are asked of accessible objects. None of them changes anything in the application, and
/// none is `GetAll`, at which older Qt crashes. The answer is absent when there was none, an error, or one of
/// another type. Texts are UTF-8 and no longer than the limits allow.
class AccessibilityCalls {
  public:
    template <class T>
    using Then = std::function<void(std::optional<T>)>;

    AccessibilityCalls(CallPipeline& pipeline, const ReadLimits& limits)
        : m_pipeline(pipeline), m_limits(limits) {}

    void name(const ObjectRef& object, Then<std::string> then);
    void role(const ObjectRef& object, Then<Role> then);
    void states(const ObjectRef& object, Then<StateSet> then);
    void size(const ObjectRef& object, Then<Size> then);
    void extents(const ObjectRef& object, Then<Extents> then);
    /// The object directly below `object` that is at a place on the screen, in the pixels of its toolkit.
    void objectAt(const ObjectRef& object, std::int32_t x, std::int32_t y, Then<ObjectRef> then);
    /// The first of those children that are selected. Many objects cannot tell.
    void selectedChild(const ObjectRef& object, Then<ObjectRef> then);
    /// The children in order, without those that are no objects; at most one more than `itemsAtMost`.
    void children(const ObjectRef& object, Then<std::vector<ObjectRef>> then);
    /// The objects at any depth below an object that fulfil a condition, in no order to be relied on; at most
    /// `most`. Many applications cannot tell.
    void descendants(
        const ObjectRef& object, const Condition& condition, std::size_t most,
        Then<std::vector<ObjectRef>> then);
    /// The key binding of the object's first action, asked for whatever number of actions it claims.
    void keyBinding(const ObjectRef& object, Then<std::string> then);
    /// `application` is an application's root object.
    void toolkitName(const ObjectRef& application, Then<std::string> then);
    void toolkitVersion(const ObjectRef& application, Then<std::string> then);
    /// The process behind a connection; answered by the bus itself.
    void processId(const std::string& busName, Then<std::int64_t> then);

    CallPipeline& pipeline() { return m_pipeline; }
    const ReadLimits& limits() const { return m_limits; }

  private:
    void textProperty(
        const ObjectRef& object, const char* interface, const char* property, Then<std::string> then);

    CallPipeline& m_pipeline;
    ReadLimits m_limits;
};

/// The interface of accessible objects.
inline constexpr const char* accessibleInterface = "org.a11y.atspi.Accessible";

/// The root of all applications on the accessibility bus.
ObjectRef registryRoot();

} // namespace quillon::atspi
