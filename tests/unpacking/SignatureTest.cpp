// SPDX-License-Identifier: MIT

#include "support/TestData.h"
#include "support/TestFolder.h"
#include "unpacking/SigningKey.h"

#include <QList>

#include <functional>

#include <fcntl.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace ambrelle::test {

namespace {

struct SignatureTest : testing::Test {
    const QByteArray archive = QByteArray("what is signed ").repeated(10000); // more than one block
    const QByteArray comment = "org.ambrelle.Ambrelle 0.2.0";
    const SigningKey key;
    const QByteArray good = key.signatureOf(archive, comment);
    TestFolder folder;

    std::optional<Digest> digest(const QByteArray& bytes) const
    {
        const int file = ::open(folder.write(u"archive"_s, bytes).toUtf8().constData(), O_RDONLY);
        ::lseek(file, 5, SEEK_SET); // wherever it was read before
        const std::optional<Digest> digest = digestOf(file);
        ::close(file);
        return digest;
    }
    bool isSigned(const QByteArray& signature, const QByteArray& bytes, const PublicKey& by) const
    {
        const std::optional<Signature> parsed = Signature::parse(signature.toStdString());
        return parsed && parsed->isBy(by, digest(bytes).value_or(Digest()));
    }
    bool isSigned(const QByteArray& signature) const { return isSigned(signature, archive, key.publicKey()); }
    QByteArray line(int number) const { return good.split('\n')[number]; }
    QByteArray with(int number, const QByteArray& line) const
    {
        QList<QByteArray> lines = good.split('\n');
        lines[number] = line;
        return lines.join('\n');
    }
    /// With other bytes behind the letters of a line.
    QByteArray changed(int number, const std::function<void(QByteArray& bytes)>& change) const
    {
        QByteArray bytes = QByteArray::fromBase64(line(number));
        change(bytes);
        return with(number, bytes.toBase64());
    }
};

/// The same number modulo the order of the curve's group, by which some verifiers take a signature in two ways.
void addOrder(QByteArray& bytes)
{
    const QByteArray order = QByteArray::fromHex("edd3f55c1a631258d69cf7a2def9de1400000000000000000000000000000010");
    int carry = 0;
    for (qsizetype i = 0; i < order.size(); ++i) {
        char& byte = bytes[bytes.size() - order.size() + i];
        carry += static_cast<uchar>(byte) + static_cast<uchar>(order[i]);
        byte = static_cast<char>(carry & 0xff);
        carry >>= 8;
    }
}

} // namespace

TEST_F(SignatureTest, WhatTheSigningToolWroteIsUnderstood)
{
    const QByteArray release = testData("release.zip", "update");
    const std::optional<PublicKey> owner =
        PublicKey::parse(testData("release-key.txt", "update").trimmed().toStdString());
    const QByteArray signature = testData("release.zip.minisig", "update");
    ASSERT_TRUE(owner);
    EXPECT_TRUE(isSigned(signature, release, *owner));
    EXPECT_FALSE(isSigned(signature, release + ' ', *owner));
    EXPECT_FALSE(isSigned(signature, release, key.publicKey()));
    EXPECT_EQ(Signature::parse(signature.toStdString())->comment, "org.ambrelle.Ambrelle 0.2.0");
    EXPECT_FALSE(Signature::parse(testData("release-legacy.minisig", "update").toStdString())) << "of the whole file";
}

