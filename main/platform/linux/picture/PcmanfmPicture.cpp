// SPDX-License-Identifier: MIT

#include "platform/linux/picture/PcmanfmPicture.h"

#include "foundation/PictureFile.h"
#include "foundation/Wording.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QSettings>
#include <QStandardPaths>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

using Family = PcmanfmPicture::Family;

QString programOf(Family family)
{
    return family == Family::lxde ? u"pcmanfm"_s : u"pcmanfm-qt"_s;
}

/// The mode that fills the screen, for a desktop that so far is in another.
QString fillMode(Family family, const QString& modeSoFar)
{
    if (family == Family::lxde)
        return u"crop"_s;
    // LXQt's has a mode that crops, but does not always take it when told; then a desktop without a picture would stay
    // without.
    const bool hasPicture = !modeSoFar.isEmpty() && modeSoFar != u"none"_s;
    return hasPicture ? u"zoom"_s : u"stretch"_s;
}

/// The configuration that was written last, of whatever profile; empty when there is none.
QString configurationFile(Family family)
{
    const QDir profiles(
        QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + u'/' + programOf(family));
    const QString name = family == Family::lxde ? u"/desktop-items-0.conf"_s : u"/settings.conf"_s;
    QFileInfo newest;
    for (const QString& profile : profiles.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        const QFileInfo file(profiles.filePath(profile + name));
        if (file.isFile() && (newest.filePath().isEmpty() || file.lastModified() > newest.lastModified()))
            newest = file;
    }
    return newest.filePath();
}

/// A value of LXDE's file manager, which writes each as its key and what GLib makes of a string.
QString keyFileValue(const QByteArray& text, const QByteArray& key)
{
    for (const QByteArray& line : text.split('\n')) {
        if (line.startsWith(key + '='))
            return QString::fromUtf8(line.mid(key.size() + 1)).replace(u"\\s"_s, u" "_s).replace(u"\\\\"_s, u"\\"_s);
    }
    return {};
}

} // namespace

PcmanfmPicture::PcmanfmPicture(Family family, std::chrono::milliseconds patience)
    : m_family(family)
    , m_tools(*this, patience)
{
}

QString PcmanfmPicture::whyNot() const
{
    return ToolRunner::whyMissing(programOf(m_family));
}

void PcmanfmPicture::set(const QList<ScreenPicture>& pictures, Done done)
{
    const QString file = pictures.isEmpty() ? QString() : pictures.first().file;
    const auto work = [this, file] {
        if (file.isEmpty())
            return QString();
        const QString fault = PictureFile::fault(file);
        return fault.isEmpty() ? apply({file, fillMode(m_family, setting().value_or(Setting()).mode)}) : fault;
    };
    m_tools.run(work, std::move(done));
}

void PcmanfmPicture::read(const QString&, std::function<void(const QString& file)> done)
{
    m_tools.run([this] { return setting().value_or(Setting()).file; }, std::move(done));
}

void PcmanfmPicture::remember(const QString&, std::function<void(const QJsonObject& memory)> done)
{
    const auto work = [this] {
        const std::optional<Setting> now = setting();
        return now ? QJsonObject{{u"file"_s, now->file}, {u"mode"_s, now->mode}} : QJsonObject();
    };
    m_tools.run(work, std::move(done));
}

void PcmanfmPicture::giveBack(const QJsonObject& memory, Done done)
{
    const Setting wanted{memory.value("file"_L1).toString(), memory.value("mode"_L1).toString()};
    m_tools.run([this, wanted] { return apply(wanted); }, std::move(done));
}

std::optional<PcmanfmPicture::Setting> PcmanfmPicture::setting() const
{
    const QString path = configurationFile(m_family);
    if (path.isEmpty())
        return std::nullopt;
    if (m_family == Family::lxqt) {
        const QSettings settings(path, QSettings::IniFormat);
        return Setting{
            settings.value(u"Desktop/Wallpaper"_s).toString(), settings.value(u"Desktop/WallpaperMode"_s).toString()};
    }
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    const QByteArray text = file.readAll();
    return Setting{keyFileValue(text, "wallpaper"), keyFileValue(text, "wallpaper_mode")};
}

QString PcmanfmPicture::apply(const Setting& wanted) const
{
    const QString program = programOf(m_family);
    // Both call it so when told; only one does in its configuration too.
    const QString mode = wanted.mode == u"none"_s ? u"color"_s : wanted.mode;
    QStringList arguments;
    if (!wanted.file.isEmpty())
        arguments.append(u"--set-wallpaper="_s + wanted.file);
    if (!mode.isEmpty())
        arguments.append(u"--wallpaper-mode="_s + mode);
    if (arguments.isEmpty())
        return {}; // it would open a window
    const ToolAnswer answer = m_tools.call(program, arguments);
    if (answer.failed() || wanted.file.isEmpty() || isKept(wanted.file))
        return answer.error;
    return Wording::tr("“%1” did not take the picture; it may not be what draws the desktop.").arg(program);
}

/// The file manager that runs is told by the one that was started, and notes the picture a moment later.
bool PcmanfmPicture::isKept(const QString& file) const
{
    constexpr std::chrono::milliseconds longest{1000};
    return m_tools.await([&] { return setting().value_or(Setting()).file == file; }, longest);
}

} // namespace ambrelle
