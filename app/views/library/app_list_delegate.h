#pragma once

#include <quillon/app/views/components/app_icon_cache.h>
#include <quillon/app/views/components/theme_source.h>

#include <QStyledItemDelegate>

namespace quillon {

/// Draws one application of the Library's list: its icon, its name, how many shortcuts it has.
class AppListDelegate : public QStyledItemDelegate {
    Q_OBJECT

  public:
    /// Both outlive it.
    AppListDelegate(ThemeSource& themes, AppIconCache& icons, QObject* parent);

    void
    paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

  private:
    ThemeSource& m_themes;
    AppIconCache& m_icons;
};

} // namespace quillon
