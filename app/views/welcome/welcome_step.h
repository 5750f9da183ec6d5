#pragma once

#include "step_marker.h"

#include <quillon/app/views/components/themed_label.h>
#include <quillon/app/views/components/themed_widget.h>

#include <QVBoxLayout>

namespace quillon {

/// One step of the welcome: its marker, a title, a text, and what else belongs to it below.
class WelcomeStep : public ThemedWidget {
    Q_OBJECT

  public:
    WelcomeStep(ThemeSource& themes, int number, QWidget* parent = nullptr);

    void setText(const QString& title, const QString& body);
    void setDone(bool done) { m_marker->setDone(done); }

    /// Another text below the first.
    ThemedLabel* addText(const QString& text);
    /// A part below the text, over its whole width.
    void addInset(QWidget* part);
    /// Buttons below it, whose bodies begin where the text does.
    void addButtons(QWidget* buttons) { m_column->addWidget(buttons); }

    const StepMarker& marker() const { return *m_marker; }
    QString title() const { return m_title->text(); }
    QString body() const { return m_body->text(); }

  private:
    ThemedLabel* makeText();

    StepMarker* m_marker;
    ThemedLabel* m_title;
    QVBoxLayout* m_column;
    ThemedLabel* m_body;
};

} // namespace quillon
