// SPDX-License-Identifier: MIT

#include "app/StartRequest.h"

#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

const QString filesKey = u"files"_s;
const QString actionKey = u"action"_s;
const QString tokenKey = u"token"_s;

QStringList absolutePaths(const QJsonArray& list)
{
    QStringList files;
    for (const QJsonValue& value : list) {
        if (value.isString() && QFileInfo(value.toString()).isAbsolute())
            files.append(value.toString());
    }
    return files;
}

/// A token is a word: it goes into properties of windows and messages to others.
QString checkedToken(const QString& token)
{
    const auto isPrintable = [](QChar letter) { return letter > u' ' && letter < u'\x7f'; };
    return token.size() <= StartRequest::longestToken && std::ranges::all_of(token, isPrintable) ? token : QString();
}

} // namespace

QByteArray StartRequest::encoded() const
{
    QJsonArray paths;
    for (const QString& file : files)
        paths.append(QFileInfo(file).absoluteFilePath());
    QJsonObject message;
    message.insert(filesKey, paths);
    if (!action.isEmpty())
        message.insert(actionKey, action);
    if (!token.isEmpty())
        message.insert(tokenKey, token);
    return QJsonDocument(message).toJson(QJsonDocument::Compact) + '\n';
}

std::optional<StartRequest> StartRequest::decoded(const QByteArray& message)
{
    const QJsonDocument document = QJsonDocument::fromJson(message);
    if (document.isArray())
        return StartRequest{.files = absolutePaths(document.array())};
    const QJsonObject object = document.object();
    const QJsonValue files = object.value(filesKey);
    const QJsonValue action = object.value(actionKey);
    const QJsonValue token = object.value(tokenKey);
    const auto isMissingOr = [](const QJsonValue& value, QJsonValue::Type type) {
        return value.isUndefined() || value.type() == type;
    };
    if (!document.isObject() || !isMissingOr(files, QJsonValue::Array) || !isMissingOr(action, QJsonValue::String)
        || !isMissingOr(token, QJsonValue::String))
        return std::nullopt;
    return StartRequest{
        .files = absolutePaths(files.toArray()), .action = action.toString(), .token = checkedToken(token.toString())};
}

QString StartRequest::takeToken()
{
    constexpr const char* name = "XDG_ACTIVATION_TOKEN";
    const QString token = checkedToken(qEnvironmentVariable(name));
    qunsetenv(name);
    // The toolkit takes this one out of the environment when it connects to the display.
    return token.isEmpty() ? checkedToken(qEnvironmentVariable("DESKTOP_STARTUP_ID")) : token;
}

} // namespace ambrelle
