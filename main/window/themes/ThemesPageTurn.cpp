// SPDX-License-Identifier: MIT

// From the grid to the page of a theme and back.

#include "window/cards/CardView.h"
#include "window/themes/PageTransition.h"
#include "window/themes/ThemePage.h"
#include "window/themes/ThemePicture.h"
#include "window/themes/ThemesPage.h"

#include <QStackedLayout>

namespace ambrelle {

void ThemesPage::turnTo(QWidget& page)
{
    QWidget* before = m_pages->currentWidget();
    if (before == &page)
        return;
    const bool moves = m_transition->isWanted();
    const QPixmap gone = moves ? before->grab() : QPixmap();
    const std::optional<QRectF> from = moves ? pictureArea() : std::nullopt;
    QPixmap picture = moves ? m_page->picture().shown() : QPixmap(); // leaving its page, it forgets the largest one
    m_pages->setCurrentWidget(&page);
    if (!moves)
        return;
    m_pages->setGeometry(contentsRect());
    showChosen(); // in view
    if (picture.isNull())
        picture = m_page->picture().shown();
    const std::optional<QRectF> to = pictureArea();
    const bool grows = from && to && !picture.isNull();
    m_page->picture().setHeldBack(grows && &page == m_page);
    m_transition->run(
        gone, grows ? std::optional(PageTransition::Picture{picture, *from, *to, ThemePicture::corner}) : std::nullopt);
}

/// Where the chosen theme's picture is on the page that is shown; none: out of sight.
std::optional<QRectF> ThemesPage::pictureArea()
{
    if (m_pages->currentWidget() == m_page)
        return QRectF(QRect(m_page->picture().mapTo(this, QPoint()), m_page->picture().size()));
    const std::optional<ThemeChoice>& chosen = m_with.model.chosenTheme();
    const QModelIndex index = chosen ? m_themes.indexOf(*chosen) : QModelIndex();
    const QRectF area = m_grid->partRect(index, CardPart::picture);
    if (!m_grid->isVisible() || !area.intersects(QRectF(m_grid->viewport()->rect())))
        return std::nullopt;
    return area.translated(m_grid->viewport()->mapTo(this, QPoint()));
}

} // namespace ambrelle
