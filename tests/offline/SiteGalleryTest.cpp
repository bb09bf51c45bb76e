// SPDX-License-Identifier: MIT

#include "offline/SiteGallery.h"
#include "offline/ColourFamily.h"
#include "offline/HtmlTemplate.h"
#include "offline/SiteKinds.h"
#include "offline/SiteLosses.h"
#include "offline/SitePages.h"
#include "support/TestFolder.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QRegularExpression>

#include <gmock/gmock.h>

using namespace ambrelle;
using namespace Qt::StringLiterals;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

namespace {

QJsonObject json(const char* text)
{
    QJsonObject object = QJsonDocument::fromJson(text).object();
    EXPECT_FALSE(object.isEmpty()) << text;
    return object;
}

QString textOfFile(const QString& path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(path);
    return QString::fromUtf8(file.readAll());
}

QJsonObject picture(const QString& name)
{
    return {{u"file"_s, name + u".png"_s}, {u"width"_s, 2880}, {u"height"_s, 1800}, {u"webp"_s, name + u".webp"_s},
        {u"webpWidth"_s, 1440}, {u"webpHeight"_s, 900}};
}

QJsonObject theme(const QString& id, const QString& title, const QString& group, const QString& accent, bool isLight,
    const QStringList& kinds)
{
    QJsonArray layout;
    for (const QString& kind : kinds) {
        layout.append(QJsonObject{{u"kind"_s, kind}, {u"title"_s, kind.toUpper()},
            {u"file"_s, u"themes/%1/widgets/%2.png"_s.arg(id, kind)}, {u"x"_s, 144}, {u"y"_s, 90}, {u"width"_s, 170.4},
            {u"height"_s, 170.4}});
    }
    return {{u"id"_s, id}, {u"title"_s, title}, {u"tagline"_s, u"Fine & “quoted” <b>"_s}, {u"group"_s, group},
        {u"light"_s, isLight}, {u"partner"_s, QJsonValue()}, {u"accent"_s, accent},
        {u"colors"_s,
            QJsonObject{{u"ground"_s, u"#111111"_s}, {u"ink"_s, u"#EEEEEE"_s}, {u"soft"_s, u"#AAAAAA"_s},
                {u"wallpaper"_s, u"#222222"_s}, {u"scene"_s, QJsonArray{u"#333333"_s}}}},
        {u"kinds"_s, QJsonArray::fromStringList(kinds)}, {u"layout"_s, layout}, {u"sprites"_s, QJsonArray()},
        {u"preset"_s, picture(u"themes/%1/preset"_s.arg(id))},
        {u"wallpaper"_s, picture(u"themes/%1/wallpaper"_s.arg(id))}};
}

/// Three themes, of which the first and the third go together.
QJsonObject catalogue()
{
    QJsonObject paper = theme(u"paper"_s, u"Paper"_s, u"concept"_s, u"#CC2626"_s, true, {u"clock"_s, u"cpu"_s});
    paper["partner"_L1] = u"mono"_s;
    QJsonObject mono = theme(u"mono"_s, u"Mono"_s, u"minimal"_s, u"#F2F2F2"_s, false, {u"clock"_s});
    mono["partner"_L1] = u"paper"_s;
    QJsonObject blurb;
    for (const WidgetKind kind : allCases<WidgetKind>())
        blurb[rawValue(kind)] = u"It is for something."_s;
    const QJsonObject variant{{u"name"_s, u"Original"_s}, {u"color"_s, u"#CC2626"_s}, {u"file"_s, u"a.webp"_s}};
    const QJsonObject other{{u"name"_s, u"Cobalt"_s}, {u"color"_s, u"#1F59D9"_s}, {u"file"_s, u"b.webp"_s}};
    return {{u"exported"_s, u"2026-05-04T03:02:01Z"_s}, {u"version"_s, u"1.2.3"_s}, {u"build"_s, 7},
        {u"blurb"_s, blurb}, {u"heroThemes"_s, QJsonArray{u"classic"_s, u"paper"_s}},
        {u"canvas"_s, QJsonObject{{u"width"_s, 1440}, {u"height"_s, 900}, {u"scale"_s, 2}, {u"margin"_s, 20}}},
        {u"themes"_s,
            QJsonArray{paper,
                theme(u"classic"_s, u"Classic"_s, u"concept"_s, u"#1F59D9"_s, true, {u"clock"_s, u"memory"_s}), mono}},
        {u"accentDemo"_s,
            QJsonArray{QJsonObject{{u"theme"_s, u"paper"_s}, {u"kind"_s, u"clock"_s}, {u"color"_s, u"#CC2626"_s},
                {u"file"_s, u"a.webp"_s}, {u"variants"_s, QJsonArray{variant, other}}}}}};
}

class SiteGalleryTest : public testing::Test {
protected:
    QString write(const QJsonObject& themes = catalogue())
    {
        return SiteGallery::writeGallery(folder.path(), themes, material,
            [this](const QString& name, const auto& pack) { files.insert(name, pack()); });
    }
    std::string page(const QString& name) const { return files.value(name).toStdString(); }

