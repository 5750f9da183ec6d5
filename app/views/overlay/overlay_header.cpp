#include "overlay_header.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

constexpr int iconSize = 42;
constexpr int iconGap = 12;
constexpr int searchWidth = 280;
constexpr int searchGap = 18;

} // namespace

OverlayHeader::OverlayHeader(ThemeSource& themes, AppIconCache& icons, QWidget* parent)
    : QWidget(parent), m_icon(new AppIconView(themes, icons, iconSize, this)),
      m_name(new ThemedLabel(
          themes, [](const TextStyles& styles) { return bold(styles.title2); }, &Palette::primary, this)),
      m_count(new ThemedLabel(
          themes, [](const TextStyles& styles) { return styles.callout; }, &Palette::secondary, this)),
      m_search(new SearchBox(themes, u"Search shortcuts"_s, this)) {
    m_search->setFixedWidth(searchWidth);

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
    row->addWidget(m_search, 0, Qt::AlignVCenter);
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
