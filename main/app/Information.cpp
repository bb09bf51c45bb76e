#include "app/Information.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>

namespace ambrelle {

using namespace Qt::StringLiterals;

QString dataFile(const QString& name)
{
    // QCoreApplication is not there yet when fonts are registered.
    const QDir program = QFileInfo(QFile::symLinkTarget(u"/proc/self/exe"_s)).dir();
    for (const QString& place : {u"share/ambrelle/"_s, u"../share/ambrelle/"_s}) {
        QString path = QDir::cleanPath(program.filePath(place + name));
        if (QFileInfo::exists(path))
            return path;
    }
    return {};
}

Information Information::read()
{
    Information information{.identifier = u"org.ambrelle.Ambrelle"_s, .version = QStringLiteral(AMBRELLE_VERSION)};
    QFile file(dataFile(u"org.ambrelle.Ambrelle.json"_s));
    if (!file.open(QIODevice::ReadOnly))
        return information;
    const QJsonObject values = QJsonDocument::fromJson(file.readAll()).object();
    information.identifier = values.value(u"identifier"_s).toString(information.identifier);
    information.version = values.value(u"version"_s).toString(information.version);
    information.build = values.value(u"build"_s).toInt();
    return information;
}

} // namespace ambrelle
