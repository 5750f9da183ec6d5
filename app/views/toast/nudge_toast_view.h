#pragma once

#include "toast_layout.h"

#include <quillon/app/core/app_model.h>
#include <quillon/app/views/components/keys_view.h>
#include <quillon/app/views/components/rounded_background.h>
#include <quillon/app/views/components/symbol_view.h>
#include <quillon/app/views/components/themed_widget.h>
#include <quillon/kit/menu/menu_entry.h>

#include <optional>

namespace quillon {

/// The command of the model's nudge, and the keys that would have done the same. The content of the toast's
/// panel, of one size whatever it shows. To a screen reader it is one notice, read with each new nudge.
class NudgeToastView : public ThemedWidget {
    Q_OBJECT

  public:
    /// All of them outlive the view.
    NudgeToastView(AppModel& model, ThemeSource& themes, QWidget* parent = nullptr);

    /// The command that it shows; none before the first.
    const std::optional<MenuEntry>& entry() const { return m_entry; }
    /// Shows a command. Every nudge of the model is shown by itself.
    void setEntry(MenuEntry entry);

    const ToastLayout& arrangement() const { return m_arrangement; }

    /// Of the rounded background, in logical pixels.
    static constexpr double cornerRadius = 16;

  protected:
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;
    void themeChanged() override;

  private:
    void showNudge();
    void arrange();
    void tellAgain();

    AppModel& m_model;
    ToastFonts m_fonts;
    SymbolView* m_symbol;
    KeysView* m_keys;
    std::optional<MenuEntry> m_entry;
    ToastLayout m_arrangement;
    RoundedBackground m_background{cornerRadius};
    Subscription m_modelChange;
};

} // namespace quillon
