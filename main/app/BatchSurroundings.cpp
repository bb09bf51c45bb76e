// SPDX-License-Identifier: MIT

#include "app/BatchSurroundings.h"

#include "app/WordingFile.h"
#include "platform/linux/desktop/Fonts.h"

#include <QCoreApplication>
#include <QHashSeed>
#include <QLocale>
#include <QTextStream>
#include <QtGlobal>

#include <ctime>

namespace ambrelle::BatchSurroundings {

namespace {

// Nothing can be read or made below it, so nothing of the user's comes into a picture, and nothing is left behind.
constexpr const char* nowhere = "/dev/null";

void keepAccessToDisplay()
{
    if (!qEnvironmentVariableIsSet("XAUTHORITY"))
        qputenv("XAUTHORITY", qgetenv("HOME") + "/.Xauthority");
}

void rememberFonts()
{
    // Which fonts the machine has is looked up there, and changes no picture.
    if (!qEnvironmentVariableIsSet("XDG_CACHE_HOME"))
        qputenv("XDG_CACHE_HOME", qgetenv("HOME") + "/.cache");
}

} // namespace

void hideUser()
{
    keepAccessToDisplay();
    rememberFonts();
    for (const char* name : {"HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME"})
        qputenv(name, nowhere);
    for (const char* name : {"LANGUAGE", "QT_SCREEN_SCALE_FACTORS", "QT_FONT_DPI", "QT_STYLE_OVERRIDE",
             "QT_ENABLE_HIGHDPI_SCALING", "QT_AUTO_SCREEN_SCALE_FACTOR", "QT_SCALE_FACTOR_ROUNDING_POLICY",
             "QT_USE_PHYSICAL_DPI", "FONTCONFIG_FILE", "FONTCONFIG_PATH"})
        qunsetenv(name);
    // Sentences are the program's own; what the toolkit remarks on a machine without a desktop concerns nobody.
    qInstallMessageHandler([](QtMsgType type, const QMessageLogContext&, const QString& text) {
        if (type == QtFatalMsg)
            QTextStream(stderr) << text << '\n';
    });
    qputenv("LC_ALL", "C.UTF-8");
    qputenv("TZ", "UTC");
    qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/dev/null"); // without an address one would be started
    qputenv("GSETTINGS_BACKEND", "memory");
    tzset();
}

void prepare(const QByteArray& plugin, int scale)
{
    qputenv("XDG_CURRENT_DESKTOP", "none");
    qputenv("QT_XCB_GL_INTEGRATION", "none");
    qputenv("QT_QPA_PLATFORM", plugin);
    qputenv("QT_SCALE_FACTOR", QByteArray::number(scale));
    QHashSeed::setDeterministicGlobalSeed();
    Fonts::registerBundled();
    qputenv("XDG_CACHE_HOME", nowhere); // fonts are known by now
}

void dress()
{
    WordingFile::install(*QCoreApplication::instance(), QLocale::c());
}

} // namespace ambrelle::BatchSurroundings
