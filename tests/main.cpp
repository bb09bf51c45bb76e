// SPDX-License-Identifier: MIT

#ifdef QT_WIDGETS_LIB
#include <QApplication>
using Application = QApplication;
#else
#include <QGuiApplication>
using Application = QGuiApplication;
#endif

#include <QTranslator>

#include <gtest/gtest.h>

#include <cstdlib>

int main(int argc, char** argv)
{
    ::testing::InitGoogleTest(&argc, argv);
    // Also without a display, unless one was asked for.
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const Application application(argc, argv);
    QTranslator wording; // texts as people read them
    if (!wording.load(QString::fromUtf8(AMBRELLE_WORDING)))
        return EXIT_FAILURE;
    QCoreApplication::installTranslator(&wording);
    return RUN_ALL_TESTS();
}
