// SPDX-License-Identifier: MIT

// Desktops that the user saves, deletes, and exchanges as files.

#include "desktop/WidgetManager.h"
#include "foundation/Clock.h"
#include "foundation/ForeignText.h"
#include "foundation/Wording.h"
#include "model/ThemeAccent.h"
#include "model/ThemeFiles.h"
#include "model/ThemeStore.h"
#include "placement/ScreenNames.h"
#include "window/frame/Sheets.h"
#include "window/frame/Undo.h"
#include "window/themes/ThemeActions.h"

#include <QFileInfo>
#include <QPointer>

#include <algorithm>

namespace ambrelle {

namespace {

/// The accents as they are now, where an import changed one and nobody did since, as it was before.
QMap<QString, QString> withoutImported(
    QMap<QString, QString> now, const QMap<QString, QString>& imported, const QMap<QString, QString>& before)
{
    for (auto [skin, accent] : imported.asKeyValueRange()) {
        if (before.value(skin) == accent || now.value(skin) != accent)
            continue;
        if (before.contains(skin))
            now[skin] = before[skin];
        else
            now.remove(skin);
    }
    return now;
}

} // namespace

struct ThemeActions::ReadFile {
    QString path;
    std::optional<ThemeEnvelope> contents; ///< none: it is no theme
};

bool ThemeActions::canSave() const
{
    return !m_with.manager.controllers().isEmpty();
}

void ThemeActions::saveDesktop()
{
    const QList<ScreenInfo> screens = m_with.host.screens();
    const QStringList allNames = screenNames(screens);
    QStringList names;
    QStringList identifiers;
    std::optional<Skin> chief;
    for (qsizetype i = 0; i < screens.size(); ++i) {
        const std::optional<Skin> skin = m_with.manager.dominantSkin(screens[i]);
        if (!skin)
            continue; // nothing to save
        chief = chief.value_or(*skin);
        names.append(allNames[i]);
        identifiers.append(screens[i].id);
    }
    if (!chief)
        return;
    const QString proposed = Wording::tr("%1 Desktop").arg(ambrelle::title(*chief));
    m_with.sheets.ask(sheets::save(proposed, names), [this, identifiers](const SheetAnswer& answer) {
        if (answer.button == sheets::accept)
            saveAs(answer.text, identifiers.value(std::max(answer.choice, 0)));
    });
}

void ThemeActions::saveAs(const QString& name, const QString& screen)
{
    const QString tidy = SavedTheme::nameFrom(name);
    if (tidy.isEmpty())
        return;
    m_with.undo.makeFinal();
    const QPointer<ThemeActions> self(this);
    m_with.wallpaper.refresh([self, tidy, screen] { // somebody else may have set another picture
        if (self)
            self->addSaved(tidy, screen);
    });
}

void ThemeActions::addSaved(const QString& name, const QString& screen)
{
    const QList<ScreenInfo> screens = screensOf({ThemeTarget::Kind::one, screen});
    if (screens.isEmpty())
        return m_with.undo.fail(Wording::tr("That screen is not connected."));
    const SavedTheme theme = m_with.manager.snapshot(name, screens.first());
    if (m_with.themes.add(theme))
        showSaved(theme.id);
    else
        m_with.undo.fail(Wording::tr("“%1” cannot be saved: there is no room for more desktops.").arg(name));
}

/// My Themes with that one chosen.
void ThemeActions::showSaved(const QUuid& id)
{
    MainWindowModel& model = m_with.model;
    model.setTab(MainTab::themes);
    model.closeTheme();
    model.setSearch(MainTab::themes, {});
    model.setThemesSection(ThemesSection::mine);
    model.chooseTheme(id);
}

void ThemeActions::rename(const QUuid& id, const QString& name)
{
    const SavedTheme* theme = saved(id);
    const QString tidy = SavedTheme::nameFrom(name);
    if (!theme || tidy.isEmpty() || tidy == theme->name)
        return;
    m_with.undo.makeFinal();
    m_with.themes.rename(id, tidy);
}

void ThemeActions::remove(const QUuid& id)
{
    if (const SavedTheme* theme = saved(id))
        m_with.sheets.ask(sheets::removeTheme(theme->name), [this, id](const SheetAnswer& answer) {
            if (answer.button == sheets::accept)
                removeNow(id);
        });
}

void ThemeActions::removeNow(const QUuid& id)
{
    const QList<SavedTheme> before = m_with.themes.themes();
    const auto found = std::ranges::find(before, id, &SavedTheme::id);
    if (found == before.end())
        return;
    const qsizetype index = found - before.begin();
    if (m_with.model.chosenTheme() == ThemeChoice(id)) {
        m_with.model.closeTheme();
        const qsizetype neighbour = index + 1 < before.size() ? index + 1 : index - 1;
        m_with.model.chooseTheme(neighbour < 0 ? std::nullopt : std::optional<ThemeChoice>(before[neighbour].id));
    }
    const std::optional<ThemeStore::Taken> taken = m_with.themes.remove(id);
    m_with.undo.offer({Wording::tr("“%1” deleted").arg(found->name), [this, id, name = found->name, taken] {
                           if (taken)
                               putBack(*taken, id, name);
                       }});
}

void ThemeActions::putBack(const ThemeStore::Taken& theme, const QUuid& id, const QString& name)
{
    if (m_with.themes.putBack(theme))
        return m_with.model.chooseTheme(id);
    m_with.undo.fail(Wording::tr("“%1” cannot come back: there is no room for more desktops.").arg(name),
        [this, theme, id, name] { putBack(theme, id, name); });
}

/// The list is as the user wants it, and shown so, but would not outlive the program.
void ThemeActions::tellRefused()
{
    m_with.undo.fail(Wording::tr("The disk takes no changes of My Themes. They are kept while Ambrelle runs."), [this] {
        if (!m_with.themes.storeAgain())
            tellRefused();
    });
}

void ThemeActions::exportTo(const QUuid& id, const QString& path)
{
    const SavedTheme* theme = saved(id);
    if (!theme)
        return;
    m_files.run(
        [path, file = ThemeEnvelope{*theme, m_with.accents.hexOverrides()}] { return ThemeFiles::write(path, file); },
        [this, id, path](const QString& error) {
            if (!error.isEmpty())
                m_with.undo.fail(error, [this, id, path] { exportTo(id, path); });
        });
}

void ThemeActions::importFiles(const QStringList& paths)
{
    if (paths.isEmpty())
        return;
    const auto readAll = [paths] {
        QList<ReadFile> files;
        for (const QString& path : paths)
            files.append({path, ThemeFiles::read(path)});
        return files;
    };
    m_files.run(readAll, [this](const QList<ReadFile>& files) { take(files); });
}

void ThemeActions::take(const QList<ReadFile>& files)
{
    const QMap<QString, QString> accentsBefore = m_with.accents.hexOverrides();
    QList<SavedTheme> taken;
    QString tooMuch;
    for (const ReadFile& file : files) {
        if (!file.contents)
            continue;
        if (const auto theme = ThemeFiles(m_with.themes, m_with.accents).take(*file.contents, m_with.clock.now()))
            taken.append(*theme);
        else
            tooMuch = file.contents->theme.name;
    }
    Q_EMIT windowWanted();
    if (!taken.isEmpty()) {
        showSaved(taken.last().id);
        const QString text = taken.size() == 1
            ? Wording::tr("“%1” added to My Themes").arg(taken.first().name)
            : Wording::tr("%n themes added to My Themes", nullptr, static_cast<int>(taken.size()));
        const QMap<QString, QString> imported = m_with.accents.hexOverrides();
        m_with.undo.offer({text, [this, taken, accentsBefore, imported] {
                               for (const SavedTheme& theme : taken)
                                   m_with.themes.remove(theme.id);
                               const QMap<QString, QString> now = m_with.accents.hexOverrides();
                               m_with.accents.apply(withoutImported(now, imported, accentsBefore));
                           }});
    }
    if (!tooMuch.isEmpty())
        m_with.undo.fail(Wording::tr("“%1” cannot be saved: there is no room for more desktops.").arg(tooMuch));
    for (const ReadFile& file : files) {
        if (!file.contents)
            m_with.sheets.ask(sheets::importFailed(foreignText(QFileInfo(file.path).fileName())));
    }
}

} // namespace ambrelle
