// SPDX-License-Identifier: MIT

#pragma once

#include <QLabel>

namespace ambrelle {

/// A line of text that is shortened in the middle where it does not fit.
class ElidedLabel final : public QLabel {
public:
    using QLabel::QLabel;

    QSize minimumSizeHint() const override { return {0, QLabel::minimumSizeHint().height()}; }

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace ambrelle
