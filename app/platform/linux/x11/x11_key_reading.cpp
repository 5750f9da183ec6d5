#include "x11_key_reading.h"

#include "followed_keymap.h"

#include <quillon/app/platform/linux/keys/keyboard_places.h>
#include <quillon/kit/shortcut/key_code.h>

#include <utility>

namespace quillon {

X11KeyReading::X11KeyReading(X11Keyboard& keyboard, Background& background, std::string display)
    : m_keyboard(keyboard), m_background(background), m_display(std::move(display)) {}

X11KeyReading::~X11KeyReading() = default;

std::shared_ptr<FollowedKeymap> X11KeyReading::followed() {
    auto followed = m_followed.lock();
    if (!followed) {
        followed = std::make_shared<FollowedKeymap>(m_keyboard, m_background, m_display);
        m_followed = followed;
    }
    return followed;
}

Subscription X11KeyReading::follow(std::function<void()> changed) {
    struct Following {
        std::shared_ptr<FollowedKeymap> keymap;
        Subscription maps;
        Subscription groups;
    };
    auto following = std::make_shared<Following>();
    following->keymap = followed();
    following->maps = following->keymap->changed.subscribe(changed);
    following->groups =
        m_keyboard.onGroupChanged([changed = std::move(changed), &keymap = *following->keymap] {
            if (keymap.keymap())
                changed();
        });
    return Subscription([following = std::move(following)]() mutable { following.reset(); });
}

const Keymap* X11KeyReading::keymap() const {
    const auto followed = m_followed.lock();
    return followed ? followed->keymap() : nullptr;
}

std::optional<KeyStroke> X11KeyReading::stroke(const HardwarePress& press) const {
    const Keymap* const map = keymap();
    if (!map)
        return std::nullopt;
    const KeyState state = m_keyboard.keyState(press.state);
    if (auto stroke = map->stroke(press.key, state))
        return stroke;
    const KeyPrint print = map->print(press.key, state.group);
    if (print.plain.empty())
        return std::nullopt;
    const bool isShifted = state.modifiers.contains(Modifiers::shift) && !print.shifted.empty();
    return KeyStroke{
        .characters = isShifted ? print.shifted : print.plain,
        .keyCode = KeyCodes::ofCharacter(print.plain).value_or(KeyCodes::isoSection),
        .modifiers = state.modifiers};
}

std::optional<PrintedKeys> X11KeyReading::printed() const {
    const Keymap* const map = keymap();
    return map ? std::optional(printedKeys(*map, m_keyboard.keyState().group)) : std::nullopt;
}

} // namespace quillon
