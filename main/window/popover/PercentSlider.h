// SPDX-License-Identifier: MIT

#pragma once

#include <QWidget>

class QLabel;
class QSlider;

namespace ambrelle {

/// A part of one, set in steps of a percent and shown as a figure beside the slider.
class PercentSlider final : public QWidget {
    Q_OBJECT
public:
    explicit PercentSlider(QWidget* parent = nullptr);

    void setValue(double value); ///< 0 to 1; tells nothing
    void setAccessibleName(const QString& name);

Q_SIGNALS:
    void chose(double value); ///< by the user, 0 to 1; may be told twice

private:
    void choose(int percent);
    void showFigure(int percent);

    QSlider* m_slider;
    QLabel* m_figure;
};

} // namespace ambrelle
