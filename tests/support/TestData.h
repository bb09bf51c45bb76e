#pragma once

#include <QByteArray>
#include <QFile>

#include <gtest/gtest.h>

#include <string_view>

namespace ambrelle {

/// A recorded text from tests/data/linux.
inline QByteArray testData(const char* name)
{
    QFile file(QStringLiteral(AMBRELLE_TEST_DATA "/linux/") + QLatin1String(name));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name;
    return file.readAll();
}

inline std::string_view view(const QByteArray& text)
{
    return {text.constData(), std::size_t(text.size())};
}

} // namespace ambrelle
