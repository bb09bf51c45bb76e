// SPDX-License-Identifier: MIT

#include "model/ThemeFiles.h"

#include "foundation/ForeignText.h"
#include "foundation/PlainFile.h"
#include "foundation/WholeFile.h"
#include "foundation/Wording.h"
#include "model/ThemeAccent.h"
#include "model/ThemeStore.h"

#include <QFileInfo>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 longestThemeFile = 8 * 1024 * 1024;
constexpr QStringView forbiddenInNames = u"/\\:*?\"<>|";

} // namespace

std::optional<ThemeEnvelope> ThemeFiles::read(const QString& path)
{
    const std::optional<QByteArray> bytes = readPlainFile(path, longestThemeFile);
    std::optional<ThemeEnvelope> file = bytes ? ThemeEnvelope::decode(*bytes) : std::nullopt;
    if (!file)
        return std::nullopt;
    if (file->theme.name.isEmpty())
        file->theme.name = foreignText(QFileInfo(path).completeBaseName(), SavedTheme::longestName);
    if (file->theme.name.isEmpty())
        file->theme.name = title(file->theme.dominantSkin());
    return file;
}

std::optional<SavedTheme> ThemeFiles::take(const ThemeEnvelope& file, const QDateTime& now)
{
    const SavedTheme theme = file.imported(now);
    if (!m_themes.add(theme))
        return std::nullopt;
    QMap<QString, QString> accents = m_accents.hexOverrides();
    accents.insert(file.accents);
    m_accents.apply(accents);
    return theme;
}

std::optional<SavedTheme> ThemeFiles::importFile(const QString& path, const QDateTime& now)
{
    const std::optional<ThemeEnvelope> file = read(path);
    return file ? take(*file, now) : std::nullopt;
}

QString ThemeFiles::exportTo(const QString& path, const SavedTheme& theme) const
{
    return write(path, {theme, m_accents.hexOverrides()});
}

QString ThemeFiles::write(const QString& path, const ThemeEnvelope& file)
{
    const QString linked = QFileInfo(path).canonicalFilePath(); // a link stays one
    const QString reason = writeWhole(linked.isEmpty() ? path : linked, file.encode());
    return reason.isEmpty() ? reason : Wording::tr("“%1” cannot be written: %2.").arg(path, reason);
}

QString ThemeFiles::fileName(const SavedTheme& theme)
{
    QString name = foreignText(theme.name);
    for (QChar& letter : name) {
        if (forbiddenInNames.contains(letter))
            letter = u'-';
    }
    if (name.startsWith(u'.'))
        name[0] = u'-'; // else the file would be a hidden one
    return (name.isEmpty() ? title(theme.dominantSkin()) : name) + u'.' + extension;
}

} // namespace ambrelle
