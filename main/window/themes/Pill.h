// SPDX-License-Identifier: MIT

#pragma once

#include <QWidget>

namespace ambrelle {

/// A word or two with a symbol, on a round plate; the chief one in the accent colour.
class Pill final : public QWidget {
    Q_OBJECT
public:
    explicit Pill(bool chief, QWidget* parent = nullptr);

    void setContent(const QString& symbol, const QString& text);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    bool m_chief;
    QString m_symbol;
    QString m_text;
};

} // namespace ambrelle
