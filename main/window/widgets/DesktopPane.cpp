// SPDX-License-Identifier: MIT

#include "window/widgets/DesktopPane.h"

#include "desktop/QuickMenu.h"
#include "desktop/WidgetManager.h"
#include "desktop/WidgetWording.h"
#include "model/AppSettings.h"
#include "placement/ScreenNames.h"
#include "window/look/AppLook.h"
#include "window/look/Button.h"
#include "window/look/EmptyState.h"
#include "window/look/Measures.h"
#include "window/look/TextLabel.h"
#include "window/widgets/DesktopList.h"

#include <QHBoxLayout>
#include <QPainter>
#include <QVBoxLayout>

#include <algorithm>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

constexpr double surfaceCorner = 12;
constexpr int footerPadding = 8;
constexpr int menuGap = 2; // above its button

/// Holds a list and the buttons below it.
class ListSurface final : public QWidget {
public:
    explicit ListSurface(QWidget* footer)
        : m_footer(footer)
    {
        connect(&AppLook::shared(), &AppLook::changed, this, qOverload<>(&QWidget::update));
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        const AppColours& colours = AppLook::shared().colours();
        const double line = hairline(devicePixelRatioF());
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(colours.hairline, line));
        painter.setBrush(colours.surface);
        painter.drawRoundedRect(
            QRectF(rect()).adjusted(line / 2, line / 2, -line / 2, -line / 2), surfaceCorner, surfaceCorner);
        painter.fillRect(QRectF(line, m_footer->y() - line, width() - 2 * line, line), colours.hairline);
    }

private:
    QWidget* m_footer;
};

/// Why a button does nothing; empty: it does something.
void setUse(Button& button, const QString& why)
{
    button.setEnabled(why.isEmpty());
    button.setToolTip(!why.isEmpty() ? why : button.title().isEmpty() ? button.accessibleName() : QString());
}

Button* wideButton(const QString& symbol = {})
{
    auto* button = new Button({});
    button->setSymbol(symbol);
    button->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    return button;
}

} // namespace

DesktopPane::DesktopPane(const WindowContext& context, QWidget* parent)
    : QWidget(parent)
    , m_with(context)
    , m_edits(context)
    , m_count(new TextLabel(TextRole::caption))
    , m_list(new DesktopList)
    , m_nothing(new EmptyState)
    , m_locate(new Button(Wording::tr("Locate")))
    , m_settings(Button::symbolOnly(u"paintpalette.fill"_s, WidgetWording::settings(), Button::Kind::plain))
    , m_remove(Button::symbolOnly(u"trash"_s, Wording::tr("Remove"), Button::Kind::plain))
    , m_more(Button::symbolOnly(u"ellipsis"_s, Wording::tr("More"), Button::Kind::plain))
    , m_useSkin(wideButton())
    , m_edit(wideButton(context.quickMenu.editItem().symbol))
    , m_removals([this] { return removals(); })
{
    auto* heading = new QHBoxLayout;
    heading->setSpacing(8);
    heading->addWidget(new TextLabel(TextRole::heading, Wording::tr("On Your Desktop")), 0, Qt::AlignBaseline);
    heading->addWidget(m_count, 1, Qt::AlignBaseline);
    m_locate->setSymbol(u"scope"_s);
    m_edit->setText(context.quickMenu.editItem().title);
    m_nothing->setTexts(u"square.grid.2x2.fill"_s, Wording::tr("No widgets on your desktop"),
        Wording::tr("Click a widget to add it, or drag it to its place"));
    m_list->setAccessibleName(Wording::tr("On Your Desktop"));
    m_list->setModel(&m_model);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 6, 0, 20);
    column->setSpacing(12);
    column->addLayout(heading);
    column->addWidget(makeSurface(), 1);
    auto* below = new QVBoxLayout;
    below->setSpacing(8);
    below->addWidget(m_useSkin);
    below->addWidget(m_edit);
    column->addLayout(below);

    connect(m_list, &DesktopList::chosenChanged, this, &DesktopPane::showButtons);
    connect(m_list, &DesktopList::used, this, &DesktopPane::locate);
    connect(m_list, &DesktopList::removeRequested, this, [this] { m_edits.remove(chosen()); });
    connect(m_list, &DesktopList::menuRequested, this,
        [this](const QPoint& place) { ActionMenu::openFor(*this, place, [this] { return rowItems(); }); });
    connect(m_locate, &QPushButton::clicked, this, &DesktopPane::locate);
    connect(m_settings, &QPushButton::clicked, this, [this] {
        if (const QList<WidgetController*> one = chosen(); one.size() == 1)
            one.first()->requestSettings();
    });
    connect(m_remove, &QPushButton::clicked, this, [this] { m_edits.remove(chosen()); });
    connect(m_more, &QPushButton::clicked, this, [this] {
        m_removals.setLayoutDirection(layoutDirection());
        const int end = isRightToLeft() ? 0 : m_more->width();
        m_removals.openAt(m_more->mapToGlobal(QPoint(end, -menuGap)), ActionMenu::Corner::bottomEnd);
    });
    connect(m_useSkin, &QPushButton::clicked, this, [this] { m_edits.useSkinForAll(); });
    connect(m_edit, &QPushButton::clicked, this, [this] { m_with.manager.setEditing(true); });
    connect(&m_with.manager, &WidgetManager::controllersChanged, this, &DesktopPane::refresh);
    connect(&m_with.manager, &WidgetManager::configChanged, this, &DesktopPane::refreshSoon);
    connect(&m_with.host, &WindowHost::screensChanged, this, &DesktopPane::refreshSoon);
    connect(&m_with.settings, &AppSettings::changed, this, [this](const QString& key) {
        if (key == m_with.settings.defaultSkin.key())
            showButtons();
    });
    refresh();
}

