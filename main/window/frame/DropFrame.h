// SPDX-License-Identifier: MIT

#pragma once

#include <QWidget>

namespace ambrelle {

/// Lies over the window while files are held above it that it would take, and says what would become of them.
class DropFrame final : public QWidget {
public:
    explicit DropFrame(QWidget* window);

    void invite(const QString& sentence);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString m_sentence;
};

} // namespace ambrelle
