#include "panel_log.h"

#include <quillon/app/ports/diagnostics/log.h>

#include <QApplication>
#include <QEvent>
#include <QWidget>

namespace quillon {

namespace {

class PanelLog final : public QObject {
  public:
    PanelLog() { QApplication::instance()->installEventFilter(this); }

    bool eventFilter(QObject* watched, QEvent* event) override {
        const bool isOpening = event->type() == QEvent::Show;
        if (isOpening || event->type() == QEvent::Hide)
            if (const auto* const widget = qobject_cast<QWidget*>(watched); widget && widget->isWindow())
                qCInfo(logPanels).noquote().nospace()
                    << (isOpening ? "opened " : "closed ") << widget->metaObject()->className() << " at "
                    << widget->x() << ", " << widget->y() << ", " << widget->width() << " x "
                    << widget->height();
        return false;
    }
};

} // namespace

std::unique_ptr<QObject> panelLog() {
    return logPanels().isInfoEnabled() ? std::make_unique<PanelLog>() : nullptr;
}

} // namespace quillon