    TestFolder folder;
    SiteGallery::Material material{.templates = QString::fromUtf8(AMBRELLE_SITE), .licence = u"One.\n\nTwo\nlines."_s};
    QMap<QString, QByteArray> files;
};

QStringList ids(const QJsonValue& entries)
{
    QStringList ids;
    for (const QJsonValue& entry : entries.toArray())
        ids.append(entry["id"_L1].toString());
    return ids;
}

} // namespace

TEST(SiteLossesTest, NothingThatIsMissingIsTold)
{
    const QJsonObject whole = catalogue();
    EXPECT_EQ(SiteLosses::without(whole, {}), whole);
    QJsonObject rest = SiteLosses::without(whole, {u"themes/paper/widgets/clock.png"_s});
    EXPECT_EQ(rest["themes"_L1][0]["kinds"_L1], QJsonArray{u"cpu"_s});
    EXPECT_EQ(rest["themes"_L1][0]["layout"_L1].toArray().size(), 1);
    EXPECT_EQ(rest["accentDemo"_L1], whole["accentDemo"_L1]);
    rest =
        SiteLosses::without(whole, {u"themes/classic/preset.webp"_s, u"themes/mono/widgets/clock.png"_s, u"b.webp"_s});
    EXPECT_EQ(ids(rest["themes"_L1]), QStringList{u"paper"_s});
    EXPECT_EQ(rest["heroThemes"_L1], QJsonArray{u"paper"_s});
    EXPECT_EQ(rest["accentDemo"_L1], QJsonArray()) << "there is nothing to choose";
    rest = SiteLosses::without(whole, {u"themes/paper/wallpaper.png"_s, u"themes/classic/preset.png"_s});
    EXPECT_EQ(ids(rest["themes"_L1]), QStringList{u"mono"_s});
    EXPECT_EQ(rest["heroThemes"_L1], QJsonArray{u"mono"_s});
    EXPECT_EQ(rest["accentDemo"_L1], QJsonArray());
}

TEST(HtmlTemplateTest, FillsGapsSectionsAndParts)
{
    const QJsonObject values = json(R"({"name": "<A & \"B\">", "n": 3.5, "yes": true, "no": false, "empty": [],
        "one": {"name": "inner"}, "list": [{"name": "x"}, {"other": "y"}]})");
    const QHash<QString, QString> parts{{u"part"_s, u"[{{name}}{{#yes}}!{{/yes}}]"_s}};
    const struct {
        QString page;
        QString text;
    } cases[] = {
        {u"{{name}} {{n}}"_s, u"&lt;A &amp; &quot;B&quot;&gt; 3.5"_s},
        {u"{{#list}}{{name}};{{/list}}"_s, u"x;&lt;A &amp; &quot;B&quot;&gt;;"_s},
        {u"{{#list?}}some{{/list?}}{{^list?}}none{{/list?}}"_s, u"some"_s},
        {u"{{#empty}}a{{/empty}}{{^empty}}none{{/empty}}{{#empty?}}b{{/empty?}}"_s, u"none"_s},
        {u"{{#one}}{{name}}{{/one}}{{#no}}{{what}}{{/no}}{{#missing}}{{#list}}c{{/list}}{{/missing}}"_s, u"inner"_s},
        {u"{{#list}}{{>part}}{{/list}}."_s, u"[x!][&lt;A &amp; &quot;B&quot;&gt;!]."_s},
    };
    for (const auto& each : cases) {
        const HtmlTemplate::Filled filled = HtmlTemplate::fill(each.page, values, parts);
        EXPECT_EQ(filled.text, each.text) << qPrintable(each.page);
        EXPECT_EQ(filled.fault, QString()) << qPrintable(each.page);
    }
}

