// SPDX-License-Identifier: MIT

#pragma once

#include "desktop/WidgetController.h"

#include <QLabel>
#include <QPointer>
#include <QWidget>

#include <functional>
#include <vector>

class QGridLayout;

namespace ambrelle {

/// Rows of settings of one widget, the label left and the control right. A control writes the widget's record at once,
/// and shows it again when it changes elsewhere.
class SettingsForm final : public QWidget {
public:
    using Show = std::function<void(const WidgetConfig&)>;

    explicit SettingsForm(WidgetController& widget, QWidget* parent = nullptr);

    const WidgetConfig& config() const { return m_shown; }
    /// Does nothing once the widget is gone.
    void change(const std::function<void(WidgetConfig&)>& edit);

    /// A row at the end; `show` brings the control up to date, now and later.
    template <typename Control> Control* addRow(const QString& label, Control* control, Show show)
    {
        control->setAccessibleName(label);
        place(label, control);
        show(m_shown);
        m_shows.push_back(std::move(show));
        return control;
    }
    void addSwitch(const QString& label, bool WidgetConfig::*field);
    /// A choice among a few titles; `index` tells the one chosen, `choose` writes it.
    void addSegments(const QString& label, const QStringList& titles, std::function<int(const WidgetConfig&)> index,
        std::function<void(WidgetConfig&, int)> choose);
    void addRule(); ///< a line between two groups of rows
    QWidget* firstControl() const { return m_first; }
    QPointer<WidgetController> widget() const { return m_widget; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void place(const QString& label, QWidget* control);
    void refresh();

    QPointer<WidgetController> m_widget;
    WidgetConfig m_shown;
    QGridLayout* m_grid;
    QWidget* m_first = nullptr;
    std::vector<Show> m_shows;
    std::vector<QWidget*> m_rules;
};

} // namespace ambrelle
