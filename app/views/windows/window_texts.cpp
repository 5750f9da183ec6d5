#include "window_texts.h"

#include <QCoreApplication>

namespace quillon::WindowTexts {

QString title(WindowName name) {
    switch (name) {
    case WindowName::welcome: return QCoreApplication::translate("Windows", "Welcome to Quillon");
    case WindowName::library: return QCoreApplication::translate("Windows", "Quillon Library");
    case WindowName::practice: return QCoreApplication::translate("Windows", "Practice");
    case WindowName::settings: return QCoreApplication::translate("Windows", "Quillon Settings");
    }
    return {};
}

} // namespace quillon::WindowTexts
