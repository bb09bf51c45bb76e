// SPDX-License-Identifier: MIT

#include "foundation/UserDefaults.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <limits>
#include <sys/stat.h>

namespace ambrelle {
namespace {

using namespace Qt::StringLiterals;

class UserDefaultsTest : public ::testing::Test {
protected:
    QString path() const { return m_folder.filePath(u"sub/defaults.json"_s); }
    void writeFile(const QByteArray& bytes, const QString& suffix = {}) const
    {
        QDir().mkpath(QFileInfo(path()).path());
        QFile file(path() + suffix);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }
    QByteArray readFile(const QString& name) const
    {
        QFile file(name);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("absent");
    }
    QStringList names() const
    {
        return QDir(QFileInfo(path()).path())
            .entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::System | QDir::Hidden);
    }
    // The file's identity changes with every write, since each one replaces it.
    ino_t identity() const
    {
        struct stat status { };
        return ::stat(QFile::encodeName(path()).constData(), &status) == 0 ? status.st_ino : 0;
    }

    QTemporaryDir m_folder;
};

TEST_F(UserDefaultsTest, EveryTypeSurvivesARestart)
{
    const double tricky = 0.1 + 0.2;
    const QString text = u"\"caf\u00E9\"\n\U0001F3B5"_s;
    {
        UserDefaults defaults(path());
        EXPECT_TRUE(defaults.set(u"b"_s, false));
        EXPECT_TRUE(defaults.set(u"i"_s, std::numeric_limits<int>::min()));
        EXPECT_TRUE(defaults.set(u"d"_s, tricky));
        EXPECT_TRUE(defaults.set(u"tiny"_s, std::numeric_limits<double>::denorm_min()));
        EXPECT_TRUE(defaults.set(u"s"_s, text));
        EXPECT_TRUE(defaults.set(u"l"_s, QStringList{u""_s, text}));
        EXPECT_TRUE(defaults.set(u"o"_s, QJsonObject{{u"x"_s, 1.5}}));
    }
    const UserDefaults defaults(path());
    EXPECT_EQ(defaults.boolean(u"b"_s), false);
    EXPECT_EQ(defaults.integer(u"i"_s), std::numeric_limits<int>::min());
    EXPECT_EQ(defaults.real(u"d"_s), tricky);
    EXPECT_EQ(defaults.real(u"tiny"_s), std::numeric_limits<double>::denorm_min());
    EXPECT_EQ(defaults.string(u"s"_s), text);
    EXPECT_EQ(defaults.strings(u"l"_s), (QStringList{u""_s, text}));
    EXPECT_EQ(defaults.object(u"o"_s), (QJsonObject{{u"x"_s, 1.5}}));
}

TEST_F(UserDefaultsTest, ReadsNoTypeAsAnother)
{
    writeFile(R"({"true": true, "one": 1, "half": 2.5, "big": 3000000000, "whole": 10.0, "text": "25", "null": null,
        "mixed": ["a", 1], "object": {"a": 1}})");
    const std::pair<QString, QStringList> rows[] = {{u"true"_s, {u"boolean"_s}}, {u"one"_s, {u"integer"_s, u"real"_s}},
        {u"half"_s, {u"real"_s}}, {u"big"_s, {u"real"_s}}, {u"whole"_s, {u"integer"_s, u"real"_s}},
        {u"text"_s, {u"string"_s}}, {u"null"_s, {}}, {u"mixed"_s, {}}, {u"object"_s, {u"object"_s}}, {u"absent"_s, {}}};
    const UserDefaults defaults(path());
    for (const auto& [key, types] : rows) {
        SCOPED_TRACE(key.toStdString());
        EXPECT_EQ(defaults.boolean(key).has_value(), types.contains(u"boolean"_s));
        EXPECT_EQ(defaults.integer(key).has_value(), types.contains(u"integer"_s));
        EXPECT_EQ(defaults.real(key).has_value(), types.contains(u"real"_s));
        EXPECT_EQ(defaults.string(key).has_value(), types.contains(u"string"_s));
        EXPECT_EQ(defaults.strings(key).has_value(), types.contains(u"strings"_s));
        EXPECT_EQ(defaults.object(key).has_value(), types.contains(u"object"_s));
    }
    EXPECT_EQ(names(), QStringList{u"defaults.json"_s}) << "a good file was moved away";
}

