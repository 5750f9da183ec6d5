#include "toast_texts.h"

#include <QCoreApplication>

namespace quillon::ToastTexts {

QString caption() {
    return QCoreApplication::translate("Toast", "Next time");
}

QString spoken(const QString& keys, const QString& title) {
    return QCoreApplication::translate("Toast", "Next time: %1 for %2").arg(keys, title);
}

} // namespace quillon::ToastTexts
