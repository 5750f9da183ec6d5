#pragma once

#include "keyboard_plan.h"

#include <quillon/app/ports/printed_keys.h>
#include <quillon/app/views/components/themed_widget.h>
#include <quillon/kit/shortcut/shortcut.h>

#include <QPainter>
#include <QPainterPath>
#include <QString>

#include <cstdint>
#include <optional>
#include <set>
#include <vector>

namespace quillon {

/// The user's keyboard, on which the keys of an answer light up. It is as wide as its room, up to a size.
class KeyboardView : public ThemedWidget {
    Q_OBJECT

  public:
    explicit KeyboardView(ThemeSource& themes, QWidget* parent = nullptr);

    /// What is on the keys; those of an ANSI keyboard until then.
    void setPrinted(PrintedKeys printed);
    /// Lights the keys of the answer and marks those that were pressed instead, each where there is one.
    void light(std::optional<Shortcut> answer, std::optional<Shortcut> pressed = std::nullopt);

    /// The codes of the keys that are lit, and of those that are marked.
    const std::set<std::int64_t>& lit() const { return m_lit; }
    const std::set<std::int64_t>& marked() const { return m_marked; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;

  protected:
    void paintEvent(QPaintEvent* event) override;
    void themeChanged() override;

  private:
    void follow();
    void name();
    double unit() const;
    QPainterPath shapeOf(const PlannedKey& key) const;
    void paintKey(QPainter& painter, const PlannedKey& key) const;
    void paintLegend(QPainter& painter, const PlannedKey& key, const QRectF& room, const QColor& ink) const;
    void paintText(QPainter& painter, const QRectF& room, const QString& legend, Qt::Alignment where) const;
    QString legendOf(std::int64_t code) const;

    PrintedKeys m_printed;
    std::vector<PlannedKey> m_plan;
    std::optional<Shortcut> m_answer;
    std::optional<Shortcut> m_pressed;
    std::set<std::int64_t> m_lit;
    std::set<std::int64_t> m_marked;
};

} // namespace quillon
