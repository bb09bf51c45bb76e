// SPDX-License-Identifier: MIT

#include "platform/network/HttpsReleaseServer.h"

#include "support/SecureServer.h"

#include <QCryptographicHash>
#include <QElapsedTimer>
#include <QTemporaryFile>

#include <gmock/gmock.h>

#include <algorithm>
#include <array>
#include <future>

#include <fcntl.h>
#include <unistd.h>

namespace ambrelle {
namespace {

using namespace std::chrono_literals;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

const QByteArray okHead = "HTTP/1.1 200 OK\r\n";

/// Nobody waits long: for what never comes. Little may come, too.
constexpr HttpsReleaseServer::Limits hasty{.document = 700ms,
    .silence = 700ms,
    .archive = 1400ms,
    .feedBytes = 1000,
    .signatureBytes = 300,
    .archiveBytes = 3000};
constexpr HttpsReleaseServer::Limits small{.feedBytes = 1000, .signatureBytes = 300, .archiveBytes = 3000};

class HttpsReleaseServerTest : public SecureServerTest {
protected:
    void SetUp() override
    {
        SecureServerTest::SetUp();
        if (!IsSkipped())
            trust();
        archive.open();
    }

    /// What `call` gives, on a thread of its own, while this one serves.
    template <typename Call> auto away(Call call)
    {
        auto result = std::async(std::launch::async, std::move(call));
        EXPECT_TRUE(waitUntil([&] { return result.wait_for(0s) == std::future_status::ready; }));
        return result.get();
    }
    FeedAnswer feed(const QUrl& url, const HttpsReleaseServer::Limits& limits = small)
    {
        return away([=, token = stop.get_token()] { return HttpsReleaseServer(limits).feed(url, token); });
    }
    std::optional<FetchedArchive> fetch(const QUrl& url, const HttpsReleaseServer::Limits& limits = small)
    {
        archive.resize(0);
        archive.seek(0);
        return away([=, token = stop.get_token(), descriptor = archive.handle()] {
            return HttpsReleaseServer(limits).fetch(url, descriptor, token);
        });
    }
    /// The signature as asked for, and `play` for the archive.
    LocalServer::Play signedPlay(const LocalServer::Play& play)
    {
        return [this, play](QTcpSocket& socket) {
            if (secure->targets.last().contains(".minisig"))
                LocalServer::answer("signature")(socket);
            else
                play(socket);
        };
    }

