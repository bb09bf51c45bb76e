// SPDX-License-Identifier: MIT

#include "platform/linux/picture/GSettingsPicture.h"

#include "foundation/PictureFile.h"
#include "foundation/Wording.h"
#include "platform/linux/picture/GVariantText.h"

#include <QUrl>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

const QString gsettings = u"gsettings"_s;

struct Schema {
    QString name;
    QString options; ///< the key of how the picture is fitted
    QStringList pictures; ///< the keys of the picture; an installed schema may lack the later ones
    bool isUri; ///< the picture is a URI, else a path
};

Schema schemaOf(GSettingsPicture::Family family)
{
    switch (family) {
    case GSettingsPicture::Family::gnome:
        return {
            u"org.gnome.desktop.background"_s, u"picture-options"_s, {u"picture-uri"_s, u"picture-uri-dark"_s}, true};
    case GSettingsPicture::Family::cinnamon:
        return {u"org.cinnamon.desktop.background"_s, u"picture-options"_s, {u"picture-uri"_s}, true};
    case GSettingsPicture::Family::mate:
        return {u"org.mate.background"_s, u"picture-options"_s, {u"picture-filename"_s}, false};
    }
    return {};
}

QString stored(const Schema& schema, const QString& file)
{
    const QString text = schema.isUri ? QString::fromLatin1(QUrl::fromLocalFile(file).toEncoded()) : file;
    return GVariantText::quoted(text);
}

QString fileIn(const Schema& schema, const QString& value)
{
    const QString text = GVariantText::unquoted(value).value_or(QString());
    return schema.isUri ? QUrl(text).toLocalFile() : text;
}

} // namespace

GSettingsPicture::GSettingsPicture(Family family, std::chrono::milliseconds patience)
    : m_family(family)
    , m_tools(*this, patience)
{
}

QString GSettingsPicture::whyNot() const
{
    return ToolRunner::whyMissing(gsettings);
}

void GSettingsPicture::set(const QList<ScreenPicture>& pictures, Done done)
{
    const QString file = pictures.isEmpty() ? QString() : pictures.first().file;
    m_tools.run([this, file] { return file.isEmpty() ? QString() : show(file); }, std::move(done));
}

void GSettingsPicture::read(const QString&, std::function<void(const QString& file)> done)
{
    m_tools.run([this] { return shown(); }, std::move(done));
}

void GSettingsPicture::remember(const QString&, std::function<void(const QJsonObject& memory)> done)
{
    const auto memory = [this] {
        QJsonObject values;
        const Settings now = settings();
        for (auto value = now.values.begin(); value != now.values.end(); ++value)
            values.insert(value.key(), value.value());
        return values;
    };
    m_tools.run(memory, std::move(done));
}

void GSettingsPicture::giveBack(const QJsonObject& memory, Done done)
{
    Values wanted;
    for (auto value = memory.begin(); value != memory.end(); ++value)
        wanted.insert(value.key(), value->toString());
    m_tools.run([this, wanted] { return write(wanted); }, std::move(done));
}

GSettingsPicture::Settings GSettingsPicture::settings() const
{
    const Schema schema = schemaOf(m_family);
    const ToolAnswer answer = m_tools.call(gsettings, {u"list-recursively"_s, schema.name});
    Settings settings{.error = answer.error};
    const QStringList keys = schema.pictures + QStringList{schema.options};
    for (const QString& line : QString::fromUtf8(answer.output).split(u'\n')) {
        const QString key = line.section(u' ', 1, 1);
        if (line.startsWith(schema.name + u' ') && keys.contains(key))
            settings.values.insert(key, line.section(u' ', 2));
    }
    return settings;
}

QString GSettingsPicture::show(const QString& file) const
{
    if (QString fault = PictureFile::fault(file); !fault.isEmpty())
        return fault;
    const Schema schema = schemaOf(m_family);
    Values wanted{{schema.options, GVariantText::quoted(u"zoom"_s)}};
    for (const QString& key : schema.pictures)
        wanted.insert(key, stored(schema, file));
    return write(wanted);
}

QString GSettingsPicture::shown() const
{
    const Schema schema = schemaOf(m_family);
    const Values values = settings().values;
    if (GVariantText::unquoted(values.value(schema.options)) == u"none"_s)
        return {};
    QString file = fileIn(schema, values.value(schema.pictures.first()));
    // Where light and dark have different pictures, it is not known which of them shows.
    for (const QString& key : schema.pictures) {
        if (values.contains(key) && fileIn(schema, values[key]) != file)
            return {};
    }
    return file;
}

QString GSettingsPicture::write(const Values& wanted) const
{
    const Settings before = settings();
    if (!before.error.isEmpty())
        return before.error;
    Values known = wanted;
    known.removeIf([&](const auto& value) { return !before.values.contains(value.key()); });
    if (known.isEmpty())
        return Wording::tr("This desktop keeps its picture in settings of an unknown form.");
    QString error = tryToWrite(known);
    if (!error.isEmpty())
        put(before.values);
    return error;
}

QString GSettingsPicture::tryToWrite(const Values& wanted) const
{
    if (QString error = put(wanted); !error.isEmpty())
        return error;
    // Without a store the tool ends well all the same.
    const Values now = settings().values;
    for (auto value = wanted.begin(); value != wanted.end(); ++value) {
        if (GVariantText::unquoted(now.value(value.key())) != GVariantText::unquoted(value.value()))
            return Wording::tr("The desktop's settings did not keep the picture.");
    }
    return {};
}

QString GSettingsPicture::put(const Values& wanted) const
{
    const QString schema = schemaOf(m_family).name;
    for (auto value = wanted.begin(); value != wanted.end(); ++value) {
        const ToolAnswer answer = m_tools.call(gsettings, {u"set"_s, schema, value.key(), value.value()});
        if (answer.failed())
            return answer.error;
    }
    return {};
}

} // namespace ambrelle
