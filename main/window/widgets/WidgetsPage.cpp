// SPDX-License-Identifier: MIT

#include "window/widgets/WidgetsPage.h"

#include "desktop/WidgetManager.h"
#include "foundation/Wording.h"
#include "model/AppSettings.h"
#include "placement/ScreenNames.h"
#include "placement/ScreenPlacement.h"
#include "skins/SkinRegistry.h"
#include "window/cards/CardLayout.h"
#include "window/cards/CardView.h"
#include "window/frame/MainWindowModel.h"
#include "window/look/ActionMenu.h"
#include "window/look/AppLook.h"
#include "window/look/Button.h"
#include "window/look/EmptyState.h"
#include "window/look/Measures.h"
#include "window/look/ReadingOrder.h"
#include "window/widgets/DesktopList.h"
#include "window/widgets/DesktopPane.h"
#include "window/widgets/FaceTiles.h"
#include "window/widgets/WidgetDrag.h"
#include "window/widgets/WidgetsScope.h"

#include <QHBoxLayout>
#include <QStackedLayout>
#include <QVBoxLayout>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

constexpr int widePane = 292;
constexpr int narrowPane = 240;
constexpr int paneGap = 4; // beside the gallery's own margin
constexpr CardShape galleryShape{.pictureRatio = 9.4 / 16, .leastWidth = 220};
constexpr std::chrono::milliseconds badgeTime{1200};

} // namespace

WidgetsPage::WidgetsPage(const WindowContext& context)
    : m_with(context)
    , m_edits(context)
    , m_scope(new WidgetsScope)
    , m_gallery(new QWidget)
    , m_view(new CardView)
    , m_nothing(new EmptyState)
    , m_pane(new DesktopPane(context))
    , m_tiles(new FaceTiles(context, *m_view))
    , m_drag(new WidgetDrag(context.host, *m_view->viewport()))
{
    auto* halves = new QHBoxLayout;
    halves->setSpacing(0);
    halves->addWidget(m_gallery, 1);
    halves->addWidget(m_pane);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(m_scope);
    column->addLayout(halves, 1);
    auto* stack = new QVBoxLayout(m_gallery);
    stack->setContentsMargins(0, 0, 0, 0);
    stack->addWidget(m_view);
    stack->addWidget(m_nothing);
    m_view->setAccessibleName(title(MainTab::widgets));
    m_view->setModel(&m_model);
    m_view->setPictures(m_tiles);
    m_view->setPullsCards(true);
    connect(m_nothing, &EmptyState::cleared, this, [this] { m_with.model.setSearch(MainTab::widgets, {}); });
    connect(m_nothing, &EmptyState::widened, this, [this] { m_with.model.setCategory(WidgetCategory::all); });
    connectGallery();
    connect(m_scope, &WidgetsScope::categoryChosen, this,
        [this](WidgetCategory category) { m_with.model.setCategory(category); });
    connect(m_scope, &WidgetsScope::skinChosen, this, [this](Skin skin) { m_with.settings.defaultSkin.set(skin); });
    connect(m_scope, &WidgetsScope::halfChosen, this, &WidgetsPage::arrange);
    connect(&m_with.model, &MainWindowModel::changed, this, &WidgetsPage::showModel);
    connect(&m_with.settings, &AppSettings::changed, this, [this](const QString& key) {
        if (key == m_with.settings.defaultSkin.key())
            showSkin();
    });
    connect(&AppLook::shared(), &AppLook::changed, this, &WidgetsPage::arrange);
    showModel();
    showSkin();
    arrange();
    // Before what stands beside the gallery.
    QList<QWidget*> order{&m_scope->last(), m_view};
    for (Button* button : m_nothing->findChildren<Button*>())
        order.append(button);
    for (qsizetype place = 1; place < order.size(); ++place)
        setTabOrder(order[place - 1], order[place]);
}

void WidgetsPage::connectGallery()
{
    const auto addAt = [this](const QModelIndex& index) {
        if (const std::optional<WidgetKind> kind = m_model.kindAt(index))
            add(*kind);
    };
    connect(m_view, &CardView::activated, this, addAt);
    connect(m_view, &CardView::primaryPressed, this, addAt);
    connect(m_view, &CardView::menuRequested, this, [this](const QModelIndex& index, const QPoint& place) {
        if (const std::optional<WidgetKind> kind = m_model.kindAt(index))
            ActionMenu::openFor(*this, place, [this, kind = *kind] { return menuOf(kind); });
    });
    connect(m_view, &CardView::dragBegan, this, [this](const QModelIndex& index) { pull(index); });
}

