// SPDX-License-Identifier: MIT

#include "window/popover/PercentSlider.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QSlider>

#include <cmath>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

constexpr int whole = 100; // percent
constexpr int page = 10;
constexpr int gap = 10;

QString figure(int percent)
{
    return u"%1%"_s.arg(percent);
}

} // namespace

PercentSlider::PercentSlider(QWidget* parent)
    : QWidget(parent)
    , m_slider(new QSlider(Qt::Horizontal))
    , m_figure(new QLabel)
{
    m_slider->setRange(0, whole);
    m_slider->setPageStep(page);
    m_figure->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    m_figure->setFixedWidth(fontMetrics().horizontalAdvance(figure(whole)) + 2);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(gap);
    row->addWidget(m_slider, 1);
    row->addWidget(m_figure);
    setFocusProxy(m_slider);
    showFigure(m_slider->value());
    // The new position is told to assistive technology after this, and by then it has to be stored.
    connect(m_slider, &QSlider::actionTriggered, this, [this] { choose(m_slider->sliderPosition()); });
    connect(m_slider, &QSlider::valueChanged, this, &PercentSlider::choose);
}

void PercentSlider::setValue(double value)
{
    const QSignalBlocker quiet(m_slider);
    m_slider->setValue(static_cast<int>(std::lround(value * whole)));
    showFigure(m_slider->value());
}

void PercentSlider::setAccessibleName(const QString& name)
{
    QWidget::setAccessibleName(name);
    m_slider->setAccessibleName(name);
}

void PercentSlider::choose(int percent)
{
    showFigure(percent);
    Q_EMIT chose(static_cast<double>(percent) / whole);
}

void PercentSlider::showFigure(int percent)
{
    m_figure->setText(figure(percent));
}

} // namespace ambrelle
