#include "window/PercentSlider.h"
#include "window/SettingsForm.h"
#include "window/SkinChooser.h"

#include <QCoreApplication>

namespace ambrelle {

namespace {

QString tr(const char* text)
{
    return QCoreApplication::translate("WidgetSettings", text);
}

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
    form.addRow(tr("Skin"), skins, [skins](const WidgetConfig& config) { skins->setChosen(config.skin); });
    QObject::connect(skins, &SkinChooser::chose, &form,
        [&form](Skin skin) { form.change([&](WidgetConfig& config) { config.skin = skin; }); });
    addChoice(form, tr("Size"), &WidgetConfig::scale);
    addChoice(form, tr("Backdrop"), &WidgetConfig::backdrop);
    auto* opacity = new PercentSlider;
    form.addRow(tr("Opacity"), opacity, [opacity](const WidgetConfig& config) { opacity->setValue(config.opacity); });
    QObject::connect(opacity, &PercentSlider::chose, &form,
        [&form](double value) { form.change([&](WidgetConfig& config) { config.opacity = value; }); });
    form.addSwitch(tr("Border"), &WidgetConfig::border);
    form.addSwitch(tr("Pinned"), &WidgetConfig::pinned);
}

} // namespace ambrelle
