// SPDX-License-Identifier: MIT

#pragma once

#include "support/LocalServer.h"

#include <QFile>
#include <QProcess>
#include <QSslConfiguration>
#include <QSslKey>
#include <QSslServer>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace ambrelle {

/// A server of this machine with a certificate of its own making, and a plain one beside it.
class SecureServerTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        const QString openssl = QStandardPaths::findExecutable(u"openssl"_s);
        if (openssl.isEmpty() || !QSslSocket::supportsSsl())
            GTEST_SKIP() << "openssl is not installed";
        const QString key = folder.filePath(u"key"_s);
        const QString certificate = folder.filePath(u"certificate"_s);
        ASSERT_EQ(QProcess::execute(openssl,
                      {u"req"_s, u"-x509"_s, u"-newkey"_s, u"ec"_s, u"-pkeyopt"_s, u"ec_paramgen_curve:prime256v1"_s,
                          u"-nodes"_s, u"-subj"_s, u"/CN=localhost"_s, u"-addext"_s, u"subjectAltName=IP:127.0.0.1"_s,
                          u"-days"_s, u"2"_s, u"-keyout"_s, key, u"-out"_s, certificate}),
            0);
        QFile keyFile(key);
        ASSERT_TRUE(keyFile.open(QIODevice::ReadOnly));
        certificates = QSslCertificate::fromPath(certificate);
        ASSERT_EQ(certificates.size(), 1);
        QSslConfiguration configuration;
        configuration.setPrivateKey(QSslKey(&keyFile, QSsl::Ec));
        configuration.setLocalCertificate(certificates.first());
        auto server = std::make_unique<QSslServer>();
        server->setSslConfiguration(configuration);
        secure = std::make_unique<LocalServer>(std::move(server), u"https"_s);
        secure->play = LocalServer::answer("safe");
    }
    void TearDown() override { QSslConfiguration::setDefaultConfiguration(before); }

    void trust()
    {
        QSslConfiguration configuration = before;
        configuration.addCaCertificates(certificates);
        QSslConfiguration::setDefaultConfiguration(configuration);
    }

    QTemporaryDir folder;
    QList<QSslCertificate> certificates;
    QSslConfiguration before = QSslConfiguration::defaultConfiguration();
    std::unique_ptr<LocalServer> secure;
    LocalServer plain;
};

} // namespace ambrelle
