// SPDX-License-Identifier: MIT

#include "platform/linux/picture/XfconfPicture.h"

#include "foundation/PictureFile.h"

#include <QRegularExpression>

#include <algorithm>
#include <utility>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

const QString xfconfQuery = u"xfconf-query"_s;
const QString channel = u"xfce4-desktop"_s;
const QString backdrop = u"/backdrop/"_s;
constexpr int usualWorkspaces = 4; // Xfce's own default
constexpr int mostWorkspaces = 64;

// The end of a property, below the folder of a monitor's workspace.
const QString fileKey = u"/last-image"_s;
const QString styleKey = u"/image-style"_s;
const QString cycleKey = u"/backdrop-cycle-enable"_s; // another picture of the folder every few minutes
const QString fillingStyle = u"5"_s;

/// The type of the values that are kept under the property; empty when it is none of those.
QString typeOf(const QString& property)
{
    if (!property.startsWith(backdrop))
        return {};
    if (property.endsWith(fileKey))
        return u"string"_s;
    if (property.endsWith(styleKey))
        return u"int"_s;
    return property.endsWith(cycleKey) ? u"bool"_s : QString();
}

/// Where the workspaces of a monitor are, but for their numbers.
QString monitorPlace(const QString& connector)
{
    return backdrop + u"screen0/monitor%1/workspace"_s.arg(connector);
}

} // namespace

XfconfPicture::XfconfPicture(std::chrono::milliseconds patience, ListScreens screens)
    : m_screens(std::move(screens))
    , m_tools(*this, patience)
{
}

QString XfconfPicture::whyNot() const
{
    return ToolRunner::whyMissing(xfconfQuery);
}

void XfconfPicture::set(const QList<ScreenPicture>& pictures, Done done)
{
    m_tools.run([this, all = connectors(), pictures] { return show(pictures, look(all)); }, std::move(done));
}

void XfconfPicture::read(const QString& connector, std::function<void(const QString& file)> done)
{
    m_tools.run([this, all = connectors(), connector] { return shown(connector, look(all)); }, std::move(done));
}

void XfconfPicture::remember(const QString&, std::function<void(const QJsonObject& memory)> done)
{
    m_tools.run([this, all = connectors()] { return memory(look(all)); }, std::move(done));
}

void XfconfPicture::giveBack(const QJsonObject& memory, Done done)
{
    Values wanted;
    for (auto value = memory.begin(); value != memory.end(); ++value) {
        if (!typeOf(value.key()).isEmpty())
            wanted.insert(value.key(), value->isString() ? std::optional(value->toString()) : std::nullopt);
    }
    m_tools.run([this, all = connectors(), wanted] { return write(wanted, look(all)); }, std::move(done));
}

QStringList XfconfPicture::connectors() const
{
    QStringList connectors;
    for (const ConnectedScreen& screen : m_screens())
        connectors.append(screen.connector);
    return connectors;
}

XfconfPicture::Desk XfconfPicture::look(const QStringList& connectors) const
{
    const ToolAnswer answer = m_tools.call(xfconfQuery, {u"-c"_s, channel, u"-l"_s, u"-v"_s});
    Desk desk{.connectors = connectors, .error = answer.error};
    static const QRegularExpression row(u"^(/\\S+)\\s*(.*)$"_s);
    for (const QString& line : QString::fromUtf8(answer.output).split(u'\n')) {
        const QRegularExpressionMatch match = row.match(line);
        if (match.hasMatch())
            desk.values.insert(match.captured(1), match.captured(2));
    }
    if (!answer.failed())
        desk.workspaces = workspaceCount();
    return desk;
}

int XfconfPicture::workspaceCount() const
{
    const QStringList arguments{u"-c"_s, u"xfwm4"_s, u"-p"_s, u"/general/workspace_count"_s};
    const int count = m_tools.call(xfconfQuery, arguments).output.trimmed().toInt(); // 0 when it was never set
    return count > 0 ? std::min(count, mostWorkspaces) : usualWorkspaces;
}

std::optional<QString> XfconfPicture::Desk::value(const QString& property) const
{
    const auto found = values.find(property);
    return found == values.end() ? std::nullopt : std::optional(*found);
}