void WidgetsPage::showModel()
{
    const QString search = m_with.model.search(MainTab::widgets);
    const WidgetCategory category = m_with.model.category();
    m_scope->setCategory(category);
    m_model.show(category, search);
    const bool nothing = m_model.rowCount() == 0;
    m_view->setVisible(!nothing);
    m_nothing->setVisible(nothing);
    m_nothing->setSearch(Wording::tr("No widgets match “%1”").arg(search.trimmed()),
        category != WidgetCategory::all && !WidgetsModel::found(WidgetCategory::all, search).isEmpty());
}

void WidgetsPage::showSkin()
{
    const Skin skin = m_with.settings.defaultSkin();
    m_scope->setSkin(skin);
    m_tiles->setSkin(skin);
    m_model.setGround(styleOf(skin).ground);
}

void WidgetsPage::resizeEvent(QResizeEvent* event)
{
    Page::resizeEvent(event);
    arrange();
}

void WidgetsPage::arrange()
{
    const AppLook& look = AppLook::shared();
    const bool halved = width() < measures::foldedWindow; // gallery or list
    const int edge = measures::margin(width());
    const bool showsPane = !halved || m_scope->half() == WidgetsScope::Half::desktop;
    m_gallery->setVisible(!halved || !showsPane);
    m_pane->setVisible(showsPane);
    const int pane = look.scaled(width() < measures::wideWindow ? narrowPane : widePane) + paneGap + edge;
    const int lead = std::max(edge, (width() - (halved ? 0 : pane) - CardLayout::mostWidth) / 2); // as the cards
    m_scope->arrange(width(), {lead, 0, edge, 0}, halved);
    const QMargins now = m_pane->layout()->contentsMargins();
    const QMargins margins(halved ? edge : paneGap, now.top(), edge, now.bottom());
    m_pane->layout()->setContentsMargins(inReadingOrder(margins, layoutDirection()));
    if (halved) {
        m_pane->setMinimumWidth(0);
        m_pane->setMaximumWidth(QWIDGETSIZE_MAX);
    } else {
        m_pane->setFixedWidth(pane);
    }
    CardShape shape = galleryShape;
    shape.margin = edge;
    if (shape != m_view->shape())
        m_view->setShape(shape);
}

void WidgetsPage::add(WidgetKind kind, std::optional<QPointF> centre)
{
    m_pane->choose(m_edits.add(kind, centre)->config().id);
    m_model.setAdded(kind);
    m_badge = m_with.clock.after(badgeTime, [this] { m_model.setAdded(std::nullopt); });
}

QList<ActionItem> WidgetsPage::menuOf(WidgetKind kind)
{
    const QList<ScreenInfo> screens = m_with.host.screens();
    const QStringList names = screenNames(screens);
    QList<ActionItem> items;
    if (screens.size() < 2)
        items += {.title = Wording::tr("Add to Desktop"), .symbol = u"plus"_s, .handler = [this, kind] { add(kind); }};
    for (qsizetype number = 0; screens.size() > 1 && number < screens.size(); ++number) {
        items += {.title = Wording::tr("Add to %1", "a screen").arg(names[number]),
            .symbol = u"plus"_s,
            .handler = [this, kind, centre = ScreenPlacement::room(screens[number]).center()] { add(kind, centre); }};
    }
    return items;
}

void WidgetsPage::pull(const QModelIndex& index)
{
    const std::optional<WidgetKind> kind = m_model.kindAt(index);
    const Skin skin = m_with.settings.defaultSkin();
    if (!kind)
        return;
    const WidgetDrag::Ghost ghost{view(skin, *kind), WidgetConfig(*kind, skin).size(), m_tiles->reading(*kind)};
    const QPointF home = m_view->partRect(index, CardPart::picture).center();
    m_drag->begin(ghost, home, [this, kind](const std::optional<QPointF>& centre) { add(*kind, centre); });
}

bool WidgetsPage::leave()
{
    if (!m_drag->isActive())
        return false;
    m_drag->cancel();
    return true;
}

void WidgetsPage::takeFocus(bool first)
{
    if (m_gallery->isHidden())
        return m_pane->list().setFocus(Qt::OtherFocusReason);
    if (m_nothing->isVisibleTo(this))
        return m_nothing->setFocus(Qt::OtherFocusReason);
    if (first)
        m_view->choose(m_model.first());
    m_view->setFocus(Qt::OtherFocusReason);
}

QList<QWidget*> WidgetsPage::areas()
{
    return {&m_scope->first(), m_view, m_nothing, &m_pane->list()};
}

} // namespace ambrelle