QWidget* DesktopPane::makeSurface()
{
    auto* footer = new QWidget;
    auto* row = new QHBoxLayout(footer);
    row->setContentsMargins(footerPadding, footerPadding, footerPadding, footerPadding);
    row->setSpacing(6);
    for (Button* button : {m_locate, m_settings, m_remove})
        row->addWidget(button);
    row->addStretch();
    row->addWidget(m_more);
    auto* surface = new ListSurface(footer);
    auto* column = new QVBoxLayout(surface);
    column->setContentsMargins(1, 6, 1, 0);
    column->setSpacing(0);
    column->addWidget(m_list, 1);
    column->addWidget(m_nothing, 1);
    column->addSpacing(1);
    column->addWidget(footer);
    return surface;
}

void DesktopPane::choose(const QUuid& id)
{
    const QModelIndex row = m_model.indexOf(id);
    if (!row.isValid())
        return;
    m_list->selectionModel()->setCurrentIndex(row, QItemSelectionModel::ClearAndSelect);
    m_list->scrollTo(row);
}

QList<WidgetController*> DesktopPane::chosen() const
{
    QList<WidgetController*> widgets;
    for (const QModelIndex& row : m_list->chosen()) {
        if (WidgetController* widget = m_edits.find(m_model.idAt(row)))
            widgets.append(widget);
    }
    return widgets;
}

void DesktopPane::locate()
{
    for (WidgetController* widget : chosen())
        widget->locate();
}

QList<ActionItem> DesktopPane::removals() const
{
    QList<ActionItem> items{{.title = Wording::tr("Remove All…"),
        .symbol = u"trash"_s,
        .handler = [edits = m_edits]() mutable { edits.askToRemoveAll(); },
        .enabled = m_model.rowCount() > 0}};
    const QList<ScreenInfo> screens = m_with.host.screens();
    const QStringList names = screenNames(screens);
    for (qsizetype number = 0; screens.size() > 1 && number < screens.size(); ++number) {
        items += {.title = Wording::tr("Remove All on %1…", "a screen").arg(names[number]),
            .handler = [edits = m_edits, screen = screens[number],
                           name = names[number]]() mutable { edits.askToRemoveAll(screen, name); },
            .enabled = !m_edits.on(screens[number]).isEmpty()};
    }
    return items;
}

QList<ActionItem> DesktopPane::rowItems()
{
    const qsizetype count = chosen().size();
    return {{.title = m_locate->title(),
                .symbol = m_locate->symbol(),
                .handler = [this] { locate(); },
                .enabled = count > 0},
        {.title = WidgetWording::settings(),
            .symbol = m_settings->symbol(),
            .handler = [this] { m_settings->click(); },
            .enabled = count == 1},
        ActionItem::separator(),
        {.title = Wording::tr("Remove"),
            .symbol = m_remove->symbol(),
            .handler = [this] { m_edits.remove(chosen()); },
            .enabled = count > 0}};
}

void DesktopPane::refreshSoon()
{
    if (std::exchange(m_isRefreshing, true))
        return;
    QMetaObject::invokeMethod(this, &DesktopPane::refresh, Qt::QueuedConnection);
}

void DesktopPane::refresh()
{
    m_isRefreshing = false;
    const QList<ScreenInfo> screens = m_with.host.screens();
    QList<DesktopWidget> widgets;
    for (const WidgetController* widget : m_with.manager.controllers())
        widgets.append(DesktopWidget::of(widget->config(), screens));
    m_model.setWidgets(widgets);
    m_count->setText(Wording::tr("%n widgets", nullptr, static_cast<int>(widgets.size())));
    m_count->setVisible(!widgets.isEmpty());
    m_list->setVisible(!widgets.isEmpty());
    m_nothing->setVisible(widgets.isEmpty());
    showButtons();
}

void DesktopPane::showButtons()
{
    const qsizetype count = m_list->chosen().size();
    const Skin skin = m_with.settings.defaultSkin();
    const QList<WidgetController*>& all = m_with.manager.controllers();
    const bool differs =
        std::ranges::any_of(all, [skin](const WidgetController* widget) { return widget->config().skin != skin; });
    const QString empty = all.isEmpty() ? Wording::tr("There are no widgets on your desktop") : QString();
    const QString none = !empty.isEmpty() ? empty : count > 0 ? QString() : Wording::tr("Choose a widget in the list");
    setUse(*m_locate, none);
    setUse(*m_settings, count > 1 ? Wording::tr("Choose only one widget in the list") : none);
    setUse(*m_remove, none);
    setUse(*m_more, empty);
    m_useSkin->setText(Wording::tr("Use %1 for All Widgets", "a skin").arg(title(skin)));
    setUse(*m_useSkin,
        !empty.isEmpty() ? empty
            : differs    ? QString()
                         : Wording::tr("All widgets use %1", "a skin").arg(title(skin)));
    setUse(*m_edit, empty);
}

} // namespace ambrelle