TEST_F(SignatureTest, TheNameOfTheKeyAndBothSignaturesCount)
{
    ASSERT_TRUE(isSigned(good));
    EXPECT_TRUE(isSigned(good.chopped(1))) << "the end of the last line may be missing";
    EXPECT_TRUE(isSigned(with(0, "untrusted comment: anything"))) << "nobody signed that";
    PublicKey other = key.publicKey();
    other.id[0] ^= 1;
    EXPECT_FALSE(isSigned(good, archive, other));
    EXPECT_FALSE(isSigned(good, archive, {.id = key.publicKey().id}));
    EXPECT_FALSE(isSigned(good, QByteArray(archive).replace(70000, 1, "X"), key.publicKey()));
    EXPECT_FALSE(isSigned(with(2, "trusted comment: org.ambrelle.Ambrelle 0.3.0")));
    const QByteArray later = key.signatureOf(archive + ' ', "org.ambrelle.Ambrelle 0.3.0");
    EXPECT_FALSE(
        isSigned(later.split('\n')[0] + '\n' + line(1) + '\n' + later.split('\n')[2] + '\n' + later.split('\n')[3]))
        << "a comment of another archive";
    for (const int number : {1, 3}) {
        EXPECT_FALSE(isSigned(changed(number, &addOrder))) << number;
        EXPECT_FALSE(isSigned(changed(number, [](QByteArray& bytes) { bytes[bytes.size() - 40] ^= 1; }))) << number;
    }
    EXPECT_FALSE(isSigned(changed(1, [](QByteArray& bytes) { bytes[5] ^= 1; }))) << "of another key";
    const QByteArray nothing = changed(1, [](QByteArray& bytes) { bytes.replace(10, 64, QByteArray(64, '\0')); });
    EXPECT_FALSE(isSigned(nothing, archive, {.id = key.publicKey().id}));
}

TEST_F(SignatureTest, ThereIsOneWayToWriteIt)
{
    const QByteArray loose = line(1).chopped(2); // without the last letter and what fills up
    for (const QByteArray& bad : {
             QByteArray(),
             QByteArray("\n\n\n\n"),
             QByteArray(good).replace("\n", "\r\n"),
             good + '\n',
             good + "more",
             '\n' + good,
             "\xef\xbb\xbf" + good,
             with(0, "comment: a test"),
             with(0, "untrusted comment:a test"),
             with(0, "untrusted comment: " + QByteArray(1, '\0')),
             with(2, "Trusted comment: " + comment),
             with(2, "untrusted comment: " + comment),
             with(2, "trusted comment: " + comment + '\r'),
             with(2, "trusted comment: \x1b[2J"),
             with(1, ""),
             with(1, ' ' + line(1)),
             with(1, line(1) + ' '),
             with(1, line(1).chopped(1)),
             with(1, line(1) + "===="),
             with(1, loose + (line(1)[loose.size()] == 'B' ? 'C' : 'B') + '='),
             with(1, QByteArray(line(1)).replace(50, 1, "*")),
             with(3, line(3).chopped(4)),
             with(3, line(3) + "AAAA"),
             with(1, line(3)),
             changed(1, [](QByteArray& bytes) { bytes[1] = 'd'; }),
             changed(1, [](QByteArray& bytes) { bytes.append('x'); }),
             changed(1, [](QByteArray& bytes) { bytes.chop(1); }),
             changed(3, [](QByteArray& bytes) { bytes.chop(1); }),
             with(0, "untrusted comment: " + QByteArray(2000, 'x')),
             good.split('\n').mid(0, 3).join('\n'),
             good.split('\n').mid(1).join('\n'),
         })
        EXPECT_FALSE(Signature::parse(bad.toStdString())) << bad.toStdString();
}

TEST_F(SignatureTest, AKeyIsItsLettersAndNothingElse)
{
    const QByteArray letters = key.publicLine();
    ASSERT_TRUE(PublicKey::parse(letters.toStdString()));
    QByteArray otherKind = QByteArray::fromBase64(letters);
    otherKind[1] = 'D';
    for (const QByteArray& bad : {QByteArray(), letters.chopped(1), letters + '\n', letters + "AAAA", ' ' + letters,
             QByteArray(letters).replace(10, 1, "-"), otherKind.toBase64()})
        EXPECT_FALSE(PublicKey::parse(bad.toStdString())) << bad.toStdString();
}

TEST_F(SignatureTest, OnlyPlainFilesHaveADigest)
{
    int ends[2] = {};
    ASSERT_EQ(::pipe(ends), 0);
    ::close(ends[1]);
    const int endless = ::open("/dev/zero", O_RDONLY);
    for (const int file : {ends[0], endless, -1})
        EXPECT_FALSE(digestOf(file)) << file;
    ::close(ends[0]);
    ::close(endless);
}

} // namespace ambrelle::test