TEST_F(UserDefaultsTest, KeysOfAnotherVersionSurviveAWrite)
{
    writeFile(R"({"later": {"list": [1, 2.5, "x", null]}, "locked": false})");
    UserDefaults(path()).set(u"locked"_s, true);
    EXPECT_EQ(QJsonDocument::fromJson(readFile(path())),
        QJsonDocument::fromJson(R"({"later": {"list": [1, 2.5, "x", null]}, "locked": true})"));
}

TEST_F(UserDefaultsTest, AnEqualValueDoesNotTouchTheDisk)
{
    const auto identityAfter = [this](const std::function<void(UserDefaults&)>& use) {
        UserDefaults defaults(path());
        use(defaults);
        return names().size() == 1 ? identity() : 0;
    };
    UserDefaults(path()).set(u"a"_s, 2.0);
    UserDefaults(path()).setData(u"blob"_s, R"([{"b": 1, "a": 2}])");
    EXPECT_EQ(identityAfter([](UserDefaults& defaults) {
        EXPECT_TRUE(defaults.set(u"a"_s, 2.0));
        EXPECT_TRUE(defaults.setData(u"blob"_s, R"([ {"a":2,"b":1} ])"));
        EXPECT_TRUE(defaults.remove(u"absent"_s));
    }),
        identity());
    EXPECT_EQ(identityAfter([](UserDefaults& defaults) { defaults.set(u"a"_s, 2.5); }), 0) << "nothing was written";
}

TEST_F(UserDefaultsTest, ATransactionIsStoredAsOne)
{
    UserDefaults(path()).set(u"a"_s, 1);
    UserDefaults defaults(path());
    {
        const UserDefaults::Transaction outer(defaults);
        EXPECT_TRUE(defaults.set(u"a"_s, 2));
        {
            const UserDefaults::Transaction inner(defaults);
            EXPECT_TRUE(defaults.set(u"b"_s, 3));
        }
        EXPECT_EQ(names(), QStringList{u"defaults.json"_s}) << "half of it was written";
        EXPECT_EQ(defaults.integer(u"a"_s), 2);
    }
    const UserDefaults other(path());
    EXPECT_EQ(other.integer(u"a"_s), 2);
    EXPECT_EQ(other.integer(u"b"_s), 3);
}

TEST_F(UserDefaultsTest, ADamagedFileIsKeptAndDoesNotReplaceAnEarlierOne)
{
    const QByteArray whole = R"({"layer": "floating", "interval": 2.5, "list": ["a", {"b": [1, 2]}], "n": null})";
    QList<QByteArray> damaged{"", "[1, 2]", "7", "\"text\"", "\xFF\xFE\x00", "{\"a\": 1} {\"b\": 2}",
        QByteArray(4096, '\0'), QByteArray(100000, '['), "{\"a\": \"\xC3\"}"};
    for (qsizetype length = 1; length < whole.size(); ++length)
        damaged.append(whole.left(length));
    ::testing::internal::CaptureStderr();
    for (const QByteArray& bytes : damaged) {
        writeFile(bytes);
        UserDefaults defaults(path());
        EXPECT_FALSE(defaults.string(u"layer"_s)) << bytes.toStdString();
        EXPECT_FALSE(QFile::exists(path())) << bytes.toStdString();
    }
    EXPECT_NE(::testing::internal::GetCapturedStderr().find("defaults.json.damaged-2"), std::string::npos);
    QList<QByteArray> kept;
    for (const QString& name : names())
        kept.append(readFile(QFileInfo(path()).path() + u'/' + name));
    std::ranges::sort(kept);
    std::ranges::sort(damaged);
    EXPECT_EQ(kept, damaged);
}

