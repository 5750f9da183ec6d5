#pragma once

#include <QString>

namespace quillon {

/// What the places and things that a sentence mentions are called on one platform. Only such nouns differ;
/// the sentences themselves are the same everywhere.
struct Vocabulary {
    QString computer;              ///< "your …"
    QString system;                ///< what provides the menus
    QString accessibilitySettings; ///< where reading menus is allowed
    QString accessibilityAsker;    ///< who wants it to be allowed; begins a sentence
    QString accessibilityPlace;    ///< where this is done: "in …"
    QString accessibilitySwitch;   ///< what is turned on there
    QString dataPlace;             ///< where everything that was learned is: "your …"

    static const Vocabulary& macOS();
    static const Vocabulary& linuxDesktop();
    /// Of the platform that this program was built for.
    static const Vocabulary& here();
};

} // namespace quillon
