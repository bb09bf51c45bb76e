// SPDX-License-Identifier: MIT

#include "window/popover/KindRows.h"

#include "foundation/Wording.h"
#include "window/look/SkinChooser.h"
#include "window/popover/PercentSlider.h"
#include "window/popover/SettingsForm.h"

namespace ambrelle {

namespace {

template <typename E> void addChoice(SettingsForm& form, const QString& label, E WidgetConfig::*field)
{
    QStringList titles;
    for (const E value : allCases<E>())
        titles.append(title(value));
    form.addSegments(
        label, titles, [field](const WidgetConfig& config) { return static_cast<int>(config.*field); },
        [field](WidgetConfig& config, int chosen) { config.*field = static_cast<E>(chosen); });
}

} // namespace

void addAppearanceRows(SettingsForm& form)
{
    auto* skins = new SkinChooser;
    form.addRow(Wording::tr("Skin"), skins, [skins](const WidgetConfig& config) { skins->setChosen(config.skin); });
    QObject::connect(skins, &SkinChooser::chose, &form,
        [&form](Skin skin) { form.change([&](WidgetConfig& config) { config.skin = skin; }); });
    addChoice(form, Wording::tr("Size"), &WidgetConfig::scale);
    addChoice(form, Wording::tr("Backdrop"), &WidgetConfig::backdrop);
    auto* opacity = new PercentSlider;
    form.addRow(
        Wording::tr("Opacity"), opacity, [opacity](const WidgetConfig& config) { opacity->setValue(config.opacity); });
    QObject::connect(opacity, &PercentSlider::chose, &form,
        [&form](double value) { form.change([&](WidgetConfig& config) { config.opacity = value; }); });
    form.addSwitch(Wording::tr("Border"), &WidgetConfig::border);
    form.addSwitch(Wording::tr("Pinned"), &WidgetConfig::pinned);
}

} // namespace ambrelle
