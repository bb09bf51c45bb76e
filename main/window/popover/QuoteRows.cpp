// SPDX-License-Identifier: MIT

#include "window/popover/KindRows.h"

#include "foundation/Wording.h"
#include "window/popover/SettingsForm.h"

namespace ambrelle {

void addQuoteRows(SettingsForm& form)
{
    form.addSegments(
        Wording::tr("Every Day"), {Wording::tr("A Saying"), Wording::tr("A Word")},
        [](const WidgetConfig& config) { return config.quoteWords ? 1 : 0; },
        [](WidgetConfig& config, int chosen) { config.quoteWords = chosen == 1; });
}

} // namespace ambrelle
