// SPDX-License-Identifier: MIT

#pragma once

#include <QPointF>
#include <QSizeF>
#include <QString>
#include <QStringList>

class QPainter;

namespace ambrelle {

/// A text on a dark capsule, which is legible on any desktop picture. Points, y down.
class TextCapsule {
public:
    TextCapsule() = default;
    /// The text is wrapped where the capsule would be wider than `room`.
    TextCapsule(const QString& text, double textSize, double room);

    const QSizeF& size() const { return m_size; }
    double corner() const; ///< radius of its corners
    void paint(QPainter& painter, QPointF upperLeft) const;

private:
    QStringList m_lines;
    double m_textSize = 0;
    QSizeF m_size;
};

} // namespace ambrelle
