// SPDX-License-Identifier: MIT

#include "window/themes/ThemeActions.h"

#include "desktop/FittingSkin.h"
#include "desktop/WidgetManager.h"
#include "foundation/Wording.h"
#include "model/AppSettings.h"
#include "model/ThemeStore.h"
#include "window/frame/PreviousPicture.h"
#include "window/frame/Sheets.h"
#include "window/frame/Undo.h"

#include <QPointer>

#include <algorithm>
#include <memory>

namespace ambrelle {

/// What the user wants, with all that is settled before anything changes: else widgets and wallpaper might not belong
/// together where skins follow the desktop's appearance.
struct ThemeActions::Wish {
    ThemeChoice theme;
    ThemeOperation operation = ThemeOperation::applyWithWallpaper;
    ThemeTarget target;
    std::optional<Skin> picture; ///< none: it stays
    QString done; ///< says what was done
    int number = 0;

    bool placesWidgets() const { return operation != ThemeOperation::setWallpaper; }
};

/// How things stood.
struct ThemeActions::Before {
    QList<StoredWidget> widgets;
    Skin defaultSkin = Skin::glass;
    Skin appliedSkin = Skin::glass; ///< the default since
    std::optional<QUuid> saved;
    bool widgetsChanged = false;
    std::optional<DesktopWallpaper::Memory> picture;
};

ThemeActions::ThemeActions(const WindowContext& context)
    : m_with(context)
    , m_applied(context.manager, context.host)
    , m_work(context.clock, [this] { Q_EMIT workingChanged(); })
{
    connect(&m_with.themes, &ThemeStore::refused, this, &ThemeActions::tellRefused);
    connect(
        &m_with.model, &MainWindowModel::filesHanded, this, [this] { importFiles(m_with.model.takeHandedFiles()); });
}

ThemeActions::~ThemeActions() = default;

QString ThemeActions::title(ThemeOperation operation)
{
    switch (operation) {
    case ThemeOperation::applyWithWallpaper: return Wording::tr("Apply with Wallpaper");
    case ThemeOperation::applyKeepingWallpaper: return Wording::tr("Apply, Keep My Wallpaper");
    case ThemeOperation::setWallpaper: return Wording::tr("Set Wallpaper Only");
    }
    return {};
}

QString ThemeActions::title(const ThemeChoice& theme) const
{
    if (const Skin* skin = std::get_if<Skin>(&theme))
        return ambrelle::title(*skin);
    const SavedTheme* desktop = saved(std::get<QUuid>(theme));
    return desktop ? desktop->name : QString();
}

const SavedTheme* ThemeActions::saved(const QUuid& id) const
{
    const QList<SavedTheme>& themes = m_with.themes.themes();
    const auto found = std::ranges::find(themes, id, &SavedTheme::id);
    return found == themes.end() ? nullptr : &*found;
}

std::optional<Skin> ThemeActions::wallpaperOf(const ThemeChoice& theme) const
{
    if (const Skin* skin = std::get_if<Skin>(&theme))
        return *skin;
    const SavedTheme* desktop = saved(std::get<QUuid>(theme));
    return desktop ? desktop->wallpaper : std::nullopt;
}

/// Those that are connected.
QList<ScreenInfo> ThemeActions::screensOf(const ThemeTarget& target) const
{
    QList<ScreenInfo> screens = m_with.host.screens();
    screens.removeIf(
        [&](const ScreenInfo& screen) { return target.kind == ThemeTarget::Kind::one && screen.id != target.screen; });
    return screens;
}

bool ThemeActions::replacesWidgets(const ThemeTarget& target) const
{
    if (target.kind != ThemeTarget::Kind::one)
        return !m_with.manager.controllers().isEmpty();
    return std::ranges::any_of(screensOf(target),
        [this](const ScreenInfo& screen) { return m_with.manager.dominantSkin(screen).has_value(); });
}

bool ThemeActions::isOneOfSeveral(const ThemeTarget& target) const
{
    return target.kind == ThemeTarget::Kind::one && m_with.host.screens().size() > 1;
}

ThemeActions::Wish ThemeActions::wishFor(
    const ThemeChoice& theme, ThemeOperation operation, const ThemeTarget& target) const
{
    Wish wish{.theme = theme, .operation = operation, .target = target};
    const auto fitting = [this](Skin skin) { return fittingSkin(skin, m_with.settings, m_with.appearance); };
    const std::optional<Skin> picture = wallpaperOf(theme);
    if (operation == ThemeOperation::setWallpaper) {
        wish.picture = picture;
        wish.done = picture ? Wording::tr("Wallpaper set to %1").arg(ambrelle::title(*picture)) : QString();
        return wish;
    }
    if (operation == ThemeOperation::applyWithWallpaper && picture)
        wish.picture = fitting(*picture);
    const Skin* skin = std::get_if<Skin>(&theme);
    const Skin there = skin ? fitting(*skin) : Skin::glass;
    if (!skin || there == *skin)
        wish.done = Wording::tr("“%1” is on your desktop").arg(title(theme));
    else
        wish.done = (isLight(there) ? Wording::tr("“%1” is on your desktop, in Light Mode")
                                    : Wording::tr("“%1” is on your desktop, in Dark Mode"))
                        .arg(ambrelle::title(there));
    return wish;
}

void ThemeActions::apply(const ThemeChoice& theme, bool withWallpaper, const ThemeTarget& target)
{
    const ThemeOperation operation =
        withWallpaper ? ThemeOperation::applyWithWallpaper : ThemeOperation::applyKeepingWallpaper;
    const auto act = [this, theme, operation, target] { carryOut(wishFor(theme, operation, target)); };
    if (!replacesWidgets(target))
        return act();
    m_with.sheets.ask(
        sheets::applyTheme(title(theme), isOneOfSeveral(target), title(operation)), [act](const SheetAnswer& answer) {
            if (answer.button == sheets::accept)
                act();
        });
}

void ThemeActions::applyFromCard(const ThemeChoice& theme)
{
    if (!replacesWidgets({}))
        return carryOut(wishFor(theme, ThemeOperation::applyWithWallpaper, {}));
    if (!wallpaperOf(theme)) // there is nothing to choose
        return apply(theme, false);
    m_with.sheets.ask(sheets::applyTheme(title(theme), false), [this, theme](const SheetAnswer& answer) {
        if (answer.button == sheets::accept)
            carryOut(wishFor(theme, ThemeOperation::applyWithWallpaper, {}));
        else if (answer.button == sheets::keepWallpaper)
            carryOut(wishFor(theme, ThemeOperation::applyKeepingWallpaper, {}));
    });
}

void ThemeActions::setWallpaper(const ThemeChoice& theme, const ThemeTarget& target)
{
    const Wish wish = wishFor(theme, ThemeOperation::setWallpaper, target);
    if (wish.picture)
        carryOut(wish);
}

void ThemeActions::carryOut(Wish wish)
{
    if (title(wish.theme).isEmpty()) // deleted while the question was open
        return;
    Before before{.widgets = m_with.manager.stored(),
        .defaultSkin = m_with.settings.defaultSkin(),
        .appliedSkin = m_with.settings.defaultSkin(),
        .saved = m_applied.saved(),
        .widgetsChanged = wish.placesWidgets(),
        .picture = {}};
    QString error;
    // A kill leaves both to the next start, widgets and wallpaper, or neither.
    m_with.manager.asOne([&] {
        if (wish.placesWidgets()) {
            error = placeWidgets(wish);
            if (!error.isEmpty())
                return;
            before.appliedSkin = m_with.settings.defaultSkin();
            m_with.model.setShowWelcome(false);
        }
        wish.number = ++m_lastWish;
        m_with.undo.beginPicture();
        m_work.begin({wish.theme, wish.operation});
        paint(wish, before);
    });
    if (!error.isEmpty())
        return m_with.undo.fail(error);
}

/// `offer`: the number of that which brings the widgets back. Where it is not offered any more, something else was done
/// since, and only the picture is what can be taken back.
void ThemeActions::paintAgain(Wish wish, Before before, std::optional<int> offer)
{
    if (!offer || !m_with.undo.stillOffers(*offer))
        before = {};
    m_with.undo.makeFinal();
    wish.number = ++m_lastWish;
    m_work.begin({wish.theme, wish.operation});
    paint(wish, before);
}

/// Why they were not placed; empty if they were.
QString ThemeActions::placeWidgets(const Wish& wish)
{
    QString error;
    const auto place = [&](const std::optional<ScreenInfo>& screen) {
        const auto done = [&error](const QString& sentence) { error = error.isEmpty() ? sentence : error; };
        if (const Skin* skin = std::get_if<Skin>(&wish.theme))
            return m_with.manager.applyPreset(*skin, false, screen, done);
        const SavedTheme theme = *saved(std::get<QUuid>(wish.theme));
        return m_with.manager.apply(theme, false, screen, done);
    };
    if (wish.target.kind == ThemeTarget::Kind::main) {
        place(std::nullopt);
    } else {
        const QList<ScreenInfo> screens = screensOf(wish.target);
        for (const ScreenInfo& screen : screens)
            place(screen);
        if (screens.isEmpty())
            error = Wording::tr("That screen is not connected.");
    }
    if (error.isEmpty()) {
        const QUuid* own = std::get_if<QUuid>(&wish.theme);
        m_applied.note(own ? std::optional(*own) : std::nullopt);
    }
    return error;
}

/// The picture, if one is wanted; then the work has ended.
void ThemeActions::paint(const Wish& wish, const Before& before)
{
    const QPointer<ThemeActions> self(this);
    const auto earlier = std::make_shared<Before>(before);
    const auto done = [self, wish, earlier](const QString& error) {
        if (self && wish.number == self->m_lastWish)
            self->m_work.end([self, wish, earlier, error] { self->ended(wish, *earlier, error); });
    };
    if (!wish.picture)
        return done({});
    m_with.wallpaper.apply(
        *wish.picture, screensOf(wish.target), done, [earlier](const DesktopWallpaper::Memory& memory) {
            if (memory.isKnown())
                earlier->picture = memory;
        });
}

/// Of a wish that another one followed only the failure is told.
void ThemeActions::ended(const Wish& wish, const Before& before, const QString& error)
{
    if (wish.number == m_lastWish)
        finished(wish, before, error);
    else if (!error.isEmpty())
        m_with.undo.failPicture(error);
}

void ThemeActions::finished(const Wish& wish, const Before& before, const QString& error)
{
    const auto offer = [&](const Before& earlier) {
        return m_with.undo.offer({wish.done, [this, earlier] { bringBack(earlier); }});
    };
    if (error.isEmpty()) {
        if (before.widgetsChanged || before.picture) // else nobody knows what showed
            offer(before);
        return;
    }
    std::optional<int> number;
    Before earlier = before;
    earlier.picture.reset(); // that is the one which shows
    if (earlier.widgetsChanged)
        number = offer(earlier);
    m_with.undo.failPicture(error, [this, wish, earlier, number] { paintAgain(wish, earlier, number); });
}

void ThemeActions::bringBack(const Before& before)
{
    ++m_lastWish; // whatever is under way shall not come after
    m_work.end();
    m_with.manager.asOne([&] {
        if (before.widgetsChanged) {
            const bool isChosenSince = m_with.settings.defaultSkin() != before.appliedSkin;
            m_with.manager.replaceAll(before.widgets, isChosenSince ? std::nullopt : std::optional(before.defaultSkin));
            m_applied.note(before.saved);
        }
        if (before.picture)
            giveBack(m_with, *before.picture);
    });
}

} // namespace ambrelle