TEST(HtmlTemplateTest, TellsWhatIsWrongWithATemplate)
{
    const struct {
        QString page;
        const char* fault;
    } cases[] = {{u"a {{what}}"_s, "what"}, {u"{{#a}}b"_s, "“a” has no end"}, {u"b{{/a}}"_s, "“a” ends"},
        {u"{{#a}}{{/b}}{{/a}}"_s, "“b” ends"}, {u"{{name"_s, "not closed"}, {u"{{>none}}"_s, "“none”"}};
    for (const auto& each : cases)
        EXPECT_THAT(HtmlTemplate::fill(each.page, {}).fault.toStdString(), HasSubstr(each.fault));
}

TEST(ColourFamilyTest, NamesColoursAsPeopleDo)
{
    const struct {
        const char* colour;
        const char* name;
    } cases[] = {{"#CC2626", "red"}, {"#F25A1E", "orange"}, {"#FFD21A", "yellow"}, {"#5AFF73", "green"},
        {"#19E3FF", "teal"}, {"#1F59D9", "blue"}, {"#B88FFF", "violet"}, {"#FF4DA7", "pink"}, {"#FF2050", "red"},
        {"#EBF0F5", "grey"}, {"#808284", "grey"}, {"#000000", "grey"}, {"#FFFFFF", "grey"}};
    for (const auto& each : cases)
        EXPECT_EQ(colourFamily(QColor(each.colour)), QLatin1StringView(each.name)) << each.colour;
}

TEST(SitePagesTest, OffersWhatThereIsToFilterBy)
{
    const QJsonObject index = SitePages(catalogue()).index();
    EXPECT_EQ(ids(index["groups"_L1]), (QStringList{u"concept"_s, u"minimal"_s}));
    EXPECT_EQ(ids(index["groups"_L1][0]["themes"_L1]), (QStringList{u"paper"_s, u"classic"_s}));
    EXPECT_EQ(ids(index["tones"_L1]), (QStringList{u"light"_s, u"dark"_s}));
    EXPECT_EQ(ids(index["colours"_L1]), (QStringList{u"red"_s, u"blue"_s, u"grey"_s}));
    EXPECT_EQ(ids(index["heroes"_L1]), (QStringList{u"classic"_s, u"paper"_s}));
    EXPECT_EQ(index["demo"_L1]["id"_L1], u"paper"_s) << "the accent of the other cannot be chosen";
}

TEST(SiteKindsTest, ShowsKindsFromManyThemes)
{
    const SiteKinds site(catalogue());
    QStringList shown;
    for (const SiteKinds::Picture& picture : site.pictures())
        shown.append(picture.file);
    EXPECT_EQ(shown,
        (QStringList{u"themes/paper/widgets/clock.png"_s, u"themes/paper/widgets/cpu.png"_s,
            u"themes/classic/widgets/memory.png"_s}));
    const QJsonArray kinds = site.table();
    EXPECT_EQ(kinds.size(), 20);
    EXPECT_EQ(ids(kinds[0]["few"_L1]).size(), 3);
}

TEST(SitePagesTest, PutsWidgetsWhereTheyAreOnThePicture)
{
    const QJsonObject page = SitePages(catalogue()).theme(u"paper"_s);
    const QJsonValue widget = page["widgets"_L1][0];
    EXPECT_EQ(widget["left"_L1], 10);
    EXPECT_EQ(widget["top"_L1], 10);
    EXPECT_EQ(widget["across"_L1], 11.83);
    EXPECT_EQ(widget["pictureWidth"_L1], 210) << "with the margin";
    EXPECT_EQ(page["partner"_L1]["id"_L1], u"mono"_s);
    EXPECT_EQ(page["next"_L1]["id"_L1], u"classic"_s);
    EXPECT_TRUE(page["previous"_L1].isUndefined());
}

