// SPDX-License-Identifier: MIT

#pragma once

#include <QLocale>

class QCoreApplication;

namespace ambrelle {

/// The compiled wordings beside the program, one file for each language.
namespace WordingFile {

/// From now on texts are worded as in the language of `locale`, what its file lacks as in English, and windows are laid
/// out in the direction in which that language is read. A missing file is no fault: the texts of the sources remain.
void install(QCoreApplication& application, const QLocale& locale = QLocale());

/// The same from another folder.
void install(QCoreApplication& application, const QString& folder, const QLocale& locale);

} // namespace WordingFile

} // namespace ambrelle
