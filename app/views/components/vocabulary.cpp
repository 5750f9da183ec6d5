#include "vocabulary.h"

namespace quillon {

using namespace Qt::StringLiterals;

const Vocabulary& Vocabulary::macOS() {
    static const Vocabulary vocabulary{
        .computer = u"Mac"_s,
        .system = u"macOS"_s,
        .accessibilitySettings = u"System Settings > Privacy & Security > Accessibility"_s,
        .accessibilityAsker = u"macOS"_s,
        .accessibilityPlace = u"System Settings > Privacy & Security > Accessibility"_s,
        .accessibilitySwitch = u"Quillon"_s,
        .dataPlace = u"Library folder"_s,
    };
    return vocabulary;
}

const Vocabulary& Vocabulary::linuxDesktop() {
    static const Vocabulary vocabulary{
        .computer = u"computer"_s,
        .system = u"Linux"_s,
        .accessibilitySettings = u"your desktop’s accessibility settings"_s,
        .accessibilityAsker = u"Your desktop"_s,
        .accessibilityPlace = u"its accessibility settings or in this window"_s,
        .accessibilitySwitch = u"accessibility"_s,
        .dataPlace = u"data folder"_s,
    };
    return vocabulary;
}

const Vocabulary& Vocabulary::here() {
#ifdef Q_OS_MACOS
    return macOS();
#else
    return linuxDesktop();
#endif
}

} // namespace quillon
