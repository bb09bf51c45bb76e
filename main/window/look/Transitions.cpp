// SPDX-License-Identifier: MIT

#include "window/look/Transitions.h"

#include "window/look/AppLook.h"

#include <QGraphicsOpacityEffect>
#include <QPointer>
#include <QPropertyAnimation>
#include <QVariantAnimation>
#include <QWidget>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

constexpr int transitionTime = 120; // milliseconds

class WidgetTransition final : public QVariantAnimation {
public:
    WidgetTransition(QWidget& widget, const QString& name, double start)
        : QVariantAnimation(&widget)
    {
        setObjectName(name);
        setEasingCurve(QEasingCurve::OutCubic);
        jump(start);
        QObject::connect(this, &QVariantAnimation::valueChanged, &widget, [&widget] { widget.update(); });
    }
    void go(double target)
    {
        if (target == endValue().toDouble())
            return;
        const auto* widget = qobject_cast<QWidget*>(parent());
        const int time = widget->isVisible() ? AppLook::shared().milliseconds(transitionTime) : 0;
        const double now = currentValue().toDouble();
        stop();
        if (time == 0) {
            jump(target);
            return;
        }
        setStartValue(now);
        setEndValue(target);
        setDuration(time);
        start();
    }
    double value() const { return state() == Running ? currentValue().toDouble() : endValue().toDouble(); }

private:
    void jump(double value)
    {
        setStartValue(value);
        setEndValue(value);
    }
};

/// Shows the widget between opacities; its effect goes with the motion.
void fade(QWidget& widget, double from, double to, int time, std::function<void()> done)
{
    auto* effect = new QGraphicsOpacityEffect(&widget);
    effect->setOpacity(from);
    widget.setGraphicsEffect(effect); // ends a fade that is still going on
    auto* motion = new QPropertyAnimation(effect, "opacity", effect);
    motion->setEasingCurve(QEasingCurve::OutCubic);
    motion->setStartValue(from);
    motion->setEndValue(to);
    motion->setDuration(time);
    QObject::connect(
        motion, &QAbstractAnimation::finished, &widget,
        [&widget, effect = QPointer(effect), done = std::move(done)] {
            if (!effect)
                return; // another fade began meanwhile
            widget.setGraphicsEffect(nullptr);
            if (done)
                done();
        },
        Qt::QueuedConnection); // the effect is still at work
    motion->start();
}

} // namespace

double transition(const QWidget* widget, MovingPart part, double target, int number)
{
    if (!widget)
        return target;
    const QString name = (part == MovingPart::hover ? u"ambrelle-hover-%1"_s : u"ambrelle-knob-%1"_s).arg(number);
    auto* going =
        static_cast<WidgetTransition*>(widget->findChild<QVariantAnimation*>(name, Qt::FindDirectChildrenOnly));
    if (!going) {
        new WidgetTransition(const_cast<QWidget&>(*widget), name, target);
        return target;
    }
    going->go(target);
    return going->value();
}

void fadeIn(QWidget& widget, int milliseconds)
{
    widget.setGraphicsEffect(nullptr);
    widget.show();
    if (const int time = AppLook::shared().milliseconds(milliseconds); time > 0)
        fade(widget, 0, 1, time, {});
}

void fadeOut(QWidget& widget, int milliseconds, std::function<void()> done)
{
    const int time = widget.isVisible() ? AppLook::shared().milliseconds(milliseconds) : 0;
    auto finish = [&widget, done = std::move(done)] {
        widget.hide();
        if (done)
            done();
    };
    if (time > 0) {
        fade(widget, 1, 0, time, std::move(finish));
        return;
    }
    widget.setGraphicsEffect(nullptr);
    finish();
}

} // namespace ambrelle
