#include "service.h"

#include <array>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <set>
#include <thread>

namespace quillon::fake_app {
namespace {

constexpr const char* errorName = "org.freedesktop.DBus.Error.Failed";

/// A search of `org.a11y.atspi.Collection`, as far as it is understood here.
struct Search {
    static constexpr int none = 3; ///< of the ways in which states may match

    std::uint64_t states = 0;
    int stateMatch = 0;
    std::array<std::uint32_t, 4> roles{};
    bool hasRoles = false;
    int limit = 0;

    bool fits(const Object& object) const {
        const bool hasRole =
            !hasRoles || ((roles.at(object.claimedRole / 32) >> (object.claimedRole % 32)) & 1);
        const std::uint64_t found = object.stateBits() & states;
        return hasRole && (stateMatch == none ? found == 0 : found == states);
    }
};

bool readSearch(sd_bus_message* call, Search& search) {
    const void* words = nullptr;
    std::size_t size = 0;
    int limit = 0;
    if (sd_bus_message_enter_container(call, 'r', "aiia{ss}iaiiasib") < 0
        || sd_bus_message_read_array(call, 'i', &words, &size) < 0)
        return false;
    for (std::size_t i = 0; i < size / 4 && i < 2; ++i)
        search.states |= std::uint64_t{static_cast<const std::uint32_t*>(words)[i]} << (32 * i);
    if (sd_bus_message_read(call, "i", &search.stateMatch) < 0 || sd_bus_message_skip(call, "a{ss}i") < 0
        || sd_bus_message_read_array(call, 'i', &words, &size) < 0)
        return false;
    for (std::size_t i = 0; i < size / 4 && i < search.roles.size(); ++i) {
        search.roles.at(i) = static_cast<const std::uint32_t*>(words)[i];
        search.hasRoles = search.hasRoles || search.roles.at(i) != 0;
    }
    if (sd_bus_message_skip(call, "iasib") < 0 || sd_bus_message_exit_container(call) < 0
        || sd_bus_message_skip(call, "u") < 0 || sd_bus_message_read(call, "i", &limit) < 0)
        return false;
    search.limit = limit;
    return true;
}

} // namespace

Service::Service(sd_bus* bus, Objects objects, const Options& options)
    : m_bus(bus), m_objects(std::move(objects)), m_options(options) {
    const char* name = nullptr;
    sd_bus_get_unique_name(bus, &name);
    m_name = name ? name : "";
    if (!options.log.empty())
        m_log = std::fopen(options.log.c_str(), "w");
    sd_bus_add_filter(bus, nullptr, &Service::received, this);
}

bool Service::embed() {
    sd_bus_message* reply = nullptr;
    const int embedded = sd_bus_call_method(
        m_bus, "org.a11y.atspi.Registry", "/org/a11y/atspi/accessible/root", "org.a11y.atspi.Socket", "Embed",
        nullptr, &reply, "(so)", m_name.c_str(), m_objects.root().path.c_str());
    sd_bus_message_unref(reply);
    return embedded >= 0;
}

void Service::run() {
    for (;;) {
        const int progress = sd_bus_process(m_bus, nullptr);
        if (progress < 0 || (progress == 0 && sd_bus_wait(m_bus, UINT64_MAX) < 0))
            return;
    }
}

int Service::received(sd_bus_message* call, void* self, sd_bus_error*) {
    std::uint8_t type = 0;
    sd_bus_message_get_type(call, &type);
    return type == SD_BUS_MESSAGE_METHOD_CALL ? static_cast<Service*>(self)->handle(call) : 0;
}

int Service::handle(sd_bus_message* call) {
    note(call);
    const char* path = sd_bus_message_get_path(call);
    Object* object = m_objects.find(path ? path : "");
    if (misbehaves(call, object))
        return 1;
    if (object)
        return answer(call, *object);
    if (sd_bus_message_is_method_call(call, "org.a11y.atspi.Cache", "GetItems") > 0
        && m_objects.toolkit() == "Qt")
        return sd_bus_reply_method_return(call, "a((so)(so)(so)iiassusau)", 0);
    return sd_bus_reply_method_errorf(call, SD_BUS_ERROR_UNKNOWN_METHOD, "no such method here");
}

void Service::note(sd_bus_message* call) {
    if (!m_log)
        return;
    const char* interface = sd_bus_message_get_interface(call);
    std::fprintf(
        m_log, "%s %s %s\n", sd_bus_message_get_member(call), sd_bus_message_get_path(call),
        interface ? interface : "-");
    std::fflush(m_log);
}

/// Does what the options ask for at this call; true when it is not to be answered any more.
bool Service::misbehaves(sd_bus_message* call, const Object* object) {
    if (m_options.delay > 0)
        std::this_thread::sleep_for(std::chrono::milliseconds(m_options.delay));
    if (!object || !object->isInMenus)
        return false;
    ++m_menuCalls;
    if (m_options.stopAfter && m_menuCalls == *m_options.stopAfter)
        std::raise(SIGSTOP);
    if (m_options.exitAfter && m_menuCalls == *m_options.exitAfter)
        std::_Exit(0);
    const bool isMuteMember =
        m_options.muteMember.empty() || m_options.muteMember == sd_bus_message_get_member(call);
    if (object->path == m_options.mutePath && isMuteMember)
        return true;
    if (m_options.errorsAfter && m_menuCalls >= *m_options.errorsAfter) {
        sd_bus_reply_method_errorf(call, errorName, "as was asked for");
        return true;
    }
    return false;
}

int Service::answer(sd_bus_message* call, Object& object) {
    const char* interfaceText = sd_bus_message_get_interface(call);
    const std::string interface = interfaceText ? interfaceText : "";
    const std::string member = sd_bus_message_get_member(call);
    if (interface == "org.freedesktop.DBus.Properties" && member == "Get")
        return answerProperty(call, object);
    if (interface == "org.freedesktop.DBus.Properties" && member == "Set")
        return sd_bus_reply_method_return(call, "");
    if (interface == "org.a11y.atspi.Accessible")
        return answerAccessible(call, member, object);
    if (interface == "org.a11y.atspi.Action" && member == "GetKeyBinding" && object.isInMenus)
        return replyText(call, object.keyBinding);
    if (interface == "org.a11y.atspi.Component" && member == "GetExtents")
        return sd_bus_reply_method_return(call, "(iiii)", object.x, object.y, object.width, object.height);
    if (interface == "org.a11y.atspi.Component" && member == "GetAccessibleAtPoint")
        return answerPoint(call, object);
    if (interface == "org.a11y.atspi.Selection" && member == "GetSelectedChild"
        && m_objects.toolkit() != "Qt")
        return replyObject(call, object.selectedChild);
    if (interface == "org.a11y.atspi.Collection" && member == "GetMatches" && m_objects.toolkit() != "Qt")
        return answerMatches(call, object);
    return sd_bus_reply_method_errorf(call, SD_BUS_ERROR_UNKNOWN_METHOD, "no such method here");
}

int Service::answerAccessible(sd_bus_message* call, const std::string& member, Object& object) {
    if (member == "GetChildren")
        return replyObjects(call, {object.children.begin(), object.children.end()});
    if (member == "GetRole")
        return sd_bus_reply_method_return(call, "u", object.claimedRole);
    if (member == "GetState") {
        const std::uint64_t bits = object.stateBits();
        return sd_bus_reply_method_return(
            call, "au", 2, static_cast<std::uint32_t>(bits), static_cast<std::uint32_t>(bits >> 32));
    }
    if (member == "GetChildAtIndex") {
        int index = 0;
        sd_bus_message_read(call, "i", &index);
        const bool exists = index >= 0 && static_cast<std::size_t>(index) < object.children.size();
        const char* path =
            exists ? object.children[static_cast<std::size_t>(index)]->path.c_str() : "/org/a11y/atspi/null";
        return sd_bus_reply_method_return(call, "(so)", exists ? m_name.c_str() : "", path);
    }
    if (member == "GetInterfaces")
        return object.isInMenus ? sd_bus_reply_method_return(
                   call, "as", 2, "org.a11y.atspi.Accessible", "org.a11y.atspi.Action")
                                : sd_bus_reply_method_return(call, "as", 1, "org.a11y.atspi.Accessible");
    if (member == "GetApplication")
        return sd_bus_reply_method_return(call, "(so)", m_name.c_str(), m_objects.root().path.c_str());
    return sd_bus_reply_method_errorf(call, SD_BUS_ERROR_UNKNOWN_METHOD, "no such method here");
}

int Service::answerProperty(sd_bus_message* call, const Object& object) {
    const char* interface = nullptr;
    const char* propertyText = nullptr;
    if (sd_bus_message_read(call, "ss", &interface, &propertyText) < 0)
        return sd_bus_reply_method_errorf(call, SD_BUS_ERROR_INVALID_ARGS, "two texts, please");
    const std::string property = propertyText;
    if (property == "Name" && !object.name.empty() && object.name == m_options.refusedName)
        return sd_bus_reply_method_errorf(call, errorName, "as was asked for");
    if (property == "Name")
        return replyTextProperty(call, object.name);
    if (property == "ToolkitName")
        return replyTextProperty(call, m_objects.toolkit());
    if (property == "Version")
        return replyTextProperty(call, m_objects.toolkitVersion());
    if (property == "ChildCount")
        return sd_bus_reply_method_return(call, "v", "i", static_cast<int>(object.children.size()));
    if (property == "NActions")
        return sd_bus_reply_method_return(call, "v", "i", object.actions);
    if (property == "Parent") {
        const char* path = object.parent ? object.parent->path.c_str() : "/org/a11y/atspi/null";
        return sd_bus_reply_method_return(call, "v", "(so)", object.parent ? m_name.c_str() : "", path);
    }
    return sd_bus_reply_method_errorf(call, SD_BUS_ERROR_UNKNOWN_PROPERTY, "no such property here");
}

int Service::answerPoint(sd_bus_message* call, const Object& object) {
    int x = 0;
    int y = 0;
    sd_bus_message_read(call, "ii", &x, &y);
    for (const Object* child : object.children)
        if (x >= child->x && x < child->x + child->width && y >= child->y && y < child->y + child->height)
            return replyObject(call, child);
    return replyObject(call, nullptr);
}

/// None when there is no object.
int Service::replyObject(sd_bus_message* call, const Object* object) {
    const char* path = object ? object->path.c_str() : "/org/a11y/atspi/null";
    return sd_bus_reply_method_return(call, "(so)", m_name.c_str(), path);
}

/// Looks through everything below the object, depth first, entering no object twice.
int Service::answerMatches(sd_bus_message* call, const Object& object) {
    Search search;
    if (!readSearch(call, search))
        return sd_bus_reply_method_errorf(call, SD_BUS_ERROR_INVALID_ARGS, "not understood");
    std::vector<const Object*> found;
    std::set<const Object*> seen{&object};
    const auto look = [&](auto& self, const Object& parent) -> void {
        for (const Object* child : parent.children) {
            if ((search.limit > 0 && found.size() >= static_cast<std::size_t>(search.limit))
                || !seen.insert(child).second)
                continue;
            if (search.fits(*child))
                found.push_back(child);
            self(self, *child);
        }
    };
    look(look, object);
    return replyObjects(call, found);
}

int Service::replyObjects(sd_bus_message* call, const std::vector<const Object*>& objects) {
    sd_bus_message* reply = nullptr;
    sd_bus_message_new_method_return(call, &reply);
    sd_bus_message_open_container(reply, 'a', "(so)");
    for (const Object* object : objects)
        sd_bus_message_append(reply, "(so)", m_name.c_str(), object->path.c_str());
    sd_bus_message_close_container(reply);
    const int sent = sd_bus_send(m_bus, reply, nullptr);
    sd_bus_message_unref(reply);
    return sent;
}

int Service::replyText(sd_bus_message* call, const std::string& text) {
    return sd_bus_reply_method_return(call, "s", text.c_str());
}

/// Sends the text byte for byte, whether it is UTF-8 or not.
int Service::replyTextProperty(sd_bus_message* call, const std::string& text) {
    sd_bus_message* reply = nullptr;
    char* space = nullptr;
    sd_bus_message_new_method_return(call, &reply);
    sd_bus_message_open_container(reply, 'v', "s");
    sd_bus_message_append_string_space(reply, text.size(), &space);
    text.copy(space, text.size());
    sd_bus_message_close_container(reply);
    const int sent = sd_bus_send(m_bus, reply, nullptr);
    sd_bus_message_unref(reply);
    return sent;
}

} // namespace quillon::fake_app
