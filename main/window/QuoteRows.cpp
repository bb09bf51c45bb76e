#include "window/SettingsForm.h"

#include <QCoreApplication>

namespace ambrelle {

void addQuoteRows(SettingsForm& form)
{
    const auto tr = [](const char* text) { return QCoreApplication::translate("WidgetSettings", text); };
    form.addSegments(
        tr("Every Day"), {tr("A Saying"), tr("A Word")},
        [](const WidgetConfig& config) { return config.quoteWords ? 1 : 0; },
        [](WidgetConfig& config, int chosen) { config.quoteWords = chosen == 1; });
}

} // namespace ambrelle
