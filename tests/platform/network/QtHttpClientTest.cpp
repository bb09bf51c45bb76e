// SPDX-License-Identifier: MIT

#include "platform/network/QtHttpClient.h"

#include "platform/network/HttpTransfer.h"
#include "support/AnswerOf.h"
#include "support/SecureServer.h"

#include <QNetworkInterface>

namespace ambrelle {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr qint64 mostBytes = 1000;

/// Fetches and waits for the answer.
HttpAnswer fetch(HttpClient& client, const QUrl& url)
{
    QObject context;
    return answerOf<HttpAnswer>([&](const auto& take) { client.get(url, mostBytes, &context, take); });
}

HttpAnswer fetchPublic(HttpClient& client, const QUrl& url)
{
    QObject context;
    return answerOf<HttpAnswer>([&](const auto& take) { client.getPublic(url, mostBytes, &context, take); });
}

LocalServer::Play packed(const QByteArray& body)
{
    constexpr qsizetype lengthField = 4; // which qCompress() puts before the stream
    return LocalServer::answer(qCompress(body).mid(lengthField), "200 OK", "Content-Encoding: deflate\r\n");
}

} // namespace

TEST(HttpAddressTest, PlainHttpIsForThisMachineAlone)
{
    const std::pair<const char*, bool> cases[] = {{"https://weather.example/v1", true}, {"http://127.0.0.1:80/", true},
        {"http://[::1]/", true}, {"http://localhost:8080", true}, {"http://weather.example/", false},
        {"http://127.0.0.1.example/", false}, {"http://192.168.0.1/", false}, {"ftp://localhost/", false},
        {"file:///etc/passwd", false}, {"https:///nowhere", false}, {"", false}};
    for (const auto& [address, allowed] : cases)
        EXPECT_EQ(mayFetch(QUrl(QLatin1StringView(address))), allowed) << address;
    QtHttpClient client;
    EXPECT_EQ(
        fetch(client, QUrl(u"http://weather.example/"_s)).error, u"The address “weather.example” is not secure."_s);
    EXPECT_TRUE(client.isIdle());
}

TEST(HttpAddressTest, PublicAddressesAreThoseOfTheOpenInternet)
{
    for (const char* address : {"8.8.8.8", "100.63.255.255", "172.32.0.1", "192.169.0.1", "223.255.255.255",
             "2a00:1450:4001::1", "2606:4700::1111", "::ffff:8.8.8.8", "64:ff9b::8.8.8.8"})
        EXPECT_TRUE(isPublicAddress(QHostAddress(QLatin1StringView(address)))) << address;
    for (const char* address : {"0.0.0.0", "10.1.2.3", "100.64.0.1", "127.0.0.1", "127.9.9.9", "169.254.169.254",
             "172.16.0.1", "172.31.255.255", "192.168.1.1", "192.0.2.1", "198.18.0.1", "224.0.0.251", "240.0.0.1",
             "255.255.255.255", "::", "::1", "fe80::1", "fec0::1", "fc00::1", "fd12::1", "ff02::fb", "::ffff:127.0.0.1",
             "::ffff:10.0.0.1", "::127.0.0.1", "64:ff9b::192.168.0.1", "2002:7f00:1::", "2001::1", "2001:db8::1"})
        EXPECT_FALSE(isPublicAddress(QHostAddress(QLatin1StringView(address)))) << address;
    EXPECT_FALSE(isPublicAddress(QHostAddress()));
}

TEST(HttpAddressTest, NeighboursAreNotOfTheOpenInternet)
{
    const QList<Subnet> own{{QHostAddress(u"81.2.69.17"_s), 28}, {QHostAddress(u"2a00:1450:4001:7::5"_s), 64}};
    const std::pair<const char*, bool> cases[] = {{"81.2.69.16", false}, {"81.2.69.31", false}, {"81.2.69.32", true},
        {"::ffff:81.2.69.20", false}, {"64:ff9b::81.2.69.20", false}, {"64:ff9b::81.2.69.40", true},
        {"2a00:1450:4001:7:1:2:3:4", false}, {"2a00:1450:4001:8::1", true}};
    for (const auto& [address, isPublic] : cases)
        EXPECT_EQ(isPublicAddress(QHostAddress(QLatin1StringView(address)), own), isPublic) << address;

    const QList<Subnet> found = ownSubnets();
    for (const QHostAddress& address : QNetworkInterface::allAddresses()) {
        EXPECT_TRUE(std::ranges::any_of(found, [&](const Subnet& subnet) { return address.isInSubnet(subnet); }))
            << qPrintable(address.toString());
    }
    EXPECT_TRUE(std::ranges::none_of(found, [](const Subnet& subnet) { return subnet.second == 0; }));
}

