// SPDX-License-Identifier: MIT

#include "window/popover/SettingsForm.h"

#include "window/look/AppLook.h"
#include "window/look/Segments.h"
#include "window/look/WindowStyle.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QPainter>

namespace ambrelle {

namespace {

constexpr int columnGap = 14;
constexpr int rowGap = 10;
constexpr int labelWidth = 74;

} // namespace

SettingsForm::SettingsForm(WidgetController& widget, QWidget* parent)
    : QWidget(parent)
    , m_widget(&widget)
    , m_shown(widget.config())
    , m_grid(new QGridLayout(this))
{
    m_grid->setContentsMargins(0, 0, 0, 0);
    m_grid->setHorizontalSpacing(columnGap);
    m_grid->setVerticalSpacing(rowGap);
    m_grid->setColumnMinimumWidth(0, labelWidth);
    m_grid->setColumnStretch(1, 1);
    connect(&widget, &WidgetController::changed, this, &SettingsForm::refresh);
}

void SettingsForm::change(const std::function<void(WidgetConfig&)>& edit)
{
    if (m_widget)
        m_widget->change(edit);
}

void SettingsForm::place(const QString& label, QWidget* control)
{
    const int row = m_grid->rowCount();
    auto* name = new QLabel(label);
    name->setBuddy(control);
    name->setMinimumHeight(WindowStyle::controlHeight);
    m_grid->addWidget(name, row, 0, Qt::AlignTop);
    m_grid->addWidget(control, row, 1);
    if (!m_first)
        m_first = control;
}

void SettingsForm::addSwitch(const QString& label, bool WidgetConfig::*field)
{
    auto* box = new QCheckBox;
    addRow(label, box, [=](const WidgetConfig& config) {
        const QSignalBlocker quiet(box);
        box->setChecked(config.*field);
    });
    connect(box, &QCheckBox::toggled, this,
        [this, field](bool on) { change([&](WidgetConfig& config) { config.*field = on; }); });
}

void SettingsForm::addSegments(const QString& label, const QStringList& titles,
    std::function<int(const WidgetConfig&)> index, std::function<void(WidgetConfig&, int)> choose)
{
    auto* segments = new Segments(titles);
    addRow(label, segments,
        [segments, index = std::move(index)](const WidgetConfig& config) { segments->setChosen(index(config)); });
    connect(segments, &Segments::chose, this, [this, choose = std::move(choose)](int chosen) {
        change([&](WidgetConfig& config) { choose(config, chosen); });
    });
}

void SettingsForm::addRule()
{
    auto* rule = new QWidget;
    rule->setFixedHeight(1);
    m_grid->addWidget(rule, m_grid->rowCount(), 0, 1, 2);
    m_rules.push_back(rule);
}

void SettingsForm::refresh()
{
    m_shown = m_widget->config();
    for (const Show& show : m_shows)
        show(m_shown);
}

void SettingsForm::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    for (const QWidget* rule : m_rules)
        painter.fillRect(rule->geometry(), AppLook::shared().colours().edge);
}

} // namespace ambrelle
