// SPDX-License-Identifier: MIT

#include "window/themes/ThemePage.h"

#include "foundation/Wording.h"
#include "model/ThemeAccent.h"
#include "model/ThemeStore.h"
#include "skins/SkinRegistry.h"
#include "window/cards/CardShadow.h"
#include "window/frame/Undo.h"
#include "window/look/AccessibleRole.h"
#include "window/look/AppLook.h"
#include "window/themes/AccentPicker.h"
#include "window/themes/Filmstrip.h"
#include "window/themes/ThemeActions.h"
#include "window/themes/ThemeButtons.h"
#include "window/themes/ThemeDetails.h"
#include "window/themes/ThemeFacts.h"
#include "window/themes/ThemeHead.h"
#include "window/themes/ThemePageLayout.h"
#include "window/themes/ThemePicture.h"
#include "window/themes/ThemesModel.h"

#include <QEvent>
#include <QLayout>
#include <QPainter>
#include <QScrollArea>
#include <QScrollBar>
#include <QShortcut>
#include <QStyle>

#include <utility>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

constexpr int columnWidth = 304;
constexpr int buttonsGap = 12; // above them

std::optional<DesktopSnapshots::Desktop> desktopOf(const ThemeChoice& theme, const ThemeActions& actions)
{
    if (const Skin* skin = std::get_if<Skin>(&theme))
        return *skin;
    const SavedTheme* saved = actions.saved(std::get<QUuid>(theme));
    return saved ? std::optional<DesktopSnapshots::Desktop>(*saved) : std::nullopt;
}

Skin groundOf(const DesktopSnapshots::Desktop& desktop)
{
    const Skin* skin = std::get_if<Skin>(&desktop);
    return skin ? *skin : std::get<SavedTheme>(desktop).dominantSkin();
}

} // namespace

ThemePage::ThemePage(const WindowContext& context, ThemesModel& themes, QWidget* parent)
    : QWidget(parent)
    , m_with(context)
    , m_themes(themes)
    , m_picture(new ThemePicture(context.shelf, context.snapshots, context.clock, this))
    , m_details(new ThemeDetails(context.accents, context.clock, this)) // before the buttons for Tab, too
    , m_scroll(new QScrollArea(this))
    , m_buttons(new ThemeButtons(this))
    , m_strip(new Filmstrip(context.shelf, themes, this))
{
    setFocusPolicy(Qt::ClickFocus);
    setAccessibleRole(*this, QAccessible::Grouping);
    m_scroll->setFrameShape(QFrame::NoFrame);
    m_scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_scroll->setFocusPolicy(Qt::NoFocus);
    m_scroll->setWidget(m_details);
    m_scroll->viewport()->setAutoFillBackground(false);
    m_details->setAutoFillBackground(false);
    m_details->installEventFilter(this);
    makeKeys();
    follow();
    showTheme();
}

void ThemePage::makeKeys()
{
    const auto add = [this](const QKeySequence& key, const std::function<void()>& act) {
        const auto* shortcut = new QShortcut(key, this, nullptr, nullptr, Qt::WidgetWithChildrenShortcut);
        connect(shortcut, &QShortcut::activated, this, act);
    };
    const auto ifSaved = [this](const std::function<void(const QUuid&)>& act) {
        return [this, act] {
            if (const QUuid* id = m_shown ? std::get_if<QUuid>(&*m_shown) : nullptr)
                act(*id);
        };
    };
    add(Qt::Key_Left, [this] { flick(isRightToLeft() ? 1 : -1); });
    add(Qt::Key_Right, [this] { flick(isRightToLeft() ? -1 : 1); });
    for (const Qt::Key enter : {Qt::Key_Return, Qt::Key_Enter})
        add(Qt::CTRL | enter, [this] {
            const bool hasWallpaper = m_shown && m_with.themeActions.wallpaperOf(*m_shown);
            press(hasWallpaper ? ThemeOperation::applyWithWallpaper : ThemeOperation::applyKeepingWallpaper);
        });
    add(Qt::Key_F2, ifSaved([this](const QUuid&) { m_details->head().rename(); }));
    add(Qt::Key_Delete, ifSaved([this](const QUuid& id) { m_with.themeActions.remove(id); }));
}

void ThemePage::follow()
{
    connect(&m_with.model, &MainWindowModel::changed, this, &ThemePage::showTheme);
    connect(&m_with.themes, &ThemeStore::changed, this, &ThemePage::showTheme);
    connect(&m_with.themeActions.applied(), &AppliedThemes::changed, this, &ThemePage::showTheme);
    connect(&m_with.themeActions, &ThemeActions::workingChanged, this, &ThemePage::showWork);
    connect(&m_with.accents, &ThemeAccent::changed, this, &ThemePage::showPicture);
    connect(&m_with.host, &WindowHost::screensChanged, this, [this] {
        m_details->setScreens(m_with.host.screens());
        arrange();
    });
    connect(&AppLook::shared(), &AppLook::changed, this, &ThemePage::arrange);
    m_details->setScreens(m_with.host.screens());
    connect(&m_details->accent(), &AccentPicker::trialChanged, this, &ThemePage::showPicture);
    connect(&m_details->accent(), &AccentPicker::storing, &m_with.undo, &UndoKeeper::makeFinal);
    connect(m_details, &ThemeDetails::counterpartWanted, this, [this](Skin skin) { open(skin); });
    connect(&m_details->head(), &ThemeHead::renamed, this, [this](const QString& name) {
        if (const QUuid* id = m_shown ? std::get_if<QUuid>(&*m_shown) : nullptr)
            m_with.themeActions.rename(*id, name);
    });
    connect(m_buttons, &ThemeButtons::pressed, this, &ThemePage::press);
    connect(m_strip, &Filmstrip::chosen, this, [this](const QModelIndex& card) {
        if (const std::optional<ThemeChoice> theme = m_themes.themeAt(card))
            m_with.model.openTheme(*theme);
    });
}

