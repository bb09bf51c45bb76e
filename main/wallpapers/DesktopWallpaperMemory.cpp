// SPDX-License-Identifier: MIT

// What the desktop showed before or was to show, and how that comes back.

#include "wallpapers/DesktopWallpaper.h"

#include "foundation/Wording.h"

#include <QDir>

#include <algorithm>

namespace ambrelle {

using namespace Qt::StringLiterals;

bool DesktopWallpaper::hasPrevious() const
{
    return m_notes.previous().has_value();
}

void DesktopWallpaper::giveBackPrevious(const Done& done)
{
    const std::optional<QJsonObject> memory = m_notes.previous();
    if (!memory)
        return done ? done(Wording::tr("No earlier desktop picture is remembered.")) : void();
    giveBack({*memory, {}, std::nullopt, {}}, done);
}

/// Keeps what the user had on the desktop; a picture of our own is nothing to give back.
void DesktopWallpaper::rememberPrevious(const QString& connector, const std::function<void()>& then)
{
    m_picture.read(connector, [this, then](const QString& file) {
        if (isOurs(file) || (file.isEmpty() && (hasPrevious() || isOurs(m_current))))
            return then();
        m_picture.remember(m_folders.wallpapers, [this, then](const QJsonObject& memory) {
            if (!memory.isEmpty())
                m_notes.setPrevious(memory);
            then();
        });
    });
}

void DesktopWallpaper::remember(const Remembered& then)
{
    if (!m_picture.isAvailable())
        return then({});
    // Beside what rememberPrevious() keeps, which is wanted longer.
    const QString folder = m_folders.wallpapers + u"/Undo"_s;
    const auto ask = [this, folder, then] {
        m_picture.remember(folder, [this, then](const QJsonObject& memory) {
            then({memory, m_shown, m_notes.previous(), m_notes.current()});
        });
    };
    m_files.run([folder] { return QDir().mkpath(folder); }, [this, ask](bool) { refresh(ask); });
}

void DesktopWallpaper::giveBack(const Memory& memory, const Done& done)
{
    const Done answer = done ? done : [](const QString&) {};
    if (!m_picture.isAvailable())
        return answer(m_picture.whyNot());
    if (!memory.isKnown())
        return answer(Wording::tr("No earlier desktop picture is remembered."));
    QList<ScreenPicture> pictures;
    for (auto file = memory.files.begin(); file != memory.files.end(); ++file)
        pictures.append({file.key(), file.value()});
    const bool isOurs = std::ranges::all_of(
        pictures, [](const ScreenPicture& picture) { return Wallpaper::skinOf(picture.file).has_value(); });
    const int request = begin(isOurs ? pictures : QList<ScreenPicture>());
    m_preparing = [] { return QString(); };
    m_picture.giveBack(memory.desktop, [this, request, memory, answer](const QString& error) {
        const UserDefaults::Transaction whole = m_notes.asOne();
        end(request);
        if (error.isEmpty()) {
            m_notes.setPrevious(memory.previous);
            m_notes.setCurrent(memory.current);
            const QList<ScreenInfo> screens = m_host.screens();
            setShown(screens.isEmpty() ? QString() : memory.files.value(screens.first().connector), memory.files);
            if (memory.files.isEmpty()) // only the desktop knows which picture that is
                return refresh([answer] { answer({}); });
        }
        answer(error);
    });
}

/// Asks once more for what a former run could not finish, but for screens that have been given another picture since;
/// gives the others `last`, unless that is empty.
void DesktopWallpaper::bringBack(
    const WallpaperNotes::Unfinished& unfinished, const QString& last, const SkinChoice& choose)
{
    constexpr int mostStarts = 3; // else what ends the program would end every next one
    Sizes sizes;
    QStringList others;
    QList<ScreenPicture> pictures;
    for (const ScreenInfo& screen : m_host.screens()) {
        const QString before = unfinished.shown.value(screen.connector);
        const QString now = currentURL(screen);
        QString file = unfinished.starts < mostStarts ? unfinished.files.value(screen.connector) : QString();
        if (!now.isEmpty() && !before.isEmpty() && now != before && now != file)
            continue;
        file = file.isEmpty() ? last : file;
        if (const std::optional<Skin> skin = Wallpaper::skinOf(file)) {
            pictures.append(ordered(choose ? choose(*skin) : *skin, screen, sizes));
        } else if (!file.isEmpty()) {
            pictures.append({screen.connector, file});
            others.append(file);
        }
    }
    const UserDefaults::Transaction whole = m_notes.asOne();
    m_notes.setUnfinished({});
    if (pictures.isEmpty())
        return;
    paint(pictures, sizes, others);
    WallpaperNotes::Unfinished again = m_notes.unfinished();
    again.starts = unfinished.starts + 1;
    m_notes.setUnfinished(again);
}

} // namespace ambrelle
