#pragma once

#include <cstdint>
#include <functional>
#include <string>

namespace quillon::atspi {

/// An accessible object: where on the bus, and which of the objects there.
struct ObjectRef {
    std::string busName; ///< unique or well-known name of the connection that answers for it
    std::string path;    ///< object path

    bool operator==(const ObjectRef&) const = default;
};

/// The accessibility roles that matter here (`AtspiRole`).
enum class Role : std::uint32_t {
    list = 31,
    menu = 33,
    menuBar = 34,
    menuItem = 35,
    popupMenu = 41,
    table = 55,
    terminal = 60,
    text = 61,
    tree = 65,
    treeTable = 66,
    documentFrame = 82,
    documentSpreadsheet = 92,
    documentPresentation = 93,
    documentText = 94,
    documentWeb = 95,
    documentEmail = 96,
    listBox = 98,
};

/// The states that matter here (`AtspiStateType`), by bit.
enum class State : unsigned {
    active = 1,
    enabled = 8,
    focused = 12,
    sensitive = 24,
    showing = 25,
    visible = 30,
};

/// The states of an object, as the two words of `GetState` joined.
struct StateSet {
    std::uint64_t bits = 0;

    bool has(State state) const { return (bits >> static_cast<unsigned>(state)) & 1; }
    void insert(State state) { bits |= std::uint64_t{1} << static_cast<unsigned>(state); }
    /// Whether the user can use the object now.
    bool isUsable() const { return has(State::enabled) && has(State::sensitive); }
};

/// Width and height of an object, in the pixels of its toolkit.
struct Size {
    std::int32_t width = 0;
    std::int32_t height = 0;

    /// Whether it takes no room on the screen.
    bool isEmpty() const { return width <= 0 || height <= 0; }
};

/// Where an object is on the screen, in the pixels of its toolkit. One that is not there tells numbers that
/// mean nothing.
struct Extents {
    std::int32_t x = 0;
    std::int32_t y = 0;
    std::int32_t width = 0;
    std::int32_t height = 0;
};

} // namespace quillon::atspi

template <>
struct std::hash<quillon::atspi::ObjectRef> {
    std::size_t operator()(const quillon::atspi::ObjectRef& ref) const noexcept {
        return std::hash<std::string>{}(ref.path) * 31 + std::hash<std::string>{}(ref.busName);
    }
};
