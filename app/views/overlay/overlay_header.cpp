#include "overlay_header.h"

#include "overlay_texts.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include <algorithm>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

constexpr int iconSize = 42;
constexpr int iconGap = 12;
constexpr int widestSearch = 280;
constexpr int narrowestSearch = 120;
/// What the search leaves for the names where there is little room.
constexpr int roomForNames = 110;
constexpr int searchGap = 18;
/// The search takes its width first, the names take the rest.
constexpr int searchStretch = 1000;

} // namespace

OverlayHeader::OverlayHeader(ThemeSource& themes, AppIconCache& icons, QWidget* parent)
    : QWidget(parent), m_icon(new AppIconView(themes, icons, iconSize, this)),
      m_name(new ThemedLabel(
          themes, [](const TextStyles& styles) { return bold(styles.title2); }, &Palette::primary, this)),
      m_count(new ThemedLabel(
          themes, [](const TextStyles& styles) { return styles.callout; }, &Palette::secondary, this)),
      m_search(new SearchBox(themes, OverlayTexts::searchPrompt(), this)) {
    m_search->setMinimumWidth(narrowestSearch);
    m_search->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    for (ThemedLabel* label : {m_name, m_count})
        label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);

    auto* names = new QVBoxLayout;
    names->setSpacing(1);
    names->addStretch();
    names->addWidget(m_name);
    names->addWidget(m_count);
    names->addStretch();

    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(iconGap);
    row->addWidget(m_icon);
    row->addLayout(names, 1);
    row->addSpacing(searchGap - iconGap);
    row->addWidget(m_search, searchStretch);
}

void OverlayHeader::resizeEvent(QResizeEvent* event) {
    const int others = iconSize + iconGap + roomForNames + searchGap;
    m_search->setMaximumWidth(std::clamp(contentsRect().width() - others, narrowestSearch, widestSearch));
    QWidget::resizeEvent(event);
}

void OverlayHeader::setApp(const std::string& bundleID, const QString& name) {
    m_icon->setBundleID(bundleID);
    m_name->setText(name);
}

void OverlayHeader::setNoApp() {
    m_icon->showProductMark();
    m_name->setText(u"Quillon"_s);
}

void OverlayHeader::setCount(const QString& line) {
    m_count->setText(line);
    m_count->setVisible(!line.isEmpty());
}

} // namespace quillon
