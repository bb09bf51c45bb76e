// SPDX-License-Identifier: MIT

#include "app/WordingFile.h"

#include "app/Information.h"

#include <QFileInfo>
#include <QGuiApplication>
#include <QTranslator>

#include <memory>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

void installLanguage(QCoreApplication& application, const QString& folder, const QLocale& language)
{
    auto wording = std::make_unique<QTranslator>();
    if (!wording->load(language, u"ambrelle"_s, u"_"_s, folder))
        return;
    const QString file = wording->filePath();
    wording->setParent(&application);
    QCoreApplication::installTranslator(wording.release());
    // By the file that was found: the language of texts need not be that of numbers and dates.
    const QString code = QFileInfo(file).completeBaseName().section(u'_', 1);
    QGuiApplication::setLayoutDirection(QLocale(code).textDirection());
}

} // namespace

void WordingFile::install(QCoreApplication& application, const QLocale& locale)
{
    install(application, dataFile(u"wording"_s), locale);
}

void WordingFile::install(QCoreApplication& application, const QString& folder, const QLocale& locale)
{
    if (folder.isEmpty())
        return; // the toolkit would look where the program was started
    installLanguage(application, folder, QLocale(QLocale::English));
    // What comes last is asked first.
    if (!locale.uiLanguages().value(0).startsWith("en"_L1))
        installLanguage(application, folder, locale);
}

} // namespace ambrelle
