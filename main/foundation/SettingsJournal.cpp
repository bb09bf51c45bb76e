// SPDX-License-Identifier: MIT

#include "foundation/SettingsJournal.h"

#include "foundation/PlainFile.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>

#include <utility>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

constexpr int slotCount = 2;
constexpr const char* mark = "ambrelle";
constexpr qint64 longestVersion = 64 * 1024 * 1024;

struct SlotContents {
    quint64 serial = 0;
    SettingsJournal::Version version;
};

/// "ambrelle HASH LENGTH", "SERIAL HASH HASH" and the values, each on a line. The hash and the length are those of all
/// that follows the first line; beyond it the file may hold the rest of a longer version.
QByteArray encoded(const SlotContents& slot)
{
    const auto& [first, second] = slot.version.follows;
    const QByteArray body = QByteArray::number(slot.serial) + ' ' + first + ' ' + second + '\n'
        + QJsonDocument(slot.version.values).toJson(QJsonDocument::Compact);
    return QByteArray(mark) + ' ' + SettingsJournal::hash(body) + ' ' + QByteArray::number(body.size()) + '\n' + body;
}

std::optional<SlotContents> decoded(const QByteArray& bytes)
{
    const qsizetype head = bytes.indexOf('\n');
    const QList<QByteArray> seal = bytes.left(head).split(' ');
    if (head < 0 || seal.size() != 3 || seal[0] != mark)
        return std::nullopt;
    const QByteArray body = bytes.mid(head + 1, seal[2].toLongLong());
    const qsizetype about = body.indexOf('\n');
    const QList<QByteArray> words = body.left(about).split(' ');
    const QJsonDocument values = QJsonDocument::fromJson(body.mid(about + 1));
    if (SettingsJournal::hash(body) != seal[1] || words.size() != 3 || !values.isObject())
        return std::nullopt;
    return SlotContents{words[0].toULongLong(), {values.object(), {words[1], words[2]}}};
}

std::optional<SlotContents> slotIn(const QString& path)
{
    const std::optional<QByteArray> bytes = readPlainFile(path, longestVersion);
    return bytes ? decoded(*bytes) : std::nullopt;
}

} // namespace

QByteArray SettingsJournal::hash(const QByteArray& file)
{
    return QCryptographicHash::hash(file, QCryptographicHash::Sha256).toHex();
}

SettingsJournal::SettingsJournal(QString path)
    : m_path(std::move(path))
{
}

QString SettingsJournal::name(int slot) const
{
    return m_path + u".latest-%1"_s.arg(slot + 1);
}

std::optional<SettingsJournal::Version> SettingsJournal::newest()
{
    std::optional<Version> newest;
    for (int slot = 0; slot < slotCount; ++slot) {
        std::optional<SlotContents> found = slotIn(name(slot));
        if (!found || found->serial <= m_serial)
            continue;
        m_serial = found->serial;
        m_slot = slot;
        newest = std::move(found->version);
    }
    return newest;
}

QString SettingsJournal::write(const QJsonObject& values, const Predecessors& follows)
{
    const int slot = (m_slot + 1) % slotCount;
    QFile file(name(slot));
    const auto open = [&file] {
        // Not truncated: the blocks it has are enough for most versions, on a full disk too.
        return file.open(
            QIODevice::ReadWrite | QIODevice::Unbuffered, QFileDevice::ReadOwner | QFileDevice::WriteOwner);
    };
    if (!open() && (!QDir().mkpath(QFileInfo(m_path).path()) || !open()))
        return file.errorString();
    const QByteArray bytes = encoded({m_serial + 1, {values, follows}});
    if (file.write(bytes) != bytes.size())
        return file.errorString();
    ++m_serial;
    m_slot = slot;
    return {};
}

void SettingsJournal::remove()
{
    // The newest last: a kill in between must not leave an older one that follows what the settings file holds again.
    for (int step = 1; step <= slotCount; ++step)
        QFile::remove(name((m_slot + step) % slotCount));
}

} // namespace ambrelle
