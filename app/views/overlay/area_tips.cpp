#include "area_tips.h"

#include <QStringList>

#include <algorithm>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

/// A tip is taken for rich text only when it says so, or its markup would be shown.
AreaTip tipOf(const QStringList& lines, const QRectF& box) {
    return {u"<qt>"_s + lines.join(u"<br>"_s) + u"</qt>"_s, box};
}

std::optional<AreaTip> rowTip(const RowBox& row, const PreparedEntry& entry, const TextMeasure& measure) {
    const RowArranger arranger(measure, row.inner().width());
    if (!arranger.arrange(entry, row.submenu).isElided())
        return std::nullopt;
    QStringList lines{entry.title.toHtmlEscaped()};
    if (!entry.submenu.isEmpty())
        lines.append(entry.submenu.toHtmlEscaped());
    if (!entry.note.isEmpty())
        lines.append(u"<i>"_s + entry.note.toHtmlEscaped() + u"</i>"_s);
    return tipOf(lines, row.rect);
}

} // namespace

std::optional<AreaTip> tipAt(
    QPointF point, const AreaContent& content, const PreparedSheet& sheet, const AreaLayout& layout,
    const TextMeasure& measure) {
    if (const std::ptrdiff_t at = layout.rowAt(point); at >= 0) {
        const RowBox& row = layout.rows[static_cast<std::size_t>(at)];
        return rowTip(row, sheet.entries[row.entry], measure);
    }
    const auto heading = std::ranges::find_if(
        layout.headings, [point](const HeadingBox& box) { return box.rect.contains(point); });
    if (heading == layout.headings.end())
        return std::nullopt;
    const QString& text = heading->text(content);
    if (heading->font(measure).width(text) <= heading->rect.right() - heading->textLeft)
        return std::nullopt;
    return tipOf({text.toHtmlEscaped()}, heading->rect);
}

} // namespace quillon