/// Folders of workspaces, such as "/backdrop/screen0/monitorDP-1/workspace0".
QStringList XfconfPicture::Desk::listedPlaces() const
{
    static const QRegularExpression form(uR"(^(/backdrop/screen0/monitor[^/]+/workspace\d+)/)"_s);
    QStringList places;
    for (auto property = values.keyBegin(); property != values.keyEnd(); ++property)
        places.append(form.match(*property).captured(1));
    places.removeAll(QString());
    places.removeDuplicates();
    return places;
}

/// The workspaces of a screen: those the window manager has, and those the desktop remembers.
QStringList XfconfPicture::Desk::placesOf(const QString& connector) const
{
    QStringList places;
    for (int workspace = 0; workspace < workspaces; ++workspace)
        places.append(monitorPlace(connector) + QString::number(workspace));
    const QStringList listed = listedPlaces();
    const bool knowsConnectors = std::ranges::any_of(
        connectors, [&](const QString& each) { return !listed.filter(monitorPlace(each)).isEmpty(); });
    // A desktop that remembers screens, but none of the connected ones, calls them by other names.
    places += knowsConnectors ? listed.filter(monitorPlace(connector)) : listed;
    places.removeDuplicates();
    return places;
}

QString XfconfPicture::show(const QList<ScreenPicture>& pictures, const Desk& before) const
{
    Values wanted;
    for (const ScreenPicture& picture : pictures) {
        if (QString fault = PictureFile::fault(picture.file); !fault.isEmpty())
            return fault;
        for (const QString& place : before.placesOf(picture.connector)) {
            wanted.insert(place + styleKey, fillingStyle);
            wanted.insert(place + fileKey, picture.file);
            if (before.value(place + cycleKey) == u"true"_s)
                wanted.insert(place + cycleKey, u"false"_s);
        }
    }
    return write(wanted, before);
}

QString XfconfPicture::shown(const QString& connector, const Desk& desk)
{
    // Unless told otherwise, Xfce shows one workspace's picture on all of them.
    if (desk.value(backdrop + u"single-workspace-mode"_s).value_or(u"true"_s) == u"true"_s) {
        const QString chosen = desk.value(backdrop + u"single-workspace-number"_s).value_or(u"0"_s);
        if (const auto file = desk.value(monitorPlace(connector) + chosen + fileKey))
            return *file;
    }
    QStringList files;
    for (const QString& place : desk.placesOf(connector)) {
        if (const auto file = desk.value(place + fileKey))
            files.append(*file);
    }
    files.removeDuplicates();
    return files.size() == 1 ? files.first() : QString();
}

QJsonObject XfconfPicture::memory(const Desk& desk)
{
    if (!desk.error.isEmpty())
        return {};
    QStringList places = desk.listedPlaces();
    for (const QString& connector : desk.connectors)
        places += desk.placesOf(connector);
    QJsonObject memory;
    for (const QString& place : places) {
        for (const QString& key : {fileKey, styleKey, cycleKey}) {
            const std::optional<QString> value = desk.value(place + key);
            memory.insert(place + key, value ? QJsonValue(*value) : QJsonValue());
        }
    }
    return memory;
}

QString XfconfPicture::write(const Values& wanted, const Desk& before) const
{
    if (!before.error.isEmpty())
        return before.error;
    // Sorted, a style comes before its picture, which so appears in the right way at once.
    for (auto value = wanted.begin(); value != wanted.end(); ++value) {
        if (before.value(value.key()) == *value)
            continue;
        QString error = put(value.key(), *value);
        if (error.isEmpty())
            continue;
        for (auto written = wanted.begin(); written != value; ++written)
            put(written.key(), before.value(written.key()));
        return error;
    }
    return {};
}

QString XfconfPicture::put(const QString& property, const std::optional<QString>& value) const
{
    QStringList arguments{u"-c"_s, channel, u"-p"_s, property};
    if (value)
        arguments << u"--create"_s << u"--type"_s << typeOf(property) << u"--set="_s + *value;
    else
        arguments << u"--reset"_s;
    return m_tools.call(xfconfQuery, arguments).error;
}

} // namespace ambrelle
