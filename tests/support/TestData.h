// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QFile>

#include <gtest/gtest.h>

#include <string_view>

namespace ambrelle {

/// A recorded text from a folder of tests/data.
inline QByteArray testData(const char* name, const char* folder = "linux")
{
    QFile file(QString::fromUtf8(AMBRELLE_TEST_DATA "/%1/%2").arg(QLatin1StringView(folder), QLatin1StringView(name)));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name;
    return file.readAll();
}

inline std::string_view view(const QByteArray& text)
{
    return {text.constData(), static_cast<std::size_t>(text.size())};
}

} // namespace ambrelle
