// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

class QFileDialog;
class QWidget;

namespace ambrelle {

/// A new chooser of files in the look of the window: the toolkit's own, gone once it is closed, and at home unless
/// `folder` says where it starts. A name to save under always gets the default suffix. The caller says what it takes
/// and opens it by open(), so that nothing waits.
QFileDialog* makeFileChooser(QWidget* parent, const QString& title, const QString& folder = {});

} // namespace ambrelle
