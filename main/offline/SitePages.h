// SPDX-License-Identifier: MIT

#pragma once

#include <QJsonObject>
#include <QList>
#include <QString>

namespace ambrelle {

/// What the pages of the catalogue site say, made from the catalogue's data (SiteExporter) as templates want it.
class SitePages {
public:
    /// Widths of the smaller pictures of a desktop, pixels. Their height goes along.
    static constexpr int smallWidth = 480;
    static constexpr int mediumWidth = 960;

    explicit SitePages(const QJsonObject& catalogue);

    QJsonObject index() const;
    QList<QString> themes() const; ///< their ids
    QJsonObject theme(const QString& id) const;
    QString desktop(const QString& id) const; ///< the file of the largest picture that pages show

    /// The picture of a theme's desktop in so many pixels of width.
    static QString desktopFile(const QString& theme, int width);

private:
    QJsonObject themeOf(const QString& id) const;
    QJsonObject card(const QJsonObject& theme) const;
    QJsonValue demo(const QJsonObject& theme) const; ///< null where the accent is fixed
    QJsonArray heroes() const;
    QJsonArray groups() const;
    QJsonArray tones() const;
    QJsonArray colours() const;
    QJsonArray widgets(const QJsonObject& theme) const;
    QJsonArray palette(const QJsonObject& theme) const;

    QJsonObject m_catalogue;
    QList<QJsonObject> m_themes;
};

} // namespace ambrelle
