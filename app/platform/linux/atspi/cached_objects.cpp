#include "cached_objects.h"

#include "bus_values.h"

#include <quillon/base/unicode.h>

#include <systemd/sd-bus.h>

namespace quillon::atspi {
namespace {

/// Object, application, parent, index, number of children (-1: not counted), interfaces, name, role,
/// description, states.
constexpr const char* entryType = "(so)(so)(so)iiassusau";

bool belongsToMenus(Role role) {
    switch (role) {
    case Role::menu:
    case Role::menuItem:
    case Role::checkMenuItem:
    case Role::radioMenuItem:
    case Role::separator:
    case Role::tearOffMenuItem:
    case Role::popupMenu: return true;
    default: return false;
    }
}

struct Entry {
    const char* busName = nullptr;
    const char* path = nullptr;
    std::int32_t childCount = 0;
    const char* name = nullptr;
    std::uint32_t role = 0;
    StateSet states;
};

/// Reads the entry that was entered; texts point into the message.
bool readEntry(sd_bus_message* message, Entry& entry) {
    const char* skipped = nullptr;
    std::int32_t index = 0;
    const bool isRead = sd_bus_message_read(
                            message, "(so)(so)(so)ii", &entry.busName, &entry.path, &skipped, &skipped,
                            &skipped, &skipped, &index, &entry.childCount)
                            > 0
                        && sd_bus_message_skip(message, "as") > 0
                        && sd_bus_message_read(message, "sus", &entry.name, &entry.role, &skipped) > 0;
    if (!isRead)
        return false;
    const auto states = readStates(message);
    entry.states = states.value_or(StateSet{});
    return states.has_value();
}

} // namespace

void CachedObjects::ask(
    AccessibilityCalls& calls, const std::string& busName, AccessibilityCalls::Then<CachedObjects> then) {
    const auto read = [busName, limit = calls.limits().titleBytes](
                          sd_bus_message* message) -> std::optional<CachedObjects> {
        if (sd_bus_message_enter_container(message, 'a', "((so)(so)(so)iiassusau)") <= 0)
            return std::nullopt;
        CachedObjects cached;
        cached.m_busName = busName;
        while (sd_bus_message_enter_container(message, 'r', entryType) > 0) {
            Entry entry;
            if (!readEntry(message, entry))
                break;
            ++cached.m_toldOf;
            const auto role = static_cast<Role>(entry.role);
            if (belongsToMenus(role) && entry.busName == busName) {
                std::string name(unicode::truncated(entry.name, limit));
                cached.m_byPath.insert_or_assign(
                    entry.path, CachedObject{std::move(name), entry.states, role, entry.childCount != 0});
            }
            sd_bus_message_exit_container(message);
        }
        return cached;
    };
    const ObjectRef cache{busName, "/org/a11y/atspi/cache"};
    calls.pipeline().ask(
        {cache, "org.a11y.atspi.Cache", "GetItems", {}},
        [read, then = std::move(then)](Answer answer, sd_bus_message* message) {
            then(answer == Answer::value ? read(message) : std::nullopt);
        });
}

const CachedObject* CachedObjects::find(const ObjectRef& object) const {
    if (object.busName != m_busName)
        return nullptr;
    const auto found = m_byPath.find(object.path);
    return found == m_byPath.end() ? nullptr : &found->second;
}

} // namespace quillon::atspi
