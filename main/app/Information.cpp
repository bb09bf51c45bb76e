// SPDX-License-Identifier: MIT

#include "app/Information.h"

#include "platform/linux/kernel/RunningProgram.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>

namespace ambrelle {

using namespace Qt::StringLiterals;

bool isOfSystem(const QString& program)
{
    return program.startsWith("/usr/"_L1) && !program.startsWith("/usr/local/"_L1);
}

QString dataFile(const QString& name)
{
    // QCoreApplication is not there yet when fonts are registered.
    const QDir program = QFileInfo(runningProgram()).dir();
    for (const QString& place : {u"share/ambrelle/"_s, u"../share/ambrelle/"_s}) {
        QString path = QDir::cleanPath(program.filePath(place + name));
        if (QFileInfo::exists(path))
            return path;
    }
    return {};
}

QString dataText(const QString& name)
{
    QFile file(dataFile(name));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

namespace {

QJsonObject contentsOfFile()
{
    QFile file(dataFile(u"org.ambrelle.Ambrelle.json"_s));
    return file.open(QIODevice::ReadOnly) ? QJsonDocument::fromJson(file.readAll()).object() : QJsonObject();
}

/// Read once, since several ask while the program starts.
const QJsonObject& contents()
{
    static const QJsonObject known = contentsOfFile();
    return known;
}

} // namespace

Information Information::read()
{
    Information information{.identifier = u"org.ambrelle.Ambrelle"_s, .version = QString::fromUtf8(AMBRELLE_VERSION)};
    const QJsonObject& values = contents();
    information.identifier = values.value(u"identifier"_s).toString(information.identifier);
    information.version = values.value(u"version"_s).toString(information.version);
    information.build = values.value(u"build"_s).toInt();
    information.updateFeed = values.value(u"AMUpdateFeedURL"_s).toString();
    const QJsonObject addresses = values.value(u"addresses"_s).toObject();
    information.forecastBase =
        qEnvironmentVariable("AMBRELLE_FORECAST_BASE", addresses.value(u"forecast"_s).toString());
    information.geocodingBase =
        qEnvironmentVariable("AMBRELLE_GEOCODING_BASE", addresses.value(u"geocoding"_s).toString());
    information.download = addresses.value(u"download"_s).toString();
    return information;
}

} // namespace ambrelle
