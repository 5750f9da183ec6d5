#include "bus_values.h"

#include <quillon/kit/base/unicode.h>

#include <systemd/sd-bus.h>

#include <cerrno>
#include <string_view>

namespace quillon::atspi {
namespace {

constexpr std::string_view nullPath = "/org/a11y/atspi/null";
constexpr std::string_view replacementCharacter = "\ufffd";

bool standsForNone(const ObjectRef& object) {
    return object.busName.empty() || object.path == nullPath;
}

} // namespace

std::optional<std::string> readText(sd_bus_message* message, std::size_t limit) {
    const char* text = nullptr;
    const int read = sd_bus_message_read_basic(message, 's', &text);
    if (read == -EBADMSG)
        return std::string(replacementCharacter);
    if (read <= 0)
        return std::nullopt;
    return std::string(unicode::truncated(text, limit));
}

std::optional<std::string> readVariantText(sd_bus_message* message, std::size_t limit) {
    if (sd_bus_message_enter_container(message, 'v', "s") <= 0)
        return std::nullopt;
    auto text = readText(message, limit);
    sd_bus_message_exit_container(message);
    return text;
}

std::optional<std::uint32_t> readNumber(sd_bus_message* message) {
    std::uint32_t number = 0;
    if (sd_bus_message_read_basic(message, 'u', &number) <= 0)
        return std::nullopt;
    return number;
}

std::optional<bool> readVariantFlag(sd_bus_message* message) {
    int flag = 0;
    if (sd_bus_message_read(message, "v", "b", &flag) <= 0)
        return std::nullopt;
    return flag != 0;
}

std::optional<Extents> readExtents(sd_bus_message* message) {
    Extents extents;
    if (sd_bus_message_read(message, "(iiii)", &extents.x, &extents.y, &extents.width, &extents.height) <= 0)
        return std::nullopt;
    return extents;
}

std::optional<ObjectRef> readObject(sd_bus_message* message) {
    const char* busName = nullptr;
    const char* path = nullptr;
    if (sd_bus_message_read(message, "(so)", &busName, &path) <= 0)
        return std::nullopt;
    return ObjectRef{busName, path};
}

std::optional<ObjectRef> readRealObject(sd_bus_message* message) {
    auto object = readObject(message);
    return object && !standsForNone(*object) ? std::move(object) : std::nullopt;
}

std::optional<std::vector<ObjectRef>> readObjects(sd_bus_message* message, std::size_t limit) {
    if (sd_bus_message_enter_container(message, 'a', "(so)") < 0)
        return std::nullopt;
    std::vector<ObjectRef> objects;
    while (objects.size() < limit) {
        const auto object = readObject(message);
        if (!object)
            break;
        if (!standsForNone(*object))
            objects.push_back(*object);
    }
    return objects;
}

std::optional<StateSet> readStates(sd_bus_message* message) {
    const void* bytes = nullptr;
    std::size_t size = 0;
    if (sd_bus_message_read_array(message, 'u', &bytes, &size) < 0)
        return std::nullopt;
    const auto* words = static_cast<const std::uint32_t*>(bytes);
    StateSet states;
    if (size >= sizeof(std::uint32_t))
        states.bits = words[0];
    if (size >= 2 * sizeof(std::uint32_t))
        states.bits |= std::uint64_t{words[1]} << 32;
    return states;
}

} // namespace quillon::atspi
