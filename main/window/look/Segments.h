// SPDX-License-Identifier: MIT

#pragma once

#include <QRadioButton>
#include <QWidget>

class QButtonGroup;

namespace ambrelle {

/// A choice of a few titles side by side, of which one is chosen; the arrow keys go from one to the next.
class Segments final : public QWidget {
    Q_OBJECT
public:
    explicit Segments(const QStringList& titles, QWidget* parent = nullptr);

    void setChosen(int index); ///< tells nothing
    int chosen() const;
    /// What is chosen here, for those who cannot see it.
    void setAccessibleName(const QString& name);

Q_SIGNALS:
    void chose(int index); ///< by the user

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QButtonGroup* m_group;
};

/// One title of them.
class Segment final : public QRadioButton {
    Q_OBJECT
public:
    using QRadioButton::QRadioButton;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    bool hitButton(const QPoint& point) const override { return rect().contains(point); }
    void paintEvent(QPaintEvent* event) override;
};

} // namespace ambrelle