TEST(QtHttpClientTest, AStrangersAddressLeadsNowhereNear)
{
    LocalServer server;
    int connections = 0;
    server.play = [&connections](QTcpSocket&) { ++connections; };
    const int port = server.url().port();
    QtHttpClient client(60s);
    const auto error = [&](const QString& address) { return fetchPublic(client, QUrl(address)).error; };
    EXPECT_EQ(error(server.url().toString()), u"The address “127.0.0.1” is not secure."_s);
    EXPECT_EQ(error(u"file:///etc/passwd"_s), u"The address “” is not secure."_s);
    for (const QString& host : {u"127.0.0.1"_s, u"[::1]"_s, u"[::ffff:127.0.0.1]"_s, u"localhost"_s, u"2130706433"_s,
             u"0x7f.1"_s, u"0"_s, u"169.254.169.254"_s, u"192.168.0.1"_s}) {
        const QString sentence = error(u"https://%1:%2/"_s.arg(host).arg(port));
        EXPECT_TRUE(sentence.endsWith(u"is not on the internet."_s)) << sentence.toStdString();
    }
    EXPECT_EQ(error(u"https://pictures.invalid/"_s), u"The server pictures.invalid was not found."_s);
    EXPECT_EQ(connections, 0);
    EXPECT_TRUE(client.isIdle());
}

TEST(QtHttpClientTest, AnswersWithTheBodyOrASentence)
{
    const QByteArray full(mostBytes, 'x');
    const QByteArray head = "HTTP/1.1 200 OK\r\n";
    struct Case {
        const char* what;
        LocalServer::Play play;
        HttpAnswer expected;
    };
    const Case cases[] = {
        {"a document", LocalServer::answer("{}"), {"{}", {}}},
        {"a document in drops", LocalServer::dripping(head + "Content-Length: 8\r\n\r\n", "[1, 2,3]"),
            {"[1, 2,3]", {}}},
        {"a body as large as allowed", LocalServer::answer(full), {full, {}}},
        {"a larger one, announced", LocalServer::answer(full + 'x'), {{}, u"The server's answer is too large."_s}},
        {"announced huge, and nothing comes", LocalServer::raw(head + "Content-Length: 999999999999\r\n\r\n"),
            {{}, u"The server did not answer in time."_s}},
        {"a larger one, not announced", LocalServer::raw(head + "\r\n" + full + full),
            {{}, u"The server's answer is too large."_s}},
        {"a packed document", packed("[1]"), {"[1]", {}}},
        {"a small pack of much", packed(QByteArray(8'000'000, ' ')), {{}, u"The server's answer is too large."_s}},
        {"a way that leads nowhere", LocalServer::answer("?", "302 Found"),
            {{}, u"The server answered with error 302."_s}},
        {"an error", LocalServer::answer("details", "500 Oops"), {{}, u"The server answered with error 500."_s}},
        {"not found", LocalServer::answer({}, "404 No"), {{}, u"The server answered with error 404."_s}},
        {"a demand for a password", LocalServer::answer({}, "401 No", "WWW-Authenticate: Basic realm=\"x\"\r\n"),
            {{}, u"The server answered with error 401."_s}},
        {"silence", [](QTcpSocket&) {}, {{}, u"The server did not answer in time."_s}},
        {"half a document, then silence", LocalServer::raw(head + "Content-Length: 10\r\n\r\n12345"),
            {{}, u"The server did not answer in time."_s}},
        {"half a document, then the end",
            [&](QTcpSocket& socket) {
                socket.write(head + "Content-Length: 10\r\n\r\n12345");
                socket.disconnectFromHost();
            },
            {{}, u"The server 127.0.0.1 broke the connection off."_s}},
        {"a way to an insecure address", LocalServer::answer({}, "302 Found", "Location: http://127.0.0.1:1/\r\n"),
            {{}, u"The server points to an address that is not secure."_s}},
        {"a way to a file", LocalServer::answer({}, "302 Found", "Location: file:///etc/passwd\r\n"),
            {{}, u"The server points to an address that is not secure."_s}},
        {"drops for many seconds", LocalServer::dripping(head + "\r\n", full + full),
            {{}, u"The server did not answer in time."_s}},
        {"no HTTP at all", LocalServer::raw("SSH-2.0-Server\r\n"),
            {{}, u"The server 127.0.0.1 broke the connection off."_s}},
    };
    LocalServer server;
    QtHttpClient patient(60s);
    QtHttpClient impatient(300ms);
    for (const auto& each : cases) {
        SCOPED_TRACE(each.what);
        server.play = each.play;
        QtHttpClient& client = each.expected.error.contains(u"in time"_s) ? impatient : patient;
        const HttpAnswer answer = fetch(client, server.url(u"/v1/search?name=S%C3%A3o%20Paulo%26&x=a,b"_s));
        EXPECT_EQ(answer.error.toStdString(), each.expected.error.toStdString());
        EXPECT_EQ(answer.body, each.expected.body);
        EXPECT_EQ(server.targets.last(), "/v1/search?name=S%C3%A3o%20Paulo%26&x=a,b");
    }
}

