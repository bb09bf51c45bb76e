// SPDX-License-Identifier: MIT

#include "platform/linux/sway/SwaySocket.h"
#include "platform/linux/sway/FakeSway.h"

namespace ambrelle::test {
namespace {

using Question = SwaySocket::Question;
using namespace std::chrono_literals;

TEST(SwayMessagesTest, CutsWhateverPiecesComeIntoMessages)
{
    const QList<SwayMessage> sent{{4, "{\"nodes\":[]}"}, {0x8000'0003, ""}, {1, QByteArray(300'000, 'x')}};
    QByteArray bytes;
    for (const SwayMessage& message : sent)
        bytes += SwayMessages::packed(message);
    for (const qsizetype piece : {qsizetype{1}, qsizetype{7}, qsizetype{5000}, bytes.size()}) {
        SwayMessages messages;
        QList<SwayMessage> read;
        for (qsizetype at = 0; at < bytes.size(); at += piece) {
            messages.append(bytes.mid(at, piece));
            while (const auto message = messages.next())
                read.append(*message);
        }
        EXPECT_EQ(read, sent) << "in pieces of " << piece;
        EXPECT_FALSE(messages.isBroken());
    }
}

TEST(SwayMessagesTest, GivesUpAtWhatIsNoHeader)
{
    const QByteArray good = SwayMessages::packed({4, "{}"});
    QByteArray endless = good;
    endless.replace(6, 4, "\xff\xff\xff\x7f");
    struct Case {
        const char* what;
        QByteArray bytes;
        bool isBroken;
    };
    for (const Case& each : {Case{"half a header", good.first(9), false}, Case{"a header alone", good.first(14), false},
             Case{"another magic", "I3-IPC" + good.mid(6), true}, Case{"a length without end", endless, true},
             Case{"text", "HTTP/1.1 400 Bad Request\r\n", true}}) {
        SwayMessages messages;
        messages.append(each.bytes);
        EXPECT_FALSE(messages.next()) << each.what;
        EXPECT_EQ(messages.isBroken(), each.isBroken) << each.what;
        messages.append(good);
        EXPECT_TRUE(!each.isBroken || !messages.next()) << each.what;
    }
}

struct SwaySocketTest : testing::Test {
    FakeSway sway;
    SwaySocket socket{sway.path(), {u"window"_s, u"unheard"_s}, 20ms};
    int opened = 0;
    int ended = 0;
    QStringList heard;
    QByteArrayList answers;

