// SPDX-License-Identifier: MIT

#include "platform/linux/picture/PlasmaPicture.h"

#include "foundation/PictureFile.h"
#include "foundation/Wording.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QJsonArray>
#include <QJsonDocument>
#include <QUrl>

#include <algorithm>
#include <utility>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

// The shell numbers screens in its own way, so both sides count them from left to right and from top to bottom.
// Desktops of activities that do not show are on no screen.
const QString library = uR"js(
var shown = [];
var screens = [];
var all = desktops();
for (var i = 0; i < all.length; ++i) {
    if (all[i].screen < 0)
        continue;
    shown.push(all[i]);
    if (screens.indexOf(all[i].screen) < 0)
        screens.push(all[i].screen);
}
screens.sort(function (one, other) {
    var a = screenGeometry(one), b = screenGeometry(other);
    return a.x - b.x || a.y - b.y;
});
function settings(desktop) {
    desktop.currentConfigGroup = ["Wallpaper", "org.kde.image", "General"];
    return desktop;
}
function tell() {
    print(JSON.stringify(shown.map(function (desktop) {
        var group = settings(desktop);
        return {
            id: desktop.id,
            rank: screens.indexOf(desktop.screen),
            plugin: String(desktop.wallpaperPlugin),
            image: String(group.readConfig("Image", "")),
            fill: String(group.readConfig("FillMode", ""))
        };
    })));
}
function write(desktop, wanted) {
    desktop.wallpaperPlugin = wanted.plugin;
    var group = settings(desktop);
    group.writeConfig("Image", wanted.image);
    group.writeConfig("FillMode", wanted.fill);
}
function changeWhere(wanted, key) {
    var count = 0;
    shown.forEach(function (desktop) {
        var own = wanted[key(desktop)];
        if (own === undefined)
            return;
        write(desktop, own);
        ++count;
    });
    print(count);
}
function changeScreens(wanted) {
    changeWhere(wanted, function (desktop) { return screens.indexOf(desktop.screen); });
}
function changeDesktops(wanted) {
    changeWhere(wanted, function (desktop) { return desktop.id; });
}
)js"_s;

const QString imagePlugin = u"org.kde.image"_s;
const QString fillScreen = u"2"_s; // scaled and cropped

QString fileOf(const QJsonObject& desktop)
{
    const QString image = desktop.value("image"_L1).toString();
    if (desktop.value("plugin"_L1).toString() != imagePlugin)
        return {};
    return image.startsWith(u'/') ? image : QUrl(image).toLocalFile();
}

} // namespace

PlasmaPicture::PlasmaPicture(QDBusConnection bus, std::chrono::milliseconds patience, ListScreens screens)
    : m_bus(std::move(bus))
    , m_patience(patience)
    , m_screens(std::move(screens))
{
}

QString PlasmaPicture::whyNot() const
{
    return isAvailable() ? QString() : Wording::tr("There is no session bus on which Plasma could be asked.");
}

/// The place of a screen among all of them; -1 when there is no such screen.
int PlasmaPicture::rankOf(const QString& connector) const
{
    QList<ConnectedScreen> all = m_screens();
    std::ranges::stable_sort(
        all, {}, [](const ConnectedScreen& screen) { return std::pair(screen.corner.x(), screen.corner.y()); });
    // Screens that mirror each other are one.
    const auto [from, to] = std::ranges::unique(all, {}, &ConnectedScreen::corner);
    const auto wanted = std::ranges::find(all, connector, &ConnectedScreen::connector);
    return wanted < from ? static_cast<int>(wanted - all.begin()) : -1;
}

void PlasmaPicture::set(const QList<ScreenPicture>& pictures, Done done)
{
    QJsonObject wanted;
    for (const ScreenPicture& picture : pictures) {
        if (const QString fault = PictureFile::fault(picture.file); !fault.isEmpty())
            return fail(fault, done);
        const int rank = rankOf(picture.connector);
        if (rank < 0)
            return fail(Wording::tr("There is no screen “%1”.").arg(picture.connector), done);
        const QString image = QString::fromLatin1(QUrl::fromLocalFile(picture.file).toEncoded());
        wanted.insert(QString::number(rank),
            QJsonObject{{u"plugin"_s, imagePlugin}, {u"image"_s, image}, {u"fill"_s, fillScreen}});
    }
    change(u"changeScreens"_s, wanted, std::move(done));
}

void PlasmaPicture::read(const QString& connector, std::function<void(const QString& file)> done)
{
    const int rank = rankOf(connector);
    evaluate(u"tell();"_s, [rank, done = std::move(done)](const QJsonValue& result, const QString&) {
        const QJsonArray desktops = result.toArray();
        const auto found = std::ranges::find_if(
            desktops, [rank](const QJsonValue& desktop) { return desktop["rank"_L1].toInt(-2) == rank; });
        done(found == desktops.end() ? QString() : fileOf(found->toObject()));
    });
}

void PlasmaPicture::remember(const QString&, std::function<void(const QJsonObject& memory)> done)
{
    evaluate(u"tell();"_s, [done = std::move(done)](const QJsonValue& result, const QString&) {
        QJsonObject memory;
        for (const QJsonValue& desktop : result.toArray()) {
            QJsonObject settings = desktop.toObject();
            settings.remove("rank"_L1);
            const int id = settings.take("id"_L1).toInt();
            memory.insert(QString::number(id), settings);
        }
        done(memory);
    });
}

void PlasmaPicture::giveBack(const QJsonObject& memory, Done done)
{
    change(u"changeDesktops"_s, memory, std::move(done));
}

void PlasmaPicture::change(const QString& function, const QJsonObject& argument, Done done)
{
    const QString wanted = QString::fromUtf8(QJsonDocument(argument).toJson(QJsonDocument::Compact));
    const bool isNothing = argument.isEmpty();
    evaluate(u"%1(%2);"_s.arg(function, wanted),
        [isNothing, done = std::move(done)](const QJsonValue& count, const QString& error) {
            if (!error.isEmpty() || isNothing || count.toInt() > 0)
                done(error);
            else
                done(Wording::tr("Plasma has none of the desktops whose picture should change."));
        });
}

void PlasmaPicture::evaluate(const QString& script, Result result)
{
    auto call = QDBusMessage::createMethodCall(
        u"org.kde.plasmashell"_s, u"/PlasmaShell"_s, u"org.kde.PlasmaShell"_s, u"evaluateScript"_s);
    call.setArguments({QString(library + script)});
    const QDBusPendingCall pending = m_bus.asyncCall(call, static_cast<int>(m_patience.count()));
    auto* watcher = new QDBusPendingCallWatcher(pending, this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [watcher, result = std::move(result)] {
        watcher->deleteLater();
        const QDBusPendingReply<QString> reply = *watcher;
        if (reply.isError())
            return result({}, Wording::tr("Plasma did not change its picture: %1").arg(reply.error().message()));
        // As a list, since a document cannot be a bare number.
        const QByteArray text = '[' + reply.value().trimmed().toUtf8() + ']';
        const QJsonArray printed = QJsonDocument::fromJson(text).array();
        if (printed.isEmpty())
            return result(
                {}, Wording::tr("Plasma did not change its picture: %1").arg(reply.value().section(u'\n', 0, 0)));
        result(printed.first(), {});
    });
}

void PlasmaPicture::fail(const QString& error, const Done& done)
{
    QMetaObject::invokeMethod(
        this, [error, done] { done(error); }, Qt::QueuedConnection);
}

} // namespace ambrelle