void ThemePage::showTheme()
{
    const std::optional<ThemeChoice> open =
        m_with.model.isThemeOpen() ? m_with.model.chosenTheme() : std::optional<ThemeChoice>();
    const std::optional<ThemeFacts> facts = open ? ThemeFacts::of(*open, m_with.themes) : std::nullopt;
    if (open && !facts) {
        m_with.model.closeTheme(); // somebody deleted it
        return;
    }
    const bool isOther = std::exchange(m_shown, open) != open;
    if (!facts)
        return;
    if (isOther) {
        m_details->head().endRename();
        m_scroll->verticalScrollBar()->setValue(0);
    }
    setAccessibleName(facts->title);
    m_picture->setAccessibleName(Wording::tr("Preview of %1").arg(facts->title));
    m_details->setTheme(*facts, m_with.themeActions.applied().isOnDesktop(*open));
    m_strip->setCurrent(m_themes.indexOf(*open));
    showWork();
    showPicture();
    arrange();
}

void ThemePage::showPicture()
{
    const std::optional<DesktopSnapshots::Desktop> desktop =
        m_shown ? desktopOf(*m_shown, m_with.themeActions) : std::nullopt;
    if (!desktop)
        return;
    m_picture->setDesktop(m_with.snapshots.wish(*desktop), styleOf(groundOf(*desktop)).ground);
    const std::optional<AccentPicker::Trial>& trial = m_details->accent().trial();
    const Skin* skin = std::get_if<Skin>(&*desktop);
    std::optional<DesktopSnapshots::Wish> tried;
    if (trial && skin)
        m_with.accents.withPreview(trial->accent, *skin, [&] { tried = m_with.snapshots.wish(*skin); });
    m_picture->setTrial(tried);
}

void ThemePage::showWork()
{
    if (!m_shown)
        return;
    const std::optional<ThemeWork>& working = m_with.themeActions.working();
    ThemeButtons::State state{.hasWallpaper = m_with.themeActions.wallpaperOf(*m_shown).has_value()};
    if (working && working->theme == *m_shown)
        state.working = working->operation;
    state.theme = m_with.themeActions.title(*m_shown);
    m_buttons->setState(state);
}

void ThemePage::arrange()
{
    const AppLook& look = AppLook::shared();
    const int column = std::min(look.scaled(columnWidth), width() / 2);
    const int buttons = m_buttons->sizeHint().height();
    const int wanted = m_details->layout()->hasHeightForWidth()
        ? m_details->heightForWidth(column + 2 * ThemeDetails::inset)
        : m_details->sizeHint().height();
    const auto layout = ThemePageLayout::of({.page = size(),
        .column = column,
        .columnHeight = wanted + buttonsGap + buttons,
        .strip = m_strip->heightWanted()});
    const auto place = [this](QWidget& widget, const QRect& area) {
        widget.setGeometry(QStyle::visualRect(layoutDirection(), rect(), area));
    };
    place(*m_picture, layout.picture);
    QRect scroll = layout.column.adjusted(-ThemeDetails::inset, 0, ThemeDetails::inset, -buttons - buttonsGap);
    const bool scrolls = scroll.height() < wanted;
    m_details->resize(scroll.width(), std::max(wanted, scroll.height()));
    if (scrolls) // beside what scrolls, in the margin of the page
        scroll.setRight(scroll.right() + m_scroll->verticalScrollBar()->sizeHint().width());
    place(*m_scroll, scroll);
    place(*m_buttons, {layout.column.left(), layout.column.bottom() + 1 - buttons, column, buttons});
    m_strip->setVisible(!layout.strip.isEmpty());
    place(*m_strip, layout.strip);
    update();
}

void ThemePage::paintEvent(QPaintEvent*)
{
    if (AppLook::shared().wishes().highContrast || m_picture->isHeldBack())
        return;
    QPainter painter(this);
    drawCardShadow(painter, m_picture->geometry(), ThemePicture::corner, devicePixelRatioF());
}

void ThemePage::resizeEvent(QResizeEvent*)
{
    arrange();
}

void ThemePage::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    arrange();
}

void ThemePage::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LayoutDirectionChange)
        arrange();
}

bool ThemePage::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::LayoutRequest) {
        m_details->layout()->activate();
        arrange(); // it wants another height
    }
    return QWidget::eventFilter(watched, event);
}

void ThemePage::takeFocus()
{
    setFocus(Qt::OtherFocusReason);
}

QList<QWidget*> ThemePage::areas()
{
    return {this};
}

/// To the neighbour in the grid, if there is one.
void ThemePage::flick(int steps)
{
    if (const std::optional<ThemeChoice> theme = m_themes.themeAt(m_strip->neighbour(steps)))
        m_with.model.openTheme(*theme);
}

/// Also where the grid does not show it.
void ThemePage::open(const ThemeChoice& theme)
{
    if (!m_themes.indexOf(theme).isValid())
        m_with.model.setThemesSection(ThemesSection::all);
    if (!m_themes.indexOf(theme).isValid())
        m_with.model.setSearch(MainTab::themes, {});
    m_with.model.openTheme(theme);
}

void ThemePage::press(ThemeOperation operation)
{
    if (!m_shown || m_with.themeActions.working())
        return;
    const ThemeTarget target = m_details->target();
    if (operation == ThemeOperation::setWallpaper)
        m_with.themeActions.setWallpaper(*m_shown, target);
    else
        m_with.themeActions.apply(*m_shown, operation == ThemeOperation::applyWithWallpaper, target);
}

} // namespace ambrelle
