// SPDX-License-Identifier: MIT

#pragma once

#include <QColor>
#include <QRadioButton>

#include <optional>

namespace ambrelle {

/// One accent to choose, as a disc; or the wheel behind which all other colours are.
class AccentSwatch final : public QRadioButton {
    Q_OBJECT
public:
    explicit AccentSwatch(QWidget* parent);

    /// A named accent. `accent`: what choosing it means, nothing for the skin's own; `shown`: its colour.
    void setAccent(const QString& name, const std::optional<QColor>& accent, const QColor& shown);
    /// The wheel; with the colour that was chosen from it, if any.
    void setWheel(const QString& name, const std::optional<QColor>& chosen);

    bool isWheel() const { return m_isWheel; }
    const std::optional<QColor>& accent() const { return m_accent; }

    QSize sizeHint() const override { return {side, side}; }
    QSize minimumSizeHint() const override { return sizeHint(); }

    static constexpr int side = 38; ///< with the rings around the disc

Q_SIGNALS:
    void moveWanted(int steps); ///< by the arrow keys, in reading order

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool hitButton(const QPoint& point) const override { return rect().contains(point); }
    void paintEvent(QPaintEvent* event) override;

private:
    void describe(const QString& name);
    std::optional<int> stepsOf(int key) const;

    bool m_isWheel = false;
    std::optional<QColor> m_accent;
    QColor m_shown; ///< invalid: nothing in the wheel
};

} // namespace ambrelle
