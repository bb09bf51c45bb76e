// SPDX-License-Identifier: MIT

#include "platform/linux/picture/SwayPicture.h"

#include "foundation/PictureFile.h"
#include "foundation/WholeFile.h"
#include "foundation/Wording.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

const QString swaymsg = u"swaymsg"_s;

/// Sway expands the path of a picture as a shell would and puts the words together again with one space between, so
/// only what comes out of that unchanged may stand in it.
bool isPlain(const QString& path)
{
    return !path.contains(u"  "_s) && std::ranges::all_of(path, [](QChar letter) {
        return letter.isLetterOrNumber() || u"/._-+@%:= "_s.contains(letter);
    });
}

QJsonObject readObject(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QJsonDocument::fromJson(file.readAll()).object() : QJsonObject();
}

/// Without those of outputs that have gone; where none or only one was remembered, all.
QList<ScreenPicture> stillThere(const QList<ScreenPicture>& pictures, const QStringList& known)
{
    QList<ScreenPicture> there = pictures;
    there.removeIf([&](const ScreenPicture& picture) { return !known.contains(picture.connector); });
    return there.isEmpty() || pictures.size() == 1 ? pictures : there;
}

/// What to tell Sway; nothing and an error where that cannot be told.
QString commandsFor(const QList<ScreenPicture>& pictures, const QStringList& known, QString& error)
{
    QStringList commands;
    for (const ScreenPicture& picture : pictures) {
        error = PictureFile::fault(picture.file);
        if (error.isEmpty() && !isPlain(picture.file))
            error = Wording::tr("Sway cannot be told of “%1”: that path has signs with a meaning of their own.")
                        .arg(picture.file);
        // An X server inside Sway may have a name of its own for the only screen.
        const bool isKnown = known.contains(picture.connector);
        if (error.isEmpty() && !isKnown && known.size() != 1)
            error = Wording::tr("Sway has no output called “%1”.").arg(picture.connector);
        if (!error.isEmpty())
            return {};
        const QString output = isKnown ? picture.connector : known.first();
        commands.append(u"output \"%1\" bg \"%2\" fill"_s.arg(output, picture.file));
    }
    return commands.join(u"; "_s);
}

} // namespace

SwayPicture::SwayPicture(const QString& recordFile, const QString& session, std::chrono::milliseconds patience)
    : m_recordFile(recordFile)
    , m_session(session)
    , m_tools(*this, patience)
{
}

QString SwayPicture::whyNot() const
{
    return ToolRunner::whyMissing(swaymsg);
}

void SwayPicture::set(const QList<ScreenPicture>& pictures, Done done)
{
    m_tools.run([this, pictures] { return show(pictures, Gone::fault); }, std::move(done));
}

void SwayPicture::read(const QString& connector, std::function<void(const QString& file)> done)
{
    m_tools.run([this, connector] { return record().value(connector).toString(); }, std::move(done));
}

void SwayPicture::remember(const QString&, std::function<void(const QJsonObject& memory)> done)
{
    m_tools.run([this] { return record(); }, std::move(done));
}

void SwayPicture::giveBack(const QJsonObject& memory, Done done)
{
    QList<ScreenPicture> pictures;
    for (auto file = memory.begin(); file != memory.end(); ++file)
        pictures.append({file.key(), file->toString()});
    m_tools.run([this, pictures] { return show(pictures, Gone::skipped); }, std::move(done));
}

QString SwayPicture::show(const QList<ScreenPicture>& pictures, Gone gone) const
{
    QString error;
    const QStringList known = outputs(error);
    if (!error.isEmpty())
        return error;
    const QList<ScreenPicture> wanted = gone == Gone::skipped ? stillThere(pictures, known) : pictures;
    const QString commands = commandsFor(wanted, known, error);
    if (!error.isEmpty() || commands.isEmpty())
        return error;
    // Sway carries out all of them or, on a fault in one, tells of it.
    const ToolAnswer answer = m_tools.call(swaymsg, {commands});
    if (!answer.failed())
        note(wanted);
    return answer.error;
}

QStringList SwayPicture::outputs(QString& error) const
{
    const ToolAnswer answer = m_tools.call(swaymsg, {u"-r"_s, u"-t"_s, u"get_outputs"_s});
    error = answer.error;
    QStringList names;
    for (const QJsonValue& output : QJsonDocument::fromJson(answer.output).array())
        names.append(output["name"_L1].toString());
    return names;
}

QJsonObject SwayPicture::record() const
{
    const QJsonObject kept = readObject(m_recordFile);
    return kept.value("session"_L1).toString() == m_session ? kept.value("files"_L1).toObject() : QJsonObject();
}

void SwayPicture::note(const QList<ScreenPicture>& pictures) const
{
    QJsonObject files = record();
    for (const ScreenPicture& picture : pictures)
        files.insert(picture.connector, picture.file);
    // Without a record the picture shows all the same; it is merely not known later.
    writeWhole(m_recordFile, QJsonDocument(QJsonObject{{u"session"_s, m_session}, {u"files"_s, files}}).toJson());
}

} // namespace ambrelle
