// SPDX-License-Identifier: MIT

#include "offline/SiteGallery.h"

#include "offline/HtmlTemplate.h"
#include "offline/SiteKinds.h"
#include "offline/SitePages.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QRegularExpression>
#include <QUrl>

namespace ambrelle::SiteGallery {

using namespace Qt::StringLiterals;

namespace {

constexpr int desktopQuality = 80; // percent
constexpr int kindQuality = 88;
constexpr double kindScale = 1.5; // pixels per point of the pictures of kinds

std::optional<QString> contents(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    return QString::fromUtf8(file.readAll());
}

/// The templates by their names, without the line about their licence.
QHash<QString, QString> templatesIn(const QString& folder)
{
    QHash<QString, QString> templates;
    for (const QFileInfo& file : QDir(folder).entryInfoList({u"*.html"_s}, QDir::Files))
        templates.insert(file.baseName(), contents(file.filePath()).value_or(QString()).section(u'\n', 1));
    return templates;
}

/// Who made the fonts: lines of package, family, makers and licence, with tabs between them.
QJsonArray fontCredits(const QString& table)
{
    QJsonArray credits;
    for (const QString& line : table.split(u'\n')) {
        const QStringList cells = line.split(u'\t');
        if (cells.size() == 4)
            credits.append(QJsonObject{{u"family"_s, cells[1]}, {u"author"_s, cells[2]}, {u"terms"_s, cells[3]}});
    }
    return credits;
}

QJsonArray paragraphs(const QString& text)
{
    QJsonArray paragraphs;
    for (const QString& paragraph : text.split(u"\n\n"_s, Qt::SkipEmptyParts))
        paragraphs.append(QJsonObject{{u"text"_s, paragraph.simplified()}});
    return paragraphs;
}

/// What all pages say alike.
QJsonObject common(const QJsonObject& themes, const Material& material)
{
    const QString exported = themes["exported"_L1].toString();
    QJsonObject values{{u"version"_s, themes["version"_L1]}, {u"exported"_s, exported}, {u"day"_s, exported.left(10)},
        {u"licence"_s, paragraphs(material.licence)},
        {u"fonts"_s, fontCredits(contents(material.templates + u"/fonts.tsv"_s).value_or(QString()))}};
    const QUrl download(material.download, QUrl::StrictMode);
    if (download.isValid() && (download.scheme() == "https"_L1 || download.scheme() == "http"_L1))
        values["download"_L1] = download.toString(QUrl::FullyEncoded);
    return values;
}

/// The picture of a file in so many pixels of width; null where it cannot be read.
QImage narrowed(const QString& path, int width)
{
    const QImage picture(path);
    return picture.isNull() ? picture : picture.scaledToWidth(width, Qt::SmoothTransformation);
}

class Gallery {
public:
    Gallery(const QString& folder, const QJsonObject& themes, const Material& material, const AddFile& add)
        : m_folder(folder)
        , m_pages(themes)
        , m_kinds(themes)
        , m_common(common(themes, material))
        , m_templates(templatesIn(material.templates))
        , m_add(add)
    {
    }

    QString addPages();
    void addPictures();

private:
    QString addPage(const QString& name, const QString& page, QJsonObject values);
    void addNarrowed(const QString& name, const QString& from, int width, int quality);

    QString m_folder;
    SitePages m_pages;
    SiteKinds m_kinds;
    QJsonObject m_common;
    QHash<QString, QString> m_templates;
    const AddFile& m_add;
};

QString Gallery::addPage(const QString& name, const QString& page, QJsonObject values)
{
    for (auto each = m_common.begin(); each != m_common.end(); ++each)
        values.insert(each.key(), each.value());
    const HtmlTemplate::Filled filled = HtmlTemplate::fill(m_templates.value(page), values, m_templates);
    if (!filled.fault.isEmpty())
        return u"The template “%1.html” of the site is damaged: %2."_s.arg(page, filled.fault);
    static const QRegularExpression emptyLines(u"\\n(\\s*\\n)+"_s);
    QByteArray bytes = QString(filled.text).replace(emptyLines, u"\n"_s).toUtf8();
    m_add(name, [bytes] { return bytes; });
    return {};
}

QString Gallery::addPages()
{
    QString fault = addPage(u"index.html"_s, u"index"_s, m_pages.index());
    for (const QString& theme : m_pages.themes()) {
        if (fault.isEmpty())
            fault = addPage(u"themes/%1.html"_s.arg(theme), u"theme"_s, m_pages.theme(theme));
    }
    return fault;
}

void Gallery::addNarrowed(const QString& name, const QString& from, int width, int quality)
{
    const QString path = QDir(m_folder).filePath(from);
    m_add(name, [path, width, quality] { return BatchOutput::webp(narrowed(path, width), quality); });
}

void Gallery::addPictures()
{
    for (const QString& theme : m_pages.themes()) {
        const QString desktop = m_pages.desktop(theme);
        for (const int width : {SitePages::smallWidth, SitePages::mediumWidth})
            addNarrowed(SitePages::desktopFile(theme, width), desktop, width, desktopQuality);
    }
    for (const SiteKinds::Picture& picture : m_kinds.pictures()) {
        const int width = static_cast<int>(picture.size.width() * kindScale);
        addNarrowed(SiteKinds::file(picture.kind), picture.file, width, kindQuality);
    }
}

} // namespace

QString writeGallery(const QString& folder, const QJsonObject& themes, const Material& material, const AddFile& add)
{
    for (const QString& name : {u"index.html"_s, u"theme.html"_s, u"style.css"_s, u"gallery.js"_s, u"icon.svg"_s}) {
        const QString path = QDir(material.templates).filePath(name);
        const std::optional<QString> text = contents(path);
        if (material.templates.isEmpty() || !text)
            return u"“%1”, of which the site is made, cannot be read."_s.arg(name);
        if (!name.endsWith(".html"_L1))
            add(name, [text] { return text->toUtf8(); });
    }
    Gallery gallery(folder, themes, material, add);
    QString fault = gallery.addPages();
    if (fault.isEmpty())
        gallery.addPictures();
    return fault;
}

} // namespace ambrelle::SiteGallery
