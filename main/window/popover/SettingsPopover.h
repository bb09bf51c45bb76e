// SPDX-License-Identifier: MIT

#pragma once

#include <QWidget>

namespace ambrelle {

class Clock;
class SettingsForm;
class WidgetController;

/// The options of one widget in a popover that needs no active window: it hears keys while it is open, and the
/// application that the user works in stays the active one. Closes on Escape, on a click elsewhere and when the widget
/// goes, and is gone then.
class SettingsPopover final : public QWidget {
    Q_OBJECT
public:
    /// `composited`: what lies below shows through, so that it may have a shadow.
    SettingsPopover(WidgetController& widget, const Clock& clock, bool composited);

    QMargins shadow() const; ///< around the visible part
    /// Where the visible part would be higher than `most` points, its rows scroll.
    void limitHeight(int most);
    const SettingsForm& form() const { return *m_form; }

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    QRectF card() const;
    void paintHeader(QPainter& painter) const;

    bool m_composited;
    QString m_symbol;
    QString m_title;
    SettingsForm* m_form;
};

} // namespace ambrelle