TEST_F(UserDefaultsTest, WhatIsNoFileOrTooLargeIsMovedAside)
{
    ::testing::internal::CaptureStderr();
    QDir().mkpath(path() + u"/inside"_s);
    EXPECT_TRUE(UserDefaults(path()).set(u"a"_s, 1));
    EXPECT_TRUE(QDir(path() + u".damaged/inside"_s).exists());

    QFile::remove(path());
    ASSERT_EQ(::mkfifo(QFile::encodeName(path()).constData(), 0600), 0);
    EXPECT_TRUE(UserDefaults(path()).set(u"a"_s, 1)) << "opening a pipe must not wait";

    QFile file(path());
    ASSERT_TRUE(file.resize(65ll * 1024 * 1024));
    EXPECT_TRUE(UserDefaults(path()).set(u"a"_s, 1));
    EXPECT_EQ(UserDefaults(path()).integer(u"a"_s), 1);
    EXPECT_NE(::testing::internal::GetCapturedStderr().find("too large"), std::string::npos);
    EXPECT_EQ(names().size(), 4);
}

TEST_F(UserDefaultsTest, NeighboursAreNeitherReadNorTouched)
{
    writeFile(R"({"a": 1})");
    writeFile(R"({"a": 2})", u".new"_s);
    EXPECT_EQ(UserDefaults(path()).integer(u"a"_s), 1);
    EXPECT_TRUE(UserDefaults(path()).set(u"a"_s, 3));
    EXPECT_EQ(UserDefaults(path()).integer(u"a"_s), 3);
    EXPECT_EQ(readFile(path() + u".new"_s), R"({"a": 2})");
    EXPECT_EQ(names(), (QStringList{u"defaults.json"_s, u"defaults.json.new"_s})) << "nothing is left beside";
}

TEST_F(UserDefaultsTest, ARefusedWriteIsToldOnceAndMadeUpForLater)
{
    QFile inTheWay(QFileInfo(path()).path());
    ASSERT_TRUE(inTheWay.open(QIODevice::WriteOnly));
    ::testing::internal::CaptureStderr();
    {
        UserDefaults defaults(path());
        int told = 0;
        defaults.setRefused([&] { ++told; });
        EXPECT_FALSE(defaults.set(u"a"_s, 2));
        EXPECT_FALSE(defaults.set(u"a"_s, 2)) << "the value is not stored";
        EXPECT_FALSE(defaults.storeAgain());
        EXPECT_EQ(told, 1);
        EXPECT_EQ(defaults.integer(u"a"_s), 2);
        ASSERT_TRUE(inTheWay.remove());
        EXPECT_TRUE(defaults.storeAgain());
        EXPECT_EQ(told, 1);
    }
    EXPECT_EQ(QString::fromStdString(::testing::internal::GetCapturedStderr()).count(u'\n'), 1);
    EXPECT_EQ(UserDefaults(path()).integer(u"a"_s), 2);
}

TEST_F(UserDefaultsTest, BlobsComeBackAndJsonStaysReadable)
{
    const QByteArray deep = QByteArray(1023, '[') + QByteArray(1023, ']');
    const QByteArray tooDeep = '[' + deep + ']';
    const QByteArray blobs[] = {R"([{"a":1.5,"b":[true,null]}])", R"({"x":"y"})", "[]", "{}", "plain text", "", "12",
        "[1],[2]", "{broken", "null", "1,2", deep, tooDeep};
    for (const QByteArray& blob : blobs) {
        ASSERT_TRUE(UserDefaults(path()).setData(u"k"_s, blob)) << blob.toStdString();
        EXPECT_EQ(UserDefaults(path()).data(u"k"_s), blob) << blob.toStdString();
    }
    {
        UserDefaults defaults(path());
        EXPECT_FALSE(defaults.setData(u"k"_s, "\xFF\xFE"));
        EXPECT_FALSE(defaults.set(u"nan"_s, std::nan("")));
        EXPECT_EQ(defaults.data(u"k"_s), tooDeep);
        defaults.setData(u"widgets"_s, R"([{"kind":"clock"}])");
    }
    EXPECT_TRUE(readFile(path()).contains("\"kind\": \"clock\"")) << "JSON was stored as text";
}

} // namespace
} // namespace ambrelle
