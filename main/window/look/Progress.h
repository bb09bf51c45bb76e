// SPDX-License-Identifier: MIT

#pragma once

#include <QProgressBar>
#include <QVariantAnimation>

namespace ambrelle {

/// Shows that something is at work, nobody knows how long: a turning ring of 16, or a bar as wide as there is room.
/// Where motion is not wished it stands still, as three dots. Costs nothing while it is not seen.
class Progress final : public QProgressBar {
    Q_OBJECT
public:
    enum class Shape { ring, bar };

    /// `name` says what is going on.
    Progress(Shape shape, const QString& name, QWidget* parent = nullptr);

    bool isTurning() const { return m_turn.state() == QAbstractAnimation::Running; }
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void run();

    Shape m_shape;
    QVariantAnimation m_turn;
};

} // namespace ambrelle