    SwaySocketTest()
    {
        QObject::connect(&socket, &SwaySocket::opened, &socket, [this] { ++opened; });
        QObject::connect(&socket, &SwaySocket::ended, &socket, [this] { ++ended; });
        QObject::connect(&socket, &SwaySocket::happened, &socket,
            [this](const QString& kind, const QString& change) { heard.append(kind + u' ' + change); });
    }
    void ask(Question question)
    {
        socket.ask(question, [this](const QByteArray& json) { answers.append(json); });
    }
    bool open()
    {
        socket.open();
        return waitUntil([this] { return socket.isOpen() && sway.connections > 0; });
    }
};

TEST_F(SwaySocketTest, KeepsAnswersAndEventsApart)
{
    sway.answers = {{2, R"({"success":false})"}, {1, "[1]"}, {4, "[4]"}};
    ASSERT_TRUE(open());
    ask(Question::tree);
    ask(Question::workspaces);
    ASSERT_TRUE(waitUntil([this] { return sway.asked.size() == 4; }));
    EXPECT_EQ(sway.asked[0], (SwayMessage{2, R"(["window"])"})) << "each by itself";
    EXPECT_EQ(sway.asked[1], (SwayMessage{2, R"(["unheard"])"}));
    sway.happen(3, R"({"change":"new","container":{}})");
    sway.happen(0, R"({"change":"focus"})"); // was not asked for
    sway.happen(3, "{\"change\":"); // no JSON
    sway.happen(99, R"({"change":"later"})");
    ask(Question::tree);
    ASSERT_TRUE(waitUntil([this] { return answers.size() == 3; }));
    EXPECT_EQ(answers, (QByteArrayList{"[4]", "[1]", "[4]"}));
    EXPECT_EQ(heard, (QStringList{u"window new"_s, u"window "_s}));
    EXPECT_EQ(ended, 0);
}

TEST_F(SwaySocketTest, SaysOnceThatThereIsNoSway)
{
    SwaySocket nowhere(u"/nonexistent/sway.sock"_s, {});
    int told = 0;
    QObject::connect(&nowhere, &SwaySocket::ended, &nowhere, [&] { ++told; });
    nowhere.open();
    EXPECT_EQ(told, 0) << "open() is not over yet";
    EXPECT_TRUE(waitUntil([&] { return told > 0; }));
    nowhere.ask(Question::tree, [](const QByteArray&) { ADD_FAILURE(); });
    EXPECT_FALSE(waitUntil([&] { return told > 1; }, 100));
}

TEST_F(SwaySocketTest, ConnectsAgainWhereItWorkedAndGivesUpWhereItDidNot)
{
    ASSERT_TRUE(open());
    ask(Question::tree);
    ASSERT_TRUE(waitUntil([this] { return answers.size() == 1; }));
    const auto answer = std::exchange(sway.answer, [](const SwayMessage&) { return QByteArray(); });
    ask(Question::tree); // is never answered
    sway.hangUp();
    sway.answer = answer;
    ASSERT_TRUE(waitUntil([this] { return opened == 2 && sway.connections == 2; }));
    EXPECT_EQ(ended, 0);
    sway.answers[1] = "[1]";
    ask(Question::workspaces);
    ASSERT_TRUE(waitUntil([this] { return answers.size() == 2; }));
    EXPECT_EQ(answers.last(), "[1]");
    sway.hangUp();
    sway.answer = [](const SwayMessage&) { return QByteArray(); };
    ASSERT_TRUE(waitUntil([this] { return opened == 3 && sway.connections == 3; }));
    sway.hangUp(); // this time before any answer
    EXPECT_TRUE(waitUntil([this] { return ended == 1; }));
    EXPECT_FALSE(waitUntil([this] { return opened > 3 || ended > 1; }, 100));
    EXPECT_FALSE(socket.isOpen());
}

TEST_F(SwaySocketTest, LeavesThoseThatAreNoSway)
{
    const QByteArray answered = SwayMessages::packed({1, "[]"});
    for (const QByteArray& bytes : {QByteArray("no such thing, and more of it"), answered, answered.first(9)}) {
        sway.answer = [&](const SwayMessage&) { return sway.asked.size() == 1 ? bytes : QByteArray(); };
        ended = 0;
        const int before = sway.connections;
        socket.open();
        ASSERT_TRUE(waitUntil([&] { return sway.connections > before && sway.asked.size() > 1; }));
        if (bytes.size() < 14)
            sway.hangUp();
        EXPECT_TRUE(waitUntil([this] { return ended == 1; })) << bytes.constData();
        sway.asked.clear();
    }
}

TEST_F(SwaySocketTest, IsSilentOnceClosed)
{
    ASSERT_TRUE(open());
    ask(Question::tree);
    socket.close();
    sway.end();
    EXPECT_FALSE(waitUntil([this] { return ended > 0 || !answers.isEmpty(); }, 100));
    EXPECT_FALSE(socket.isOpen());
}

TEST_F(SwaySocketTest, MayBeClosedByWhoeverHearsIt)
{
    ASSERT_TRUE(open());
    QObject::connect(&socket, &SwaySocket::happened, &socket, [this] { socket.close(); });
    sway.send(SwayMessages::packed({SwayMessages::eventBit | 3, R"({"change":"new"})"})
        + SwayMessages::packed({SwayMessages::eventBit | 3, R"({"change":"close"})"}));
    ASSERT_TRUE(waitUntil([this] { return !heard.isEmpty(); }));
    EXPECT_FALSE(waitUntil([this] { return heard.size() > 1; }, 50));
    EXPECT_TRUE(open()) << "and opened again";
}

} // namespace
} // namespace ambrelle::test