TEST_F(SiteGalleryTest, LeadsToOtherThemesWhereThereAreAny)
{
    QJsonObject alone = catalogue();
    EXPECT_EQ(write(alone), QString());
    EXPECT_THAT(page(u"themes/paper.html"_s), HasSubstr("Other themes"));
    alone = SiteLosses::without(alone, {u"themes/classic/preset.png"_s, u"themes/mono/preset.png"_s});
    EXPECT_EQ(write(alone), QString());
    EXPECT_THAT(page(u"themes/paper.html"_s), Not(HasSubstr("Other themes")));
}

TEST_F(SiteGalleryTest, WritesAPagePerThemeAndEscapesWhatItShows)
{
    EXPECT_EQ(write(), QString());
    const QStringList names = files.keys();
    for (const QString& name : {u"index.html"_s, u"style.css"_s, u"gallery.js"_s, u"icon.svg"_s, u"themes/paper.html"_s,
             u"themes/classic.html"_s, u"themes/mono.html"_s, u"themes/mono/preset-480.webp"_s,
             u"themes/mono/preset-960.webp"_s, u"assets/img/kinds/memory.webp"_s})
        EXPECT_TRUE(names.contains(name)) << qPrintable(name);
    for (const QString& name : {u"index.html"_s, u"themes/paper.html"_s}) {
        EXPECT_THAT(page(name), HasSubstr("Fine &amp; “quoted” &lt;b&gt;"));
        EXPECT_THAT(page(name), Not(HasSubstr("{{")));
        EXPECT_EQ(page(name).rfind("<!DOCTYPE html>", 0), 0U);
    }
    EXPECT_THAT(page(u"index.html"_s), HasSubstr("<p>Two lines.</p>"));
    EXPECT_THAT(page(u"index.html"_s), HasSubstr("JetBrains Mono"));
    EXPECT_TRUE(files[u"themes/mono/preset-480.webp"_s].isEmpty()) << "there is no picture to make it from";
}

TEST_F(SiteGalleryTest, OffersTheProgramOnlyAtAnAddressOfTheWeb)
{
    const struct {
        const char* address;
        bool isOffered;
    } cases[] = {{"", false}, {"javascript:alert(1)", false}, {"file:///etc/passwd", false}, {"ambrelle.tar", false},
        {"https://example.org/a b", false}, {"https://example.org/get?a=1&b=2", true}, {"http://example.org/", true}};
    for (const auto& each : cases) {
        files.clear();
        material.download = QString::fromLatin1(each.address);
        EXPECT_EQ(write(), QString());
        for (const QString& name : {u"index.html"_s, u"themes/mono.html"_s}) {
            EXPECT_EQ(files[name].contains(">Download"), each.isOffered) << each.address;
            EXPECT_EQ(files[name].contains(material.download.toHtmlEscaped().toUtf8() + '"'),
                each.isOffered || material.download.isEmpty());
        }
    }
}

TEST_F(SiteGalleryTest, RefusesWithoutWholeTemplates)
{
    const TestFolder broken;
    material.templates = broken.path();
    EXPECT_THAT(write().toStdString(), HasSubstr("“index.html”"));
    for (const char* name : {"theme.html", "style.css", "gallery.js", "icon.svg", "index.html"}) {
        QFile file(broken.path() + u'/' + QString::fromLatin1(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("<!-- a licence -->\n{{#themes}}");
    }
    EXPECT_THAT(write().toStdString(), HasSubstr("“index.html” of the site is damaged"));
    material.templates.clear();
    EXPECT_FALSE(write().isEmpty());
}

TEST_F(SiteGalleryTest, CreditsEveryFont)
{
    EXPECT_EQ(write(), QString());
    const QString table = textOfFile(material.templates + u"/fonts.tsv"_s);
    for (const QString& line : textOfFile(QString::fromUtf8(AMBRELLE_ASSETS) + u"/fonts.txt"_s).split(u'\n')) {
        const QString package = line.section(u' ', 0, 0);
        if (package.isEmpty() || package == "#"_L1)
            continue;
        const QRegularExpression row(
            u"^%1\\t([^\\t\\n]+)\\t[^\\t\\n]+\\t[^\\t\\n]+$"_s.arg(package), QRegularExpression::MultilineOption);
        const QRegularExpressionMatch found = row.match(table);
        ASSERT_TRUE(found.hasMatch()) << qPrintable(package);
        EXPECT_THAT(page(u"index.html"_s), HasSubstr("<b>" + found.captured(1).toStdString() + "</b>"));
    }
}