    std::stop_source stop;
    QTemporaryFile archive;
};

LocalServer::Play cutShort(const QByteArray& sent)
{
    return [=](QTcpSocket& socket) {
        socket.write(okHead + "Content-Length: 2000\r\n\r\n" + sent);
        socket.disconnectFromHost();
    };
}

LocalServer::Play onwards(const QUrl& target)
{
    return LocalServer::answer("elsewhere", "302 Found", "Location: " + target.toEncoded() + "\r\n");
}

TEST_F(HttpsReleaseServerTest, TellsWhatTheFeedSaid)
{
    const QByteArray full(1000, 'x');
    const QByteArray zipped = qCompress("{}").mid(4);
    struct Case {
        const char* what;
        LocalServer::Play play;
        FeedAnswer expected;
        bool waits = false; ///< for what does not come
    };
    const Case cases[] = {
        {"a document", LocalServer::answer("{}"), {true, 200, "{}"}},
        {"one as large as allowed", LocalServer::answer(full), {true, 200, full}},
        {"a larger one", LocalServer::answer(full + full), {true, 200, full + 'x'}},
        {"an endless one", LocalServer::raw(okHead + "\r\n" + full + full), {true, 200, full + 'x'}},
        {"announced huge, and nothing comes", LocalServer::raw(okHead + "Content-Length: 500000000\r\n\r\n"), {}, true},
        {"packed unasked", LocalServer::answer(zipped, "200 OK", "Content-Encoding: deflate\r\n"), {true, 200, zipped}},
        {"a part", LocalServer::answer("{}", "206 Partial Content"), {true, 206, {}}},
        {"nothing", LocalServer::answer({}, "204 No Content"), {true, 204, {}}},
        {"not found", LocalServer::answer("details", "404 No"), {true, 404, {}}},
        {"an error without end", LocalServer::raw("HTTP/1.1 500 Oops\r\nContent-Length: 9999\r\n\r\n..."),
            {true, 500, {}}},
        {"a demand for a password", LocalServer::answer({}, "401 No", "WWW-Authenticate: Basic realm=\"x\"\r\n"),
            {true, 401, {}}},
        {"a way that leads nowhere", LocalServer::answer({}, "302 Found"), {true, 302, {}}},
        {"half of it", cutShort("{}"), {}},
        {"no HTTP at all", LocalServer::raw("SSH-2.0-Server\r\n"), {}, true},
        {"silence", [](QTcpSocket&) {}, {}, true},
        {"drops", LocalServer::dripping(okHead + "\r\n", full), {}, true},
    };
    for (const Case& each : cases) {
        SCOPED_TRACE(each.what);
        secure->play = each.play;
        EXPECT_EQ(feed(secure->url(u"/feed.json?os=linux"_s), each.waits ? hasty : small), each.expected);
        EXPECT_EQ(secure->targets.last(), "/feed.json?os=linux");
        EXPECT_THAT(secure->headers, Contains("Accept-Encoding: identity"));
        EXPECT_THAT(secure->headers, Contains("Cache-Control: no-cache"));
    }
}

TEST_F(HttpsReleaseServerTest, GoesToSecureAddressesOnly)
{
    plain.play = LocalServer::answer("{}");
    EXPECT_EQ(feed(plain.url()), FeedAnswer());
    EXPECT_FALSE(fetch(plain.url()));
    for (const char* address : {"", "file:///etc/passwd", "ftp://127.0.0.1/", "https:///feed"})
        EXPECT_EQ(feed(QUrl(QLatin1StringView(address))), FeedAnswer()) << address;
    secure->play = onwards(plain.url(u"/back"_s));
    EXPECT_EQ(feed(secure->url()), FeedAnswer());
    secure->play = signedPlay(onwards(plain.url(u"/back"_s)));
    EXPECT_FALSE(fetch(secure->url(u"/a.zip"_s)));
    EXPECT_THAT(plain.targets, IsEmpty());

    secure->targets.clear();
    secure->play = onwards(secure->url(u"/again"_s));
    EXPECT_EQ(feed(secure->url(u"/ring"_s)), FeedAnswer());
    EXPECT_EQ(secure->targets.size(), 6);
    secure->play = [this](QTcpSocket& socket) {
        const bool there = secure->targets.last() == "/there";
        (there ? LocalServer::answer("{}") : onwards(QUrl(u"/there"_s)))(socket);
    };
    EXPECT_EQ(feed(secure->url()), (FeedAnswer{true, 200, "{}"}));

    QSslConfiguration::setDefaultConfiguration(before);
    secure->targets.clear();
    EXPECT_EQ(feed(secure->url()), FeedAnswer()) << "nobody vouches for it";
    EXPECT_THAT(secure->targets, IsEmpty());
    QUrl closed;
    {
        const LocalServer gone;
        closed = gone.url();
        closed.setScheme(u"https"_s);
    }
    EXPECT_EQ(feed(closed), FeedAnswer());
}

TEST_F(HttpsReleaseServerTest, BringsAnArchiveWithItsSignature)
{
    const QByteArray bytes = QByteArray(3'000'000, 'a') + "end";
    secure->play = signedPlay(LocalServer::answer(bytes, "200 OK", "Content-Encoding: gzip\r\n"));
    const auto fetched = fetch(secure->url(u"/a%20b.zip?x=1#top"_s), {});
    ASSERT_TRUE(fetched);
    EXPECT_EQ(fetched->signature, "signature");
    EXPECT_EQ(fetched->sha256.toLatin1(), QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).toHex());
    EXPECT_THAT(secure->targets, ElementsAre("/a%20b.zip.minisig?x=1", "/a%20b.zip?x=1"));
    archive.seek(0);
    EXPECT_TRUE(archive.readAll() == bytes);
}

TEST_F(HttpsReleaseServerTest, WhatDoesNotComeWholeIsNoArchive)
{
    const QByteArray full(3000, 'x');
    secure->play = LocalServer::answer(full);
    EXPECT_FALSE(fetch(secure->url(u"/a.zip"_s))) << "the signature is too large";
    secure->play = LocalServer::answer("signature", "404 No");
    EXPECT_FALSE(fetch(secure->url(u"/a.zip"_s))) << "the signature is missing";
    EXPECT_THAT(secure->targets, ElementsAre("/a.zip.minisig", "/a.zip.minisig"));

    struct Case {
        const char* what;
        LocalServer::Play play;
        bool waits = false;
        bool comes = false;
    };
    const Case cases[] = {
        {"as large as allowed", LocalServer::answer(full), false, true},
        {"larger", LocalServer::answer(full + 'x')},
        {"without end", LocalServer::raw(okHead + "\r\n" + full + full)},
        {"not found", LocalServer::answer(full, "404 No")},
        {"a part", LocalServer::answer(full, "206 Partial Content")},
        {"half of it", cutShort("PK")},
        {"half of it, then silence", LocalServer::raw(okHead + "Content-Length: 9\r\n\r\nPK"), true},
        {"drops", LocalServer::dripping(okHead + "\r\n", full), true},
        {"a ring", onwards(secure->url(u"/a.zip"_s))},
    };
    for (const Case& each : cases) {
        SCOPED_TRACE(each.what);
        secure->play = signedPlay(each.play);
        QElapsedTimer timer;
        timer.start();
        EXPECT_EQ(fetch(secure->url(u"/a.zip"_s), each.waits ? hasty : small).has_value(), each.comes);
        EXPECT_LT(timer.elapsed(), 15'000) << "it was waited for too long";
        EXPECT_LE(archive.size(), 3000);
    }

    const int fullDisk = ::open("/dev/full", O_WRONLY | O_CLOEXEC);
    ASSERT_GE(fullDisk, 0);
    secure->play = signedPlay(LocalServer::answer(full));
    EXPECT_FALSE(away([=, url = secure->url(u"/a.zip"_s)] { return HttpsReleaseServer().fetch(url, fullDisk, {}); }));
    ::close(fullDisk);
}

TEST_F(HttpsReleaseServerTest, EndsSoonOnceItIsStopped)
{
    const std::pair<const char*, LocalServer::Play> plays[] = {
        {"silence", [](QTcpSocket&) {}},
        {"drops", LocalServer::dripping(okHead + "\r\n", QByteArray(3000, 'x'))},
    };
    for (const auto& [what, play] : plays) {
        std::array<qint64, 5> times{}; // milliseconds
        for (qint64& time : times) {
            secure->play = signedPlay(play);
            const qsizetype asked = secure->targets.size();
            std::stop_source ending;
            auto result = std::async(std::launch::async, [&, descriptor = archive.handle()] {
                return HttpsReleaseServer().fetch(secure->url(u"/a.zip"_s), descriptor, ending.get_token());
            });
            ASSERT_TRUE(waitUntil([&] { return secure->targets.size() == asked + 2; }));
            QElapsedTimer timer;
            timer.start();
            ending.request_stop();
            EXPECT_FALSE(result.get()) << what;
            time = timer.elapsed();
        }
        std::ranges::nth_element(times, times.begin() + times.size() / 2);
        EXPECT_LT(times[times.size() / 2], 100) << what;
    }
    stop.request_stop();
    EXPECT_EQ(feed(secure->url()), FeedAnswer()) << "stopped before";
}

} // namespace
} // namespace ambrelle
