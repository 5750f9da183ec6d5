#include "followed_keymap.h"

#include "keymap_request.h"

#include <quillon/app/ports/diagnostics/log.h>

#include <chrono>
#include <utility>

namespace quillon {

namespace {

/// A change of the layout comes as several events within some milliseconds.
constexpr std::chrono::milliseconds pauseBetween{100};

} // namespace

FollowedKeymap::FollowedKeymap(X11Keyboard& keyboard, Background& background, std::string display)
    : m_background(background), m_display(std::move(display)) {
    m_pause.setSingleShot(true);
    m_pause.setInterval(pauseBetween);
    QObject::connect(&m_pause, &QTimer::timeout, &m_pause, [this] {
        if (std::exchange(m_isStale, false))
            follow();
    });
    m_changes = keyboard.onMapChanged([this] { follow(); });
    follow();
}

void FollowedKeymap::follow() {
    if (m_request || m_pause.isActive())
        m_isStale = true;
    else
        ask();
}

void FollowedKeymap::ask() {
    m_request = m_background.run([this, display = m_display](const std::stop_token&) {
        return [this, keymap = requestKeymap(display)] { arrived(keymap); };
    });
}

void FollowedKeymap::arrived(std::shared_ptr<const Keymap> keymap) {
    m_request.reset();
    m_pause.start();
    if (!keymap) {
        qCInfo(logInput)
            << "the X server does not tell the keyboard's map: shortcuts cannot be told from key presses";
        return;
    }
    m_keymap = std::move(keymap);
    qCInfo(logInput) << "the keyboard's map is read; its layouts:" << m_keymap->layoutCount();
    changed.emit();
}

} // namespace quillon
