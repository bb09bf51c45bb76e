// SPDX-License-Identifier: MIT

#include "platform/linux/update/FolderJournal.h"

#include "foundation/Json.h"
#include "foundation/PlainFile.h"
#include "foundation/WholeFile.h"
#include "platform/linux/update/WorkFolder.h"

#include <QDir>
#include <QJsonDocument>

namespace ambrelle {

namespace {

constexpr qint64 longestJournal = 64 * 1024; // bytes

bool staysInside(const QString& path)
{
    return !path.isEmpty() && QDir::isRelativePath(path) && QDir::cleanPath(path) == path && !path.startsWith(".."_L1);
}

} // namespace

std::optional<FolderJournal> FolderJournal::read(const WorkFolder& folder)
{
    const std::optional<QByteArray> text = readPlainFile(folder.journal(), longestJournal);
    const QJsonObject values = QJsonDocument::fromJson(text.value_or(QByteArray())).object();
    FolderJournal journal{.from = values.value("from"_L1).toString(),
        .to = values.value("to"_L1).toString(),
        .copy = values.value("copy"_L1).toString(),
        .attempts = values.value("attempts"_L1).toInt(),
        .isRejected = values.value("rejected"_L1).toBool(),
        .isConfirmed = values.value("confirmed"_L1).toBool()};
    if (journal.from.isEmpty() || journal.to.isEmpty() || !staysInside(journal.copy))
        return std::nullopt;
    return journal;
}

bool FolderJournal::write(const WorkFolder& folder) const
{
    const QJsonObject values{{u"from"_s, from}, {u"to"_s, to}, {u"copy"_s, copy}, {u"attempts"_s, attempts},
        {u"rejected"_s, isRejected}, {u"confirmed"_s, isConfirmed}};
    return writeWhole(folder.journal(), QJsonDocument(values).toJson(), Readers::owner).isEmpty();
}

bool FolderJournal::remove(const WorkFolder& folder)
{
    return folder.remove(folder.journal());
}

} // namespace ambrelle
