// SPDX-License-Identifier: MIT

#pragma once

#include "app/AppDelegate.h"
#include "foundation/UserDefaults.h"
#include "model/AppSettings.h"
#include "model/ThemeAccent.h"
#include "platform/recording/RecordingMachine.h"
#include "support/Variable.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace ambrelle {

using namespace Qt::StringLiterals;

/// The whole program on a machine of its own. Its store may be another one's, which is what a restart finds.
struct Program {
    explicit Program(UserDefaults& store, const Updater::Trust& updates = {})
        : defaults(store)
        , delegate(machine, {defaults, settings, accents}, updates)
    {
    }

    UserDefaults& defaults;
    RecordingMachine machine;
    AppSettings settings{defaults};
    ThemeAccent accents{defaults};
    AppDelegate delegate;
};

struct StartUp : testing::Test {
    QList<WidgetConfig> stored() const
    {
        return WidgetConfig::decodeList(defaults.data(u"widgets.v2"_s).value_or("[]")).value();
    }
    void store(const QList<WidgetConfig>& widgets)
    {
        AppSettings(defaults).setHasLaunchedBefore(true);
        defaults.setData(u"widgets.v2"_s, WidgetConfig::encodeList(widgets));
    }

    QTemporaryDir home;
    test::Variable data{"XDG_DATA_HOME", QFile::encodeName(home.filePath(u"data"_s))};
    test::Variable cache{"XDG_CACHE_HOME", QFile::encodeName(home.filePath(u"cache"_s))};
    UserDefaults defaults = UserDefaults::temporary();
};

} // namespace ambrelle
