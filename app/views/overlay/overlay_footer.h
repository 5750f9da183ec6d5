#pragma once

#include <quillon/app/views/components/keys_view.h>
#include <quillon/app/views/components/symbol_view.h>
#include <quillon/app/views/components/themed_label.h>
#include <quillon/app/views/components/themed_widget.h>

#include <optional>

namespace quillon {

/// How the overlay is closed, and the command that its user clicks most. Where room is short the command's
/// title is shortened first; then the command is left out.
class OverlayFooter : public ThemedWidget {
    Q_OBJECT

  public:
    explicit OverlayFooter(ThemeSource& themes, QWidget* parent = nullptr);

    struct MostClicked {
        QString title;
        Shortcut shortcut;

        bool operator==(const MostClicked&) const = default;
    };

    void setHint(const QString& hint);
    void setMostClicked(const std::optional<MostClicked>& command);

  protected:
    void themeChanged() override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    void wearTheme();
    void share();

    SymbolView* m_symbol;
    ThemedLabel* m_hint;
    ThemedLabel* m_mostClicked;
    ThemedLabel* m_command;
    KeysView* m_keys;
    std::optional<MostClicked> m_shown;
};

} // namespace quillon
