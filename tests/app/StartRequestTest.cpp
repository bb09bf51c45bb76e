// SPDX-License-Identifier: MIT

#include "app/StartRequest.h"

#include "support/Variable.h"

#include <QDir>

#include <gtest/gtest.h>

namespace ambrelle {
namespace {

using namespace Qt::StringLiterals;

TEST(StartRequest, ComesThroughALine)
{
    const StartRequest request{
        .files = {u"/a\nb.ambrelle"_s, u"/\u00E9"_s}, .action = u"edit"_s, .token = u"panel/1-host_TIME7"_s};
    EXPECT_EQ(request.encoded().count('\n'), 1) << "a message is a line";
    EXPECT_EQ(StartRequest::decoded(request.encoded()), request);
    EXPECT_EQ(StartRequest::decoded(StartRequest{}.encoded()), StartRequest());
    EXPECT_EQ(StartRequest::decoded(StartRequest{.files = {u"x.ambrelle"_s}}.encoded()),
        (StartRequest{.files = {QDir::current().absoluteFilePath(u"x.ambrelle"_s)}}));
}

TEST(StartRequest, TakesNothingThatIsNone)
{
    struct Case {
        QByteArray message;
        std::optional<StartRequest> expected;
    };
    const QByteArray longToken(StartRequest::longestToken + 1, 'x');
    const Case cases[] = {
        {"", {}},
        {"7", {}},
        {"\"edit\"", {}},
        {"{\"action\": \"edit\"", {}},
        {QByteArray(100'000, '[') + QByteArray(100'000, ']'), {}},
        {"{\"files\": \"/a\"}", {}},
        {"{\"action\": [\"edit\"]}", {}},
        {"{\"token\": 7}", {}},
        {"{\"files\": null}", {}},
        {"{}", StartRequest{}},
        {"{\"shape\": {\"files\": [\"/a\"]}}", StartRequest{}},
        {"{\"files\": [\"a\", \"../a\", 7, null, [\"/b\"], \"/c\"]}", StartRequest{.files = {u"/c"_s}}},
        {"[\"/a\", \"b\", 7]", StartRequest{.files = {u"/a"_s}}},
        {"{\"action\": \"explode\"}", StartRequest{.action = u"explode"_s}},
        {"{\"token\": \"two words\"}", StartRequest{}},
        {"{\"token\": \"line\\u000afeed\"}", StartRequest{}},
        {"{\"token\": \"" + longToken + "\"}", StartRequest{}},
    };
    for (const Case& c : cases)
        EXPECT_EQ(StartRequest::decoded(c.message), c.expected) << c.message.left(60).constData();
}

TEST(StartRequest, TakesItsTokenOutOfTheEnvironment)
{
    const test::Variable older("DESKTOP_STARTUP_ID", "host_TIME7");
    {
        const test::Variable newer("XDG_ACTIVATION_TOKEN", "word");
        EXPECT_EQ(StartRequest::takeToken(), u"word"_s);
        EXPECT_FALSE(qEnvironmentVariableIsSet("XDG_ACTIVATION_TOKEN")) << "programs that are started inherit it";
        EXPECT_EQ(StartRequest::takeToken(), u"host_TIME7"_s);
        qputenv("XDG_ACTIVATION_TOKEN", "two words");
        EXPECT_EQ(StartRequest::takeToken(), u"host_TIME7"_s);
    }
}

} // namespace
} // namespace ambrelle