TEST(QtHttpClientTest, AServerThatIsNotThereIsNamed)
{
    QUrl closed;
    {
        const LocalServer server;
        closed = server.url();
    }
    QtHttpClient client(60s);
    EXPECT_EQ(fetch(client, closed).error, u"The server 127.0.0.1 refuses connections."_s);
    EXPECT_EQ(fetch(client, QUrl(u"https://weather.invalid/"_s)).error, u"The server weather.invalid was not found."_s);
}

TEST(QtHttpClientTest, NobodyIsAnsweredWhoIsGone)
{
    LocalServer server;
    QTcpSocket* connection = nullptr;
    server.play = [&connection](QTcpSocket& socket) { connection = &socket; };
    auto client = std::make_unique<QtHttpClient>(60s);
    bool answered = false;
    auto context = std::make_unique<QObject>();
    client->get(server.url(), mostBytes, context.get(), [&answered](const HttpAnswer&) { answered = true; });
    ASSERT_TRUE(waitUntil([&connection] { return connection != nullptr; }));
    bool hungUp = false;
    QObject::connect(connection, &QTcpSocket::disconnected, [&hungUp] { hungUp = true; });
    context.reset();
    EXPECT_TRUE(waitUntil([&] { return hungUp && client->isIdle(); })) << "the request is taken back";

    QObject patient;
    client->get(server.url(), mostBytes, &patient, [&answered](const HttpAnswer&) { answered = true; });
    client.reset();
    QCoreApplication::processEvents();
    EXPECT_FALSE(answered);
}

TEST(QtHttpClientTest, HoldsNothingOnceItIsIdle)
{
    LocalServer server;
    server.play = LocalServer::answer("1");
    QtHttpClient client(60s);
    QObject context;
    int answers = 0;
    const auto count = [&answers](const HttpAnswer& answer) { answers += answer.body == "1"; };
    EXPECT_TRUE(client.isIdle());
    client.get(server.url(), mostBytes, &context, count);
    client.get(server.url(), mostBytes, &context, [&](const HttpAnswer& answer) {
        count(answer);
        client.get(server.url(), mostBytes, &context, count); // from within an answer
    });
    EXPECT_FALSE(client.isIdle());
    EXPECT_TRUE(waitUntil([&answers] { return answers == 3; }));
    EXPECT_TRUE(client.isIdle());
}

class SecureHttpTest : public SecureServerTest {
protected:
    QtHttpClient client{60s};
};

TEST_F(SecureHttpTest, FollowsWaysToSecureAddressesOnly)
{
    trust();
    EXPECT_EQ(fetch(client, secure->url()).body, "safe");
    plain.play = LocalServer::answer({}, "301 Moved", "Location: " + secure->url(u"/new"_s).toEncoded() + "\r\n");
    EXPECT_EQ(fetch(client, plain.url(u"/old"_s)).body, "safe");
    EXPECT_EQ(secure->targets.last(), "/new");

    secure->play = LocalServer::answer({}, "302 Found", "Location: " + plain.url(u"/back"_s).toEncoded() + "\r\n");
    EXPECT_EQ(fetch(client, secure->url()).error, u"The server points to an address that is not secure."_s);
    EXPECT_EQ(plain.targets.last(), "/old");
    secure->play = LocalServer::answer({}, "302 Found", "Location: /again\r\n");
    EXPECT_EQ(fetch(client, secure->url()).error, u"The server points somewhere else again and again."_s);
}

TEST_F(SecureHttpTest, AStrangersAddressIsAskedWhereItWasLookedUp)
{
    trust();
    // As if this machine's address were one of the internet, and all others were not.
    QtHttpClient open(60s, [](const QHostAddress& address) { return address == QHostAddress(u"127.0.0.1"_s); });
    EXPECT_EQ(fetchPublic(open, secure->url()).body, "safe");
    QUrl named = secure->url(u"/named"_s);
    named.setHost(u"ip4-only.localhost"_s); // which the certificate does not name
    EXPECT_NE(fetchPublic(open, named).error, QString());
    EXPECT_NE(secure->targets.last(), "/named");

    const qsizetype asked = secure->targets.size();
    QByteArray other = secure->url(u"/other"_s).toEncoded();
    other.replace("127.0.0.1", "127.0.0.2");
    secure->play = LocalServer::answer({}, "302 Found", "Location: " + other + "\r\n");
    EXPECT_EQ(fetchPublic(open, secure->url()).error, u"The server 127.0.0.2 is not on the internet."_s);
    EXPECT_EQ(secure->targets.size(), asked + 1) << "the redirect was not followed";
}

TEST_F(SecureHttpTest, ACertificateThatNobodyTrustsEndsIt)
{
    EXPECT_EQ(fetch(client, secure->url()).error, u"The connection to 127.0.0.1 would not be secure."_s);
    EXPECT_TRUE(secure->targets.isEmpty());
}

} // namespace ambrelle
