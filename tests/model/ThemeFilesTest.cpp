// SPDX-License-Identifier: MIT

#include "model/ThemeFiles.h"
#include "foundation/UserDefaults.h"
#include "model/Composition.h"
#include "model/ThemeAccent.h"
#include "model/ThemeStore.h"
#include "support/FullDisk.h"
#include "support/TestFolder.h"

#include <QJsonDocument>
#include <QSet>

#include <ctime>
#include <random>

#include <sys/stat.h>

namespace ambrelle {
namespace {

using namespace Qt::StringLiterals;

const QDateTime someDay(QDate(2026, 11, 22), QTime(9, 0), Qt::UTC);

/// A theme with every field in use.
ThemeEnvelope velvetEnvelope()
{
    ThemeEnvelope file{{QUuid::createUuid(), u"Evening “Desk”"_s, someDay.addDays(-8), Skin::velvet, {}},
        {{u"velvet"_s, u"#AA0011"_s}, {u"paper"_s, u"#00FF00"_s}}};
    for (const PlacedWidget& widget : Composition::frames(Skin::velvet, QSizeF(1440, 900)))
        file.theme.widgets.append({widget.config, widget.frame.x() / 1440, widget.frame.y() / 900});
    WidgetConfig& config = file.theme.widgets[0].config;
    config.skin = Skin::paper;
    config.timeZone = u"Asia/Tokyo"_s;
    config.city = u"T\u014Dky\u014D"_s;
    config.photoFolder = u"/pictures/a \"b\""_s;
    config.countdownTitle = u"Trip"_s;
    config.countdownDate = someDay.addMSecs(1);
    config.countdownStart = someDay.addYears(-80);
    config.display = u"DEL-1234"_s;
    config.displayOffset = QPointF(12.25, -3);
    return file;
}

TEST(ThemeEnvelopeTest, IsIndentedSortedAndReadBack)
{
    ThemeEnvelope file = velvetEnvelope();
    const QByteArray json = file.encode();
    EXPECT_EQ(ThemeEnvelope::decode(json), file);
    QByteArrayList keys;
    for (const QByteArray& line : json.split('\n')) {
        if (line.startsWith("    \""))
            keys << line.trimmed().split('"')[1];
    }
    EXPECT_EQ(keys, (QByteArrayList{"accents", "format", "theme", "version"}));
    file.accents = {{u"neon"_s, u"#123456"_s}, {u"velvet"_s, u"#123456"_s}};
    EXPECT_EQ(ThemeEnvelope::decode(file.encode())->accents.keys(), QStringList{u"velvet"_s});
    file.accents.remove(u"velvet"_s);
    EXPECT_FALSE(file.encode().contains("accents"));
}

TEST(ThemeEnvelopeTest, TakesAnyVersionAndNothingThatIsNoTheme)
{
    const QJsonObject good = QJsonDocument::fromJson(velvetEnvelope().encode()).object();
    struct Row {
        QString key;
        QJsonValue value;
        bool isTaken;
    };
    const QJsonValue missing;
    const Row rows[] = {{u"version"_s, 0, true}, {u"version"_s, 2, true}, {u"version"_s, -3e15, true},
        {u"version"_s, 1.5, false}, {u"version"_s, u"1"_s, false}, {u"version"_s, 1e300, false},
        {u"version"_s, missing, false}, {u"format"_s, u"Ambrelle theme"_s, false},
        {u"format"_s, u"Ambrelle Theme "_s, false}, {u"format"_s, missing, false}, {u"theme"_s, missing, false},
        {u"theme"_s, QJsonArray(), false}, {u"theme"_s, QJsonObject(), false}, {u"accents"_s, missing, true},
        {u"accents"_s, QJsonArray(), false}, {u"accents"_s, QJsonObject{{u"velvet"_s, 7}}, false},
        {u"accents"_s, QJsonObject{{u"vapour"_s, u"#112233"_s}, {u"velvet"_s, u"red"_s}}, true},
        {u"unheard"_s, QJsonObject(), true}};
    for (const Row& row : rows) {
        QJsonObject json = good;
        json.insert(row.key, row.value);
        const QByteArray bytes = QJsonDocument(json).toJson();
        const auto file = ThemeEnvelope::decode(bytes);
        EXPECT_EQ(file.has_value(), row.isTaken) << bytes.left(200).toStdString();
        EXPECT_TRUE(!file || row.key != u"accents" || file->accents.isEmpty());
    }
    for (const char* bytes : {"", "[]", "null", "\xFF\xFE", "{\"format\": \"Ambrelle Theme\"", "{}"})
        EXPECT_FALSE(ThemeEnvelope::decode(bytes)) << bytes;
}

TEST(ThemeEnvelopeTest, TextsOfOthersAreCleaned)
{
    ThemeEnvelope file = velvetEnvelope();
    file.theme.name = u" a\n\u202E"_s + QString(80, u'b');
    file.theme.widgets[0].config.city = u"Rome\u0007"_s;
    file.theme.widgets[0].config.countdownTitle = QString(1000, u'c');
    const auto again = ThemeEnvelope::decode(file.encode());
    ASSERT_TRUE(again);
    EXPECT_EQ(again->theme.name, u"a "_s + QString(58, u'b'));
    EXPECT_EQ(again->theme.widgets[0].config.city, u"Rome"_s);
    EXPECT_EQ(again->theme.widgets[0].config.countdownTitle->size(), 500);
}

/// Somewhere in the file something else: a bit, a token of another place, or a piece that is gone, twice or elsewhere.
QByteArray mutated(QByteArray bytes, std::mt19937& random)
{
    static const QByteArray tokens[] = {"null", "-1", "1e308", "1e999", "0.1", "9007199254740993", "\"\"", "[]", "{}",
        "\"\\ud800\"", "\\u0000", "\\udc00", "\"velvet\"", "\xED\xA0\x80", "\xF4\x90\x80\x80", ",", "[[[[[[[[", "true",
        "\"id\":\"A0B1C2D3-0000-4000-8000-00000000000F\","};
    const auto below = [&](qsizetype end) { return static_cast<qsizetype>(random() % static_cast<quint64>(end)); };
    for (qsizetype changes = below(3); changes >= 0; --changes) {
        const qsizetype at = below(bytes.size());
        const qsizetype length = below(std::min<qsizetype>(bytes.size() - at, 40) + 1);
        switch (below(6)) {
        case 0: bytes[at] = static_cast<char>(bytes[at] ^ (1 << below(8))); break;
        case 1: bytes.insert(at, tokens[below(std::size(tokens))]); break;
        case 2: bytes.replace(at, length, tokens[below(std::size(tokens))]); break;
        case 3: bytes.insert(below(bytes.size()), bytes.mid(at, length)); break;
        case 4: { // the next value, as a whole
            const qsizetype colon = bytes.indexOf(':', at);
            const qsizetype end = bytes.indexOf('\n', colon);
            if (colon >= 0 && end >= 0)
                bytes.replace(colon + 1, end - colon - 1, tokens[below(std::size(tokens))] + ',');
            break;
        }
        default: bytes.remove(at, length);
        }
    }
    return bytes.isEmpty() ? "{" : bytes;
}

// More of them: AMBRELLE_MUTATIONS=100000.
TEST(ThemeEnvelopeTest, WhatIsTakenOfADamagedFileIsAWholeTheme)
{
    const QByteArray whole = velvetEnvelope().encode();
    const int count = qEnvironmentVariable("AMBRELLE_MUTATIONS", u"3000"_s).toInt();
    int taken = 0;
    for (int seed = 0; seed < count; ++seed) {
        std::mt19937 random(static_cast<unsigned>(seed));
        const QByteArray damaged = mutated(whole, random);
        const auto file = ThemeEnvelope::decode(damaged);
        if (!file)
            continue;
        ++taken;
        const auto again = ThemeEnvelope::decode(file->encode());
        ASSERT_TRUE(again) << seed;
        ASSERT_EQ(again->theme, file->theme) << seed << damaged.toStdString();
        ASSERT_EQ(again->encode(), file->encode()) << seed;
    }
    EXPECT_GT(taken, count / 50);
    EXPECT_LT(taken, count / 2);
}

struct ThemeFilesTest : testing::Test {
    UserDefaults defaults = UserDefaults::temporary();
    ThemeStore store{defaults};
    ThemeAccent accents{defaults};
    ThemeFiles files{store, accents};
    TestFolder folder;
};

TEST_F(ThemeFilesTest, AnImportIsAThemeOfItsOwnAndKeepsOtherAccents)
{
    accents.apply({{u"velvet"_s, u"#111111"_s}, {u"neon"_s, u"#222222"_s}});
    const ThemeEnvelope file = velvetEnvelope();
    const QString path = folder.write(u"a.ambrelle"_s, file.encode());
    const auto first = files.importFile(path, someDay);
    const auto second = files.importFile(path, someDay);
    ASSERT_TRUE(first && second);
    EXPECT_EQ(store.themes(), (QList<SavedTheme>{*second, *first}));
    EXPECT_EQ(accents.hexOverrides(),
        (QMap<QString, QString>{{u"neon"_s, u"#222222"_s}, {u"paper"_s, u"#00FF00"_s}, {u"velvet"_s, u"#AA0011"_s}}));
    QSet<QUuid> ids{file.theme.id, first->id, second->id};
    for (const SavedTheme& theme : {file.theme, *first, *second}) {
        for (const SavedWidget& widget : theme.widgets)
            ids.insert(widget.config.id);
    }
    EXPECT_EQ(ids.size(), 3 + 3 * file.theme.widgets.size());
    EXPECT_EQ(first->created, someDay);
    const WidgetConfig& config = first->widgets[0].config;
    EXPECT_FALSE(config.display || config.displayOffset) << "of another machine";
    WidgetConfig expected = file.theme.widgets[0].config;
    expected.id = config.id;
    expected.display.reset();
    expected.displayOffset.reset();
    EXPECT_EQ(config, expected);
}

TEST_F(ThemeFilesTest, WhateverElseStandsAtThePathIsRefusedAtOnce)
{
    const QByteArray good = velvetEnvelope().encode();
    const QString pipe = folder.filePath(u"pipe.ambrelle"_s); // nobody ever writes into it
    ASSERT_EQ(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    const QString vast = folder.write(u"vast.ambrelle"_s, good);
    ASSERT_TRUE(QFile::resize(vast, 1'000'000'000));
    const QByteArray head = R"({"format": "Ambrelle Theme", "version": 1, "theme": )";
    const QByteArray theme =
        head + R"({"id": "A0B1C2D3-0000-4000-8000-00000000000F", "created": 0, "name": "", "widgets":)";
    const QByteArray widget = R"({"config":{"kind":"sky","origin":[0,0]},"fx":0,"fy":0})";
    const qsizetype most = 8 * 1024 * 1024 - 200;
    const auto filled = [most](const QByteArray& piece) { return piece.repeated(most / piece.size()); };
    const QString paths[] = {pipe, vast, folder.path(), u"/dev/zero"_s, folder.filePath(u"missing"_s),
        folder.write(u"long"_s, good + QByteArray(8 * 1024 * 1024, ' ')), folder.write(u"deep"_s, theme + filled("[")),
        folder.write(u"deeper"_s, head + filled("{\"a\":")),
        folder.write(u"equal"_s, head + '{' + filled("\"a\":1,") + "\"a\":1}}"),
        folder.write(u"empty"_s, theme + '[' + filled("{},") + "{}]}}"),
        folder.write(u"number"_s, head + filled("9") + '}'),
        folder.write(u"crowd"_s, theme + '[' + filled(widget + ',') + widget + "]}}")};
    for (const QString& path : paths) {
        const std::clock_t begin = std::clock();
        EXPECT_FALSE(files.importFile(path, someDay)) << path.toStdString();
        EXPECT_LT(static_cast<double>(std::clock() - begin) / CLOCKS_PER_SEC, 1) << path.toStdString();
    }
    EXPECT_EQ(store.themes().size(), 0);
    EXPECT_FALSE(defaults.data(u"savedThemes.v1"_s) || defaults.object(u"themeAccents"_s));
    const QByteArray thousand = theme + '[' + (widget + ',').repeated(999) + widget + "]}}";
    EXPECT_EQ(files.importFile(folder.write(u"thousand"_s, thousand), someDay)->widgets.size(), 1000);
}

TEST_F(ThemeFilesTest, AThemeWithoutANameHasThatOfItsFile)
{
    ThemeEnvelope file = velvetEnvelope();
    file.theme.name = u"\u200B "_s;
    for (const auto& [name, expected] : {std::pair(u"Work.v2.ambrelle"_s, u"Work.v2"_s), {u".ambrelle"_s, u"Velvet"_s}})
        EXPECT_EQ(files.importFile(folder.write(name, file.encode()), someDay)->name, expected);
}

TEST_F(ThemeFilesTest, ExportsAreWholeOrSayWhyNot)
{
    const ThemeEnvelope file = velvetEnvelope();
    accents.apply(file.accents);
    const QString path = folder.filePath(u"out.ambrelle"_s);
    const QString link = folder.filePath(u"link.ambrelle"_s);
    EXPECT_EQ(files.exportTo(path, file.theme), QString());
    ASSERT_TRUE(QFile::link(path, link));
    folder.write(u"out.ambrelle.new"_s, "somebody else's");
    EXPECT_EQ(files.exportTo(path, file.theme), QString());
    {
        const test::FullDisk full;
        EXPECT_EQ(files.exportTo(path, file.theme), u"“%1” cannot be written: File too large."_s.arg(path));
    }
    EXPECT_EQ(
        files.exportTo(folder.path(), file.theme), u"“%1” cannot be written: Is a directory."_s.arg(folder.path()));
    EXPECT_EQ(ThemeFiles::read(path), file);
    EXPECT_EQ(files.exportTo(link, {.id = file.theme.id, .name = u"new"_s, .created = someDay}), QString());
    EXPECT_EQ(ThemeFiles::read(path)->theme.name, u"new"_s);
    EXPECT_TRUE(QFileInfo(link).isSymLink());
    EXPECT_EQ(folder.read(u"out.ambrelle.new"_s), "somebody else's");
    EXPECT_EQ(files.exportTo(folder.filePath(QString(255, u'x')), file.theme), QString()) << "the longest name";
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden).size(), 4) << "nothing is left beside";
}

TEST(ThemeFileNamesTest, AreTakenByAnyFileSystem)
{
    const std::pair<QString, QString> names[] = {{u"Evening Desk"_s, u"Evening Desk.ambrelle"_s},
        {u"a/b\\c:d*e?f\"g<h>i|j"_s, u"a-b-c-d-e-f-g-h-i-j.ambrelle"_s}, {u"../x"_s, u"-.-x.ambrelle"_s},
        {u"a\nb\u0000c\u202E"_s, u"a bc.ambrelle"_s}, {u"Z\u00FCrich"_s, u"Z\u00FCrich.ambrelle"_s},
        {QString(), u"Glass.ambrelle"_s}};
    for (const auto& [name, file] : names)
        EXPECT_EQ(ThemeFiles::fileName({.id = {}, .name = name}), file);
}

} // namespace
} // namespace ambrelle
