#include "accessibility_calls.h"

#include "bus_values.h"

namespace quillon::atspi {
namespace {

constexpr const char* actionInterface = "org.a11y.atspi.Action";
constexpr const char* componentInterface = "org.a11y.atspi.Component";
constexpr const char* applicationInterface = "org.a11y.atspi.Application";
constexpr const char* selectionInterface = "org.a11y.atspi.Selection";
constexpr const char* propertiesInterface = "org.freedesktop.DBus.Properties";

/// Places are those of the screen, not of a window.
constexpr std::uint32_t onScreen = 0;

/// Hands over what `read` makes of an answer; absent without one.
template <class T, class Read>
CallPipeline::Callback answerWith(std::function<void(std::optional<T>)> then, Read read) {
    return [then = std::move(then), read = std::move(read)](Answer answer, sd_bus_message* message) {
        then(answer == Answer::value ? read(message) : std::optional<T>());
    };
}

/// Sets one bit of a set that is spread over several words.
template <std::size_t words>
void setBit(std::array<std::int32_t, words>& set, std::uint32_t bit) {
    constexpr std::uint32_t bitsOfWord = 32;
    std::int32_t& word = set.at(bit / bitsOfWord);
    word = static_cast<std::int32_t>(static_cast<std::uint32_t>(word) | (1U << (bit % bitsOfWord)));
}

Call::MatchRule matchRule(const Condition& condition) {
    Call::MatchRule rule;
    const bool wantsMissing = !condition.missingStates.empty();
    rule.stateMatch = wantsMissing ? Call::MatchRule::none : Call::MatchRule::all;
    for (const State state : wantsMissing ? condition.missingStates : condition.states)
        setBit(rule.states, static_cast<std::uint32_t>(state));
    if (condition.role)
        setBit(rule.roles, static_cast<std::uint32_t>(*condition.role));
    return rule;
}

} // namespace

void AccessibilityCalls::textProperty(
    const ObjectRef& object, const char* interface, const char* property, Then<std::string> then) {
    m_pipeline.ask(
        {object, propertiesInterface, "Get", {interface, property}},
        answerWith(std::move(then), [limit = m_limits.titleBytes](sd_bus_message* message) {
            return readVariantText(message, limit);
        }));
}

void AccessibilityCalls::name(const ObjectRef& object, Then<std::string> then) {
    textProperty(object, accessibleInterface, "Name", std::move(then));
}

void AccessibilityCalls::toolkitName(const ObjectRef& application, Then<std::string> then) {
    textProperty(application, applicationInterface, "ToolkitName", std::move(then));
}

void AccessibilityCalls::toolkitVersion(const ObjectRef& application, Then<std::string> then) {
    textProperty(application, applicationInterface, "Version", std::move(then));
}

void AccessibilityCalls::role(const ObjectRef& object, Then<Role> then) {
    m_pipeline.ask(
        {object, accessibleInterface, "GetRole", {}},
        answerWith(std::move(then), [](sd_bus_message* message) {
            const auto number = readNumber(message);
            return number ? std::optional(static_cast<Role>(*number)) : std::nullopt;
        }));
}

void AccessibilityCalls::states(const ObjectRef& object, Then<StateSet> then) {
    m_pipeline.ask({object, accessibleInterface, "GetState", {}}, answerWith(std::move(then), readStates));
}

void AccessibilityCalls::size(const ObjectRef& object, Then<Size> then) {
    extents(object, [then = std::move(then)](std::optional<Extents> extents) {
        then(extents ? std::optional(Size{extents->width, extents->height}) : std::nullopt);
    });
}

void AccessibilityCalls::extents(const ObjectRef& object, Then<Extents> then) {
    m_pipeline.ask(
        {object, componentInterface, "GetExtents", {onScreen}}, answerWith(std::move(then), readExtents));
}

void AccessibilityCalls::objectAt(
    const ObjectRef& object, std::int32_t x, std::int32_t y, Then<ObjectRef> then) {
    m_pipeline.ask(
        {object, componentInterface, "GetAccessibleAtPoint", {x, y, onScreen}},
        answerWith(std::move(then), readRealObject));
}

void AccessibilityCalls::selectedChild(const ObjectRef& object, Then<ObjectRef> then) {
    m_pipeline.ask(
        {object, selectionInterface, "GetSelectedChild", {std::int32_t{0}}},
        answerWith(std::move(then), readRealObject));
}

void AccessibilityCalls::children(const ObjectRef& object, Then<std::vector<ObjectRef>> then) {
    m_pipeline.ask(
        {object, accessibleInterface, "GetChildren", {}},
        answerWith(std::move(then), [limit = m_limits.itemsAtMost + 1](sd_bus_message* message) {
            return readObjects(message, limit);
        }));
}

void AccessibilityCalls::descendants(
    const ObjectRef& object, const Condition& condition, std::size_t most,
    Then<std::vector<ObjectRef>> then) {
    constexpr std::uint32_t canonicalOrder = 1;
    constexpr bool atAnyDepth = true;
    m_pipeline.ask(
        {object,
         "org.a11y.atspi.Collection",
         "GetMatches",
         {matchRule(condition), canonicalOrder, static_cast<std::int32_t>(most), atAnyDepth}},
        answerWith(std::move(then), [most](sd_bus_message* message) { return readObjects(message, most); }));
}

void AccessibilityCalls::keyBinding(const ObjectRef& object, Then<std::string> then) {
    m_pipeline.ask(
        {object, actionInterface, "GetKeyBinding", {std::int32_t{0}}},
        answerWith(std::move(then), [limit = m_limits.bindingBytes](sd_bus_message* message) {
            auto binding = readText(message, limit + 1);
            const bool isUsable = binding && binding->size() <= limit;
            return isUsable ? binding : std::nullopt;
        }));
}

void AccessibilityCalls::processId(const std::string& busName, Then<std::int64_t> then) {
    const ObjectRef bus{"org.freedesktop.DBus", "/org/freedesktop/DBus"};
    m_pipeline.ask(
        {bus, "org.freedesktop.DBus", "GetConnectionUnixProcessID", {busName}},
        answerWith(std::move(then), [](sd_bus_message* message) {
            const auto number = readNumber(message);
            return number ? std::optional<std::int64_t>(*number) : std::nullopt;
        }));
}

ObjectRef registryRoot() {
    return {"org.a11y.atspi.Registry", "/org/a11y/atspi/accessible/root"};
}

} // namespace quillon::atspi
