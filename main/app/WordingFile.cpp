// SPDX-License-Identifier: MIT

#include "app/WordingFile.h"

#include "app/Information.h"

#include <QCoreApplication>
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
    wording->setParent(&application);
    QCoreApplication::installTranslator(wording.release());
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
    // What comes last is asked first. The language of texts need not be that of numbers and dates.
    if (!locale.uiLanguages().value(0).startsWith("en"_L1))
        installLanguage(application, folder, locale);
}

} // namespace ambrelle
