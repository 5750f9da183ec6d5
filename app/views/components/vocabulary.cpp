#include "vocabulary.h"

#include <QCoreApplication>

namespace quillon {

Vocabulary Vocabulary::macOS() {
    return {
        .computer = QCoreApplication::translate("Vocabulary", "Mac"),
        .system = QCoreApplication::translate("Vocabulary", "macOS"),
        .accessibilitySettings =
            QCoreApplication::translate("Vocabulary", "System Settings > Privacy & Security > Accessibility"),
        .commandKey = {},
        .optionKey = {},
        .controlKey = {},
        .accessibilityAsker = QCoreApplication::translate("Vocabulary", "macOS"),
        .accessibilityPlace =
            QCoreApplication::translate("Vocabulary", "System Settings > Privacy & Security > Accessibility"),
        .accessibilitySwitch = QCoreApplication::translate("Vocabulary", "Quillon"),
        .dataPlace = QCoreApplication::translate("Vocabulary", "Library folder"),
    };
}

Vocabulary Vocabulary::linuxDesktop() {
    return {
        .computer = QCoreApplication::translate("Vocabulary", "computer"),
        .system = QCoreApplication::translate("Vocabulary", "Linux"),
        .accessibilitySettings =
            QCoreApplication::translate("Vocabulary", "your desktop’s accessibility settings"),
        .commandKey = QCoreApplication::translate("Vocabulary", "the Super or Windows key"),
        .optionKey = QCoreApplication::translate("Vocabulary", "Alt"),
        .controlKey = QCoreApplication::translate("Vocabulary", "Ctrl"),
        .accessibilityAsker = QCoreApplication::translate("Vocabulary", "Your desktop"),
        .accessibilityPlace =
            QCoreApplication::translate("Vocabulary", "its accessibility settings or in this window"),
        .accessibilitySwitch = QCoreApplication::translate("Vocabulary", "accessibility"),
        .dataPlace = QCoreApplication::translate("Vocabulary", "data folder"),
    };
}

Vocabulary Vocabulary::here() {
#ifdef Q_OS_MACOS
    return macOS();
#else
    return linuxDesktop();
#endif
}

} // namespace quillon
